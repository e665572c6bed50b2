#pragma once

#include "app/base/files.h"
#include "app/base/result.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

namespace vl::app {

/// Whether the path is one that the program itself gives to a file: "project.json", or an id with
/// ".json" in "objects/" or "taxonomy/".
bool isOwnPath(QByteArrayView path);

/// Whether the path is one that a project is read from: "project.json", or any name with ".json"
/// directly in "objects/" or "taxonomy/" that is not hidden.
bool isReadPath(QByteArrayView path);

/// Whether the path belongs to a version control system's own store: a part of it is named ".git",
/// ".hg" or ".svn". That store is about the folder it stands in, and no part of the project.
bool isRepositoryPath(QByteArrayView path);

/// What becomes of such stores.
enum class Repositories
{
    Keep,
    LeaveOut, ///< where a project is copied to another place
};

/// The paths of all files under the folder, hidden ones too, relative to it, in ascending order of
/// their bytes. Fails for what cannot be packed: links, devices, unreadable folders and names that
/// no other system could unpack; a file of the model may be a link where repositories are left out.
/// What unfinished writes left behind is passed over, and so is the lock.
Result<std::vector<QByteArray>> listProjectFolder(const QString &folder,
                                                  Repositories repositories = Repositories::Keep);

/// Removes what unfinished writes of the program's own files left in a project folder. Others, such
/// as an asset just being imported, stay.
void removeUnfinishedOwnFiles(const QString &folder);

/// Removes what unfinished writes left anywhere under a folder that nobody else writes to.
void removeUnfinishedFilesUnder(const QString &folder);

/// Reads one file of a project folder; a link or a device fails like any other unreadable file.
Result<QByteArray> readProjectFile(const QString &folder, const QByteArray &path);

/// The full path of a file in a folder, from its path relative to it.
QString pathInFolder(const QString &folder, QByteArrayView path);

/// What is to become of the files that are carried to another place and cannot be read.
enum class Carry
{
    Everything, ///< the place is not written then
    WhatCanBeRead,
};

/// The files of a project folder that no project is read from ("assets/" and whatever is unknown,
/// but no repository), by their paths in it.
struct CarriedFiles
{
    std::vector<QByteArray> paths; ///< in ascending order of their bytes
    QStringList unreadable;        ///< links and devices among them
};

/// Tries to read each of them.
CarriedFiles readCarriedFiles(const QString &folder);

/// Copies the carried files from one project folder into another, which may hold some of them
/// already. On failure none of those that it lacked is left in it.
Result<> copyCarriedFiles(const QString &from, const QString &to, Carry carry = Carry::Everything);

} // namespace vl::app

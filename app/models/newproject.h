#pragma once

#include "app/base/result.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace vl::app {

/// What the user wants a new project to be.
struct NewProject
{
    QString templateId = QStringLiteral("blank");
    QString name;
    QString place;         ///< the folder that it is made in; made too when it is missing
    bool isFolder = false; ///< a project folder instead of a single file
};

/// Makes new projects on the disk. Nothing that exists is ever written over.
class ProjectMaker
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::ProjectMaker)

public:
    /// Where the project would stand; fails with what is wrong with its name or place.
    static Result<QString> pathFor(const NewProject &wanted);
    /// Makes the project from its template; gives its path.
    static Result<QString> make(const NewProject &wanted);
    /// Copies a project, with everything it carries, under a name that is free in a folder, which
    /// is made when it is missing; gives the path of the copy, a project folder.
    static Result<QString> copy(const QString &path, const QString &folder, const QString &name);

    /// The sample project that came with the program; empty when it is not installed.
    static QString samplePath();
    /// The folder that new projects are suggested for.
    static QString suggestedPlace();
};

} // namespace vl::app

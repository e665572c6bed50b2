#pragma once

#include "app/storage/autobackups.h"
#include "app/storage/journal.h"
#include "app/storage/projectfiles.h"

#include <QtCore/QString>

namespace vl::test {

// What the fault test and the program that it starts agree on.

/// Where everything lies, under one folder.
struct FaultPaths
{
    explicit FaultPaths(const QString &root)
        : root(root)
        , data(root + QStringLiteral("/data"))
        , bundle(root + QStringLiteral("/books/Novel.vellum"))
        , otherBundle(root + QStringLiteral("/other/Copy.vellum"))
        , folder(root + QStringLiteral("/project"))
        , target(root + QStringLiteral("/unpacked/here"))
        , journal(root + QStringLiteral("/journals/a.journal"))
        , novel(root + QStringLiteral("/novel"))
    {
    }

    QString root;
    QString data; ///< working copies and backups
    QString bundle;
    QString otherBundle; ///< where another bundle is written to
    QString folder;      ///< a project folder
    QString target;      ///< where a bundle is unpacked to
    QString journal;
    QString novel; ///< a project folder that loads
};

inline QString changedObject()
{
    return QStringLiteral("objects/0f8b2a34-5c6d-4e7f-8a9b-0c1d2e3f4a5b.json");
}
inline QString addedObject()
{
    return QStringLiteral("objects/1a2b3c4d-5e6f-4a7b-8c9d-0e1f2a3b4c5d.json");
}
inline QString goneObject()
{
    return QStringLiteral("objects/2b3c4d5e-6f7a-4b8c-9d0e-1f2a3b4c5d6e.json");
}

/// The files that the new state of the project is written as.
inline vl::app::ProjectFiles newProjectFiles()
{
    return {{changedObject(), QByteArray(3000, 'n')},
            {addedObject(), "added"},
            {QStringLiteral("project.json"), "{\"new\": 1}"}};
}

constexpr int journalPieces = 4;

/// What the journal is given as its n-th piece, from 1: two files that are changed in turn.
inline std::vector<vl::app::FileChange> journalPiece(int number)
{
    const QByteArray text = "first " + QByteArray(size_t(number) * 100, 'x');
    std::vector<vl::app::FileChange> changes{{number % 2 ? addedObject() : changedObject(), text}};
    if (number == 1)
        changes.push_back({goneObject(), std::nullopt});
    return changes;
}

/// What is counted in a backup does not matter here.
inline vl::app::BackupSummary nothingCounted(const vl::core::Project &)
{
    return {};
}

} // namespace vl::test

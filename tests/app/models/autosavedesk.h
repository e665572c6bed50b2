#pragma once

#include "app/models/autosavecontroller.h"
#include "app/storage/openproject.h"
#include "app/storage/projectpaths.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "tests/support/folders.h"

#include <QtTest/QtTest>

namespace vl::test {

/// An open project with one document, saved as a folder or a bundle, and its controller.
struct AutosaveDesk
{
    explicit AutosaveDesk(bool asBundle = false)
    {
        project.push(std::make_unique<core::AddObjectCommand>(
            project.project(), std::make_unique<core::Document>(id, core::DocumentKind::Prose,
                                                                QStringLiteral("One"))));
        const Result<> done =
            asBundle ? project.saveAsBundle(dir.filePath(QStringLiteral("held/a b.vellum")))
                     : project.saveAsFolder(dir.filePath(QStringLiteral("held/folder")));
        if (!done)
            qFatal("%s", qPrintable(done.message()));
    }
    template<typename T = void>
    using Result = app::Result<T>;

    core::Document &document() { return *project.project().find<core::Document>(id); }
    void write(const QString &body)
    {
        project.push(std::make_unique<core::SetDocumentBodyCommand>(document(), body));
    }
    QString file() const
    {
        return dir.filePath(QStringLiteral("held/folder/")) + app::objectPath(id);
    }
    /// The body as somebody finds it who opens the project anew.
    QString bodyOnDisk() const
    {
        const auto opened = app::OpenProject::open(project.path());
        return opened ? (*opened)->project().find<core::Document>(id)->body() : opened.message();
    }

    QTemporaryDir dir{QDir::tempPath() + QStringLiteral("/ivorel säve-XXXXXX")};
    const core::ContentId id = core::ContentId::create();
    app::OpenProject project;
    app::AutosaveController autosave{project};
    QSignalSpy asked{&autosave, &app::AutosaveController::aboutToSave};
    QSignalSpy saved{&autosave, &app::AutosaveController::saved};
    QSignalSpy failed{&autosave, &app::AutosaveController::saveFailed};
};

} // namespace vl::test

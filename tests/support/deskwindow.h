#pragma once

#include "app/base/settings.h"
#include "app/models/documentoperations.h"
#include "app/models/workspace.h"
#include "core/commands/documentcommands.h"
#include "core/content/document.h"
#include "desktop/shell/mainwindow.h"
#include "tests/support/fakeprompts.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

namespace vl::test {

/// A main window on the screen, with settings of its own and answers in place of dialogs.
struct DeskWindow
{
    QTemporaryDir dir;
    app::Settings settings{dir.filePath(QStringLiteral("settings.ini"))};
    FakePrompts prompts;
    desktop::MainWindow window{settings, &prompts};
    app::Workspace &workspace = window.workspace();

    DeskWindow()
    {
        window.show();
        QApplication::setActiveWindow(&window);
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not show");
    }
    /// A document at the end of the manuscript, by the commands that the user would give.
    core::Document &addDocument(const QString &title, const QString &body)
    {
        const auto id = app::DocumentOperations(workspace).add(core::DocumentKind::Prose, {});
        auto &document = *workspace.project().find<core::Document>(id);
        workspace.push<core::SetDocumentTitleCommand>(document, title);
        workspace.push<core::SetDocumentBodyCommand>(document, body);
        return document;
    }
    /// One that was there before, selected.
    core::Document &openDocument(const QString &body)
    {
        const auto id = app::DocumentOperations(workspace).add(core::DocumentKind::Prose, {});
        auto &document = *workspace.project().find<core::Document>(id);
        document.setBody(body);
        workspace.select(QList<core::ContentId>());
        workspace.select(id);
        return document;
    }
};

} // namespace vl::test

#pragma once

#include "desktop/shell/mainwindow.h"
#include "tests/support/fakeprompts.h"

#include <QtCore/QTemporaryDir>

#include <functional>

namespace vl::test {

/// A window on a project of its own, with nothing of this machine in it.
struct Desk
{
    QTemporaryDir dir;
    bool isApart = qputenv("XDG_DATA_HOME", QFile::encodeName(dir.path()));
    app::Settings settings{dir.filePath(QStringLiteral("settings.ini"))};
    FakePrompts prompts;
    desktop::MainWindow window{settings, &prompts};

    /// Opens a copy of the sample project, with this document selected.
    void openSample(const QString &title);
    struct Filled
    {
        core::ContentId document;
        core::ContentId category;
        core::ContentId entity;
    };
    /// Puts a document and a category with an entity into the project; wherever a user may write,
    /// this text stands.
    Filled fillWith(const QString &text);
};

using Look = std::function<void(QWidget *)>;

/// Something that the user can look at.
struct Surface
{
    QString name;
    /// The class of a dialog, a function of the prompts or one that asks; empty for what is none.
    QString shows;
    /// Brings it up, hands it over while it is on the screen, and takes it away.
    std::function<void(Desk &, const Look &)> open;
};

/// Everything there is; names, titles and values in it hold `text`.
QList<Surface> surfaces(const QString &text = QStringLiteral("Mara Tolvey"));

} // namespace vl::test

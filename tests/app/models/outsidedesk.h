#pragma once

#include "app/models/outsidemonitor.h"
#include "app/models/workspace.h"
#include "app/storage/projectpaths.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/content/document.h"
#include "tests/support/folders.h"
#include "tests/support/projectbuilder.h"

#include <QtTest/QtTest>

namespace vl::test {

/// A project with three scenes in a folder or bundle, open, and followed by a monitor.
struct OutsideDesk
{
    explicit OutsideDesk(bool asBundle = false, bool startsMonitor = true)
    {
        locations.root = dir.filePath(QStringLiteral("data"));
        app::OpenProject made;
        for (const core::ContentId &id : ids) {
            auto document = std::make_unique<core::Document>(id, core::DocumentKind::Prose,
                                                             QStringLiteral("Scene"));
            document->setBody(QStringLiteral("One.\n\nTwo.\n\nThree.\n\nFour.\n"));
            document->setSynopsis(QStringLiteral("Short."));
            made.push(
                std::make_unique<core::AddObjectCommand>(made.project(), std::move(document)));
        }
        const QString path =
            dir.filePath(asBundle ? QStringLiteral("Növel.vellum") : QStringLiteral("Növel"));
        const app::Result<> saved = asBundle ? made.saveAsBundle(path) : made.saveAsFolder(path);
        if (!saved)
            qFatal("%s", qPrintable(saved.message()));
        reopen(path);
        if (startsMonitor)
            start();
    }
    void reopen(const QString &path)
    {
        auto opened = app::OpenProject::open(path);
        if (!opened)
            qFatal("%s", qPrintable(opened.message()));
        workspace.replaceProject(*std::move(opened));
    }
    void start()
    {
        monitor = std::make_unique<app::OutsideMonitor>(workspace, locations);
        monitor->watcher().setDelays(20, 50);
        monitor->setPatience(300);
        offers = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::offerChanged);
        nothing = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::nothingFound);
        done = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::done);
        failed = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::failed);
        review = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::needsReview);
        media = std::make_unique<QSignalSpy>(monitor.get(), &app::OutsideMonitor::mediaChanged);
        check();
    }
    app::OpenProject &project() { return workspace.current(); }
    core::Document &document(int i) { return *workspace.project().find<core::Document>(ids[i]); }
    void write(int i, const QString &body)
    {
        workspace.push<core::SetDocumentBodyCommand>(document(i), body);
    }
    QString path(int i) const
    {
        return workspace.current().path() + u'/' + app::objectPath(ids[i]);
    }
    app::OutsideOffer::Kind kind() const { return monitor->offer().kind; }
    /// Looks, and waits for the answer.
    void check()
    {
        const qsizetype before = nothing->size() + offers->size();
        monitor->check();
        QTRY_VERIFY_WITH_TIMEOUT(nothing->size() + offers->size() > before, 5000);
    }
    /// Others edit the document: they open the project on their own and save it.
    void others(const std::function<void(app::OpenProject &)> &edit)
    {
        auto theirs = app::OpenProject::open(workspace.current().path());
        if (!theirs)
            qFatal("%s", qPrintable(theirs.message()));
        edit(**theirs);
        const app::Result<> saved = (*theirs)->save();
        if (!saved)
            qFatal("%s", qPrintable(saved.message()));
    }
    void othersWrite(int i, const QString &body)
    {
        others([&](app::OpenProject &theirs) {
            theirs.push(std::make_unique<core::SetDocumentBodyCommand>(
                *theirs.project().find<core::Document>(ids[i]), body));
        });
    }
    QString bodyOnDisk(int i) const
    {
        const auto opened = app::OpenProject::open(workspace.current().path());
        if (!opened)
            return opened.message();
        const auto *document = (*opened)->project().find<core::Document>(ids[i]);
        return document ? document->body() : QStringLiteral("(none)");
    }
    /// All backups' bytes.
    QByteArray backups() const
    {
        QByteArray bytes;
        for (const QByteArray &file : filesUnder(locations.backupFolder()))
            bytes += file;
        return bytes;
    }

    QTemporaryDir dir{QDir::tempPath() + QStringLiteral("/ivorel öutside-XXXXXX")};
    app::StorageLocations locations;
    const core::ContentId ids[3] = {numberedId(1), numberedId(2), numberedId(3)};
    app::Workspace workspace;
    std::unique_ptr<app::OutsideMonitor> monitor;
    std::unique_ptr<QSignalSpy> offers, nothing, done, failed, review, media;
};

inline const QString original = QStringLiteral("One.\n\nTwo.\n\nThree.\n\nFour.\n");

inline void addKindRows()
{
    QTest::addColumn<bool>("asBundle");
    QTest::newRow("folder") << false;
    QTest::newRow("bundle") << true;
}

} // namespace vl::test

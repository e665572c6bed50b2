#pragma once

#include "app/base/sha256.h"
#include "app/storage/bundlestore.h"
#include "tests/support/folders.h"

#include <QtCore/QDir>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>

namespace vl::test {

inline const QString objectFile =
    QStringLiteral("objects/0f8b2a34-5c6d-4e7f-8a9b-0c1d2e3f4a5b.json");
inline const QString otherObject =
    QStringLiteral("objects/1a2b3c4d-5e6f-4a7b-8c9d-0e1f2a3b4c5d.json");
inline const QString asset = QStringLiteral("assets/map.png");
inline const QString records = QStringLiteral("project.json");

inline FileMap sampleFiles()
{
    return {{asset, QByteArray(5000, 'm')}, {objectFile, "first"}, {records, "{}"}};
}

inline FileMap with(FileMap files, const QString &path, const QByteArray &bytes)
{
    files.insert(path, bytes);
    return files;
}

inline QByteArray bundleOf(const FileMap &files)
{
    QByteArray bytes;
    app::ArchiveWriter writer([&bytes](QByteArrayView piece) {
        bytes += piece;
        return app::Result<>();
    });
    QMap<QByteArray, QByteArray> sorted;
    for (auto it = files.begin(); it != files.end(); ++it)
        sorted.insert(it.key().toUtf8(), it.value());
    for (auto it = sorted.begin(); it != sorted.end(); ++it)
        if (!writer.add(it.key(), it.value()))
            qFatal("cannot pack");
    if (!writer.finish())
        qFatal("cannot pack");
    return bytes;
}

/// The project's own files among these.
inline app::ProjectFiles own(const FileMap &files)
{
    app::ProjectFiles result;
    for (auto it = files.begin(); it != files.end(); ++it)
        if (!it.key().startsWith(QLatin1String("assets/")))
            result.push_back({it.key(), it.value()});
    return result;
}

/// A bundle in a folder of its own, with a place for working copies and backups, and a clock.
class BundleFixture
{
protected:
    /// Makes them anew; false when that failed.
    bool setUp()
    {
        m_folder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                                   + QStringLiteral("/bündles of a test-XXXXXX"));
        m_now = QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9, 10), Qt::UTC);
        m_locations.root = at(QStringLiteral("data"));
        m_locations.now = [this] { return m_now; };
        m_path = at(QStringLiteral("books/Nóvel.vellum"));
        putFile(m_path, bundleOf(sampleFiles()));
        return m_folder->isValid();
    }

    QString at(const QString &name) const { return m_folder->filePath(name); }
    app::OpenedBundle opened() const
    {
        app::Result<app::OpenedBundle> bundle = openBundle(m_path, m_locations);
        if (!bundle)
            qFatal("%s", qPrintable(bundle.message()));
        return *std::move(bundle);
    }
    /// The sum in the marker of the bundle's copy; "(other)" when it is not one of this bundle.
    static QByteArray markedSum(const app::OpenedBundle &bundle)
    {
        const QByteArray bytes = fileBytes(bundle.workingFolder + QStringLiteral(".json"));
        const QJsonObject marker = QJsonDocument::fromJson(bytes).object();
        if (marker.size() != 2 || marker.value(QStringLiteral("bundlePath")) != bundle.bundlePath)
            return "(other)";
        return marker.value(QStringLiteral("bundleSha256")).toString().toLatin1();
    }
    QStringList backups() const { return namesIn(m_locations.backupFolder()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    app::StorageLocations m_locations;
    QDateTime m_now;
    QString m_path;
};

} // namespace vl::test

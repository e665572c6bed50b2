#pragma once

#include "tests/support/cliprogram.h"
#include "tests/support/folders.h"
#include "tests/support/projectbuilder.h"

#include "app/storage/projectwriter.h"

#include <QtCore/QDir>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <memory>

namespace vl::test {

inline QString text(const char *literal)
{
    return QString::fromUtf8(literal);
}

/// Runs the command-line program on projects in a folder that is fresh for each test.
class CliTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(text("un été"));
        QVERIFY(QDir().mkpath(m_path));
        // Working copies are kept apart from those of whoever runs the tests.
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder->filePath(text("data"))));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder->filePath(text("config"))));
    }

protected:
    Outcome run(const QStringList &arguments, const QByteArray &input = {}) const
    {
        return runCli(text(IVOREL_CLI), arguments, input, m_path);
    }
    /// The same with the arguments in one text, parted by blanks.
    Outcome run(const char *arguments, const QByteArray &input = {}) const
    {
        return run(text(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts), input);
    }
    QString at(const char *path) const { return m_path + QLatin1Char('/') + text(path); }
    /// A project of every kind in the folder "full", with an asset and a hidden file.
    void makeFullProject() const
    {
        QVERIFY(app::saveProject(*fullProject(), at("full")));
        putFile(at("full/assets/maps/é.png"), QByteArray("\x89PNG\0\n", 6));
        putFile(at("full/.gitattributes"), "*.json text\n");
    }
    QJsonObject infoOf(const char *path) const
    {
        return QJsonDocument::fromJson(run({text("info"), text(path), text("--json")}).output)
            .object();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

} // namespace vl::test

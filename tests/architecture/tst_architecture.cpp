#include <QtCore/QDirIterator>
#include <QtTest/QtTest>

/// Holds the includes of the sources against the picture of the layers.
class TestArchitecture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void includesFollowTheLayers_data();
    void includesFollowTheLayers();
};

void TestArchitecture::includesFollowTheLayers_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QStringList>("mayInclude"); // folders of ours
    QTest::addColumn<QStringList>("toolkit");    // modules of the toolkit

    const QStringList core{QStringLiteral("QtCore")};
    const QStringList services{QStringLiteral("QtCore"), QStringLiteral("QtNetwork"),
                               QStringLiteral("QtConcurrent"), QStringLiteral("QtPdf")};
    QTest::newRow("core") << "core" << QStringList{QStringLiteral("core/")} << core;
    QTest::newRow("base") << "app/base"
                          << QStringList{QStringLiteral("core/"), QStringLiteral("app/base/")}
                          << services;
    for (const char *room : {"storage", "time", "text", "story", "update"}) {
        const QString folder = QStringLiteral("app/%1").arg(QLatin1String(room));
        QTest::newRow(room) << folder
                            << QStringList{QStringLiteral("core/"), QStringLiteral("app/base/"),
                                           folder + u'/'}
                            << services;
    }
    QTest::newRow("models") << "app/models"
                            << QStringList{QStringLiteral("core/"), QStringLiteral("app/")}
                            << services;
    QTest::newRow("cli") << "cli"
                         << QStringList{QStringLiteral("core/"), QStringLiteral("app/"),
                                        QStringLiteral("cli/")}
                         << services;
    QTest::newRow("desktop") << "desktop"
                             << QStringList{QStringLiteral("core/"), QStringLiteral("app/"),
                                            QStringLiteral("desktop/")}
                             << (services
                                 + QStringList{QStringLiteral("QtGui"), QStringLiteral("QtWidgets"),
                                               QStringLiteral("QtSvg")});
}

void TestArchitecture::includesFollowTheLayers()
{
    QFETCH(QString, folder);
    QFETCH(QStringList, mayInclude);
    QFETCH(QStringList, toolkit);
    static const QRegularExpression include(QStringLiteral("^#include ([\"<])([^\">]+)"),
                                            QRegularExpression::MultilineOption);
    const QString root = QStringLiteral(IVOREL_SOURCE_DIR "/");
    int seen = 0;
    QDirIterator files(root + folder, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        auto matches = include.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            const QString path = match.captured(2);
            const bool isOurs = match.captured(1) == u'"';
            const QStringList &allowed = isOurs ? mayInclude : toolkit;
            const bool isToolkit = path.startsWith(u"Qt") && path.contains(u'/');
            const bool fits = (!isOurs && !isToolkit) || path.endsWith(u".moc")
                              || std::any_of(allowed.begin(), allowed.end(),
                                             [&](const QString &a) { return path.startsWith(a); });
            QVERIFY2(fits, qPrintable(file.fileName() + QStringLiteral(" includes ") + path));
            ++seen;
        }
    }
    QVERIFY(seen > 0);
}

QTEST_GUILESS_MAIN(TestArchitecture)
#include "tst_architecture.moc"

#include "cli/batchops.h"
#include "cli/catalogue.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtTest/QtTest>

/// The page of the manual says what the program does.
class TestCliManual : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void commandTableIsFresh();
    void allOpsAreTold();

private:
    QString m_page;
};

void TestCliManual::initTestCase()
{
    QFile file(QStringLiteral(IVOREL_DOCS "/command-line.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_page = QString::fromUtf8(file.readAll());
}

void TestCliManual::commandTableIsFresh()
{
    const QString begin = QStringLiteral("<!-- commands -->\n");
    const QString end = QStringLiteral("<!-- end of commands -->\n");
    const qsizetype from = m_page.indexOf(begin) + begin.size();
    const qsizetype to = m_page.indexOf(end);
    QVERIFY(from >= begin.size() && to >= from);
    const QString fresh = vl::cli::commandTable();
    // To make the table anew, put what this prints between the two marks.
    if (m_page.mid(from, to - from) != fresh)
        QFAIL(qUtf8Printable(QStringLiteral("the table is stale; it should be\n") + fresh));
}

void TestCliManual::allOpsAreTold()
{
    QSet<QString> told;
    static const QRegularExpression name(QStringLiteral("`([a-z]+\\.[a-zA-Z]+)`"));
    const QStringList lines = m_page.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (!line.startsWith(QLatin1String("| `")))
            continue;
        auto match = name.globalMatch(line.section(QLatin1Char('|'), 1, 1));
        while (match.hasNext())
            told.insert(match.next().captured(1));
    }
    QSet<QString> known;
    for (const vl::cli::BatchOp &op : vl::cli::batchOps()) {
        QVERIFY2(!known.contains(QLatin1String(op.name)), op.name);
        known.insert(QLatin1String(op.name));
    }
    QCOMPARE(told, known);
}

QTEST_GUILESS_MAIN(TestCliManual)
#include "tst_climanual.moc"

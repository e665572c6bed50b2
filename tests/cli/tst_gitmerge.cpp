#include "app/storage/projectreader.h"
#include "app/storage/projectwriter.h"
#include "core/content/document.h"
#include "tests/support/projectbuilder.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace vl;

namespace {

/// What a branch makes of the one document.
struct Draft
{
    QString title = QStringLiteral("The Harbour");
    QString status = QStringLiteral("Draft");
    QString synopsis = QStringLiteral("Nine ships, then eight.");
    QString body = QStringLiteral("She counted the ships.");
    bool isBroken = false; ///< with a comma too many, as by hand

    bool operator==(const Draft &) const = default;
};

Draft titled(const char *title)
{
    Draft draft;
    draft.title = QString::fromLatin1(title);
    return draft;
}

} // namespace
Q_DECLARE_METATYPE(Draft)

/// Merges branches of a repository that holds a project, with the program as git's merge driver.
class TestGitMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void merge_data();
    void merge();

private:
    int git(const QStringList &arguments);
    void prepare(const QString &folder);
    void commit(const Draft &draft, const char *message);
    QByteArray documentFile() const;

    std::unique_ptr<QTemporaryDir> m_home;
    QString m_git;
    QString m_folder;
    QString m_said;
};

int TestGitMerge::git(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name : environment.keys()) {
        if (name.startsWith(QLatin1String("GIT_")))
            environment.remove(name);
    }
    environment.insert(QStringLiteral("HOME"), m_home->path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home->path());
    environment.insert(QStringLiteral("GIT_CONFIG_NOSYSTEM"), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(m_git,
                  QStringList{QStringLiteral("-c"), QStringLiteral("user.name=Ada"),
                              QStringLiteral("-c"), QStringLiteral("user.email=ada@localhost")}
                      + arguments);
    if (!process.waitForFinished())
        return -1;
    m_said = QString::fromUtf8(process.readAll());
    return process.exitCode();
}

/// Makes a repository with the settings and the attributes that the manual gives.
void TestGitMerge::prepare(const QString &folder)
{
    m_folder = folder;
    QVERIFY(QDir().mkpath(folder));
    QCOMPARE(git({QStringLiteral("init"), QStringLiteral("-q"), QStringLiteral("-b"),
                  QStringLiteral("main")}),
             0);
    QCOMPARE(git({QStringLiteral("config"), QStringLiteral("merge.ivorel.driver"),
                  QStringLiteral("'" IVOREL_CLI "' merge-file --output %A --path %P %O %A %B")}),
             0);
    QFile attributes(folder + QStringLiteral("/.gitattributes"));
    QVERIFY(attributes.open(QIODevice::WriteOnly));
    attributes.write("*.json merge=ivorel text eol=lf\nassets/** binary\n");
}

void TestGitMerge::commit(const Draft &draft, const char *message)
{
    core::Project project;
    auto document = std::make_unique<core::Document>(test::numberedId(1), core::DocumentKind::Prose,
                                                     draft.title);
    document->setStatus(draft.status);
    document->setSynopsis(draft.synopsis);
    document->setBody(draft.body);
    QVERIFY(project.add(std::move(document)));
    QVERIFY(app::saveProject(project, m_folder));
    if (draft.isBroken) {
        QByteArray bytes = documentFile();
        bytes.insert(bytes.lastIndexOf('}') - 1, ',');
        QFile file(m_folder
                   + QStringLiteral("/objects/%1.json").arg(test::numberedId(1).toString()));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QCOMPARE(git({QStringLiteral("add"), QStringLiteral("-A")}), 0);
    QCOMPARE(git({QStringLiteral("commit"), QStringLiteral("-qm"), QString::fromLatin1(message)}),
             0);
}

QByteArray TestGitMerge::documentFile() const
{
    QFile file(m_folder + QStringLiteral("/objects/%1.json").arg(test::numberedId(1).toString()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestGitMerge::merge_data()
{
    QTest::addColumn<Draft>("local");
    QTest::addColumn<Draft>("remote");
    QTest::addColumn<bool>("clean");
    QTest::addColumn<Draft>("merged"); // when clean
    QTest::addColumn<QString>("inFile");
    QTest::addColumn<QString>("said");

    const QString nothing;
    Draft rewritten;
    rewritten.body = QStringLiteral("She counted the ships twice.");
    Draft both = rewritten;
    both.title = QStringLiteral("The Quay");
    QTest::newRow("different lines")
        << titled("The Quay") << rewritten << true << both << nothing << nothing;

    Draft revised;
    revised.status = QStringLiteral("Revised");
    Draft retold;
    retold.synopsis = QStringLiteral("A ship is missing.");
    both = revised;
    both.synopsis = retold.synopsis;
    QTest::newRow("neighbouring lines") << revised << retold << true << both << nothing << nothing;

    QTest::newRow("the same line alike") << titled("The Quay") << titled("The Quay") << true
                                         << titled("The Quay") << nothing << nothing;
    QTest::newRow("the same line") << titled("The Quay") << titled("The Pier") << false << Draft()
                                   << "<<<<<<< local\n    \"title\": \"The Quay\",\n=======\n"
                                      "    \"title\": \"The Pier\",\n>>>>>>> remote\n"
                                   << "CONFLICT";
    Draft broken;
    broken.isBroken = true;
    QTest::newRow("no valid JSON")
        << titled("The Quay") << broken << false << Draft() << "    \"title\": \"The Quay\",\n"
        << "' would not be valid";
}

void TestGitMerge::merge()
{
    QFETCH(Draft, local);
    QFETCH(Draft, remote);
    QFETCH(bool, clean);
    QFETCH(Draft, merged);
    QFETCH(QString, inFile);
    QFETCH(QString, said);

    m_git = QStandardPaths::findExecutable(QStringLiteral("git"));
    if (m_git.isEmpty())
        QSKIP("git is not installed");
    m_home = std::make_unique<QTemporaryDir>();
    prepare(m_home->filePath(QStringLiteral("un été")));
    commit(Draft(), "As it was");
    QCOMPARE(git({QStringLiteral("checkout"), QStringLiteral("-qb"), QStringLiteral("theirs")}), 0);
    commit(remote, "Theirs");
    QCOMPARE(git({QStringLiteral("checkout"), QStringLiteral("-q"), QStringLiteral("main")}), 0);
    commit(local, "Ours");

    const int status = git({QStringLiteral("merge"), QStringLiteral("-q"),
                            QStringLiteral("--no-edit"), QStringLiteral("theirs")});
    QVERIFY2(m_said.contains(said), qPrintable(m_said));
    QCOMPARE(status, clean ? 0 : 1);
    QVERIFY(documentFile().contains(inFile.toUtf8()));
    QCOMPARE(git({QStringLiteral("ls-files"), QStringLiteral("--unmerged")}), 0);
    QCOMPARE(m_said.isEmpty(), clean);
    if (!clean)
        return;
    const auto project = app::loadProject(m_folder);
    QVERIFY(project);
    const auto *document = (*project)->find<core::Document>(test::numberedId(1));
    QVERIFY(document);
    const Draft found{document->title(), document->status(), document->synopsis(),
                      document->body()};
    QCOMPARE(found, merged);
}

QTEST_GUILESS_MAIN(TestGitMerge)
#include "tst_gitmerge.moc"

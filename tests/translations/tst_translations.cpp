#include <QtCore/QProcess>
#include <QtCore/QXmlStreamReader>
#include <QtTest/QtTest>

namespace {

const QString root = QStringLiteral(IVOREL_SOURCE_DIR);

struct Message
{
    QStringList translations;
    bool isPlural = false;
    bool isFinished = true;
};

/// The messages of a catalogue by context and source text.
QMap<QString, Message> messagesOf(const QString &path)
{
    QMap<QString, Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    Message message;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::EndElement && xml.name() == u"message") {
            messages.insert(context + u'\n' + source, message);
            continue;
        }
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"message") {
            message = {};
            message.isPlural = xml.attributes().value(QLatin1String("numerus")) == u"yes";
        } else if (xml.name() == u"source") {
            source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
            if (!message.isPlural)
                message.translations.append(xml.readElementText());
        } else if (xml.name() == u"numerusform") {
            message.translations.append(xml.readElementText());
        }
    }
    return messages;
}

QStringList placeholdersIn(const QString &text)
{
    static const QRegularExpression placeholder(QStringLiteral("%(?:[1-9]|n)"));
    QStringList found;
    for (auto match = placeholder.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    found.removeDuplicates();
    found.sort();
    return found;
}

} // namespace

/// Every text of the program stands in both catalogues, finished and with its placeholders.
class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
};

void TestTranslations::everyTextIsTranslated_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::newRow("English") << root + QStringLiteral("/translations/ivorel_en.ts");
    QTest::newRow("Spanish") << root + QStringLiteral("/translations/ivorel_es.ts");
}

void TestTranslations::everyTextIsTranslated()
{
    QFETCH(QString, catalogue);
    QTemporaryDir dir;
    const QString fresh = dir.filePath(QStringLiteral("fresh.ts"));
    QProcess lupdate;
    lupdate.setWorkingDirectory(root);
    QStringList arguments{QStringLiteral("-locations"), QStringLiteral("none"),
                          QStringLiteral("-I"), QStringLiteral(".")};
    for (const char *folder : {"core", "app", "desktop", "cli"})
        arguments.append(QLatin1String(folder));
    lupdate.start(QStringLiteral(IVOREL_LUPDATE),
                  arguments + QStringList{QStringLiteral("-ts"), fresh});
    QVERIFY(lupdate.waitForFinished(120000));
    QCOMPARE(lupdate.exitCode(), 0);

    const QMap<QString, Message> wanted = messagesOf(fresh);
    const QMap<QString, Message> found = messagesOf(catalogue);
    QVERIFY(wanted.size() > 300);
    QStringList faults;
    for (auto text = wanted.cbegin(); text != wanted.cend(); ++text) {
        const auto entry = found.constFind(text.key());
        const QString source = text.key().section(u'\n', 1);
        if (entry == found.cend() || !entry->isFinished || entry->translations.isEmpty()
            || entry->translations.contains(QString())) {
            faults.append(QStringLiteral("not translated: ") + text.key());
            continue;
        }
        if (entry->isPlural && entry->translations.size() != 2)
            faults.append(QStringLiteral("not both plural forms: ") + source);
        for (const QString &translation : entry->translations)
            if (placeholdersIn(translation) != placeholdersIn(source))
                faults.append(QStringLiteral("other placeholders: ") + translation);
    }
    for (auto text = found.cbegin(); text != found.cend(); ++text)
        if (!wanted.contains(text.key()))
            faults.append(QStringLiteral("no longer in the program: ") + text.key());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"

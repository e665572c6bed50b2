#include "app/text/healthreport.h"

#include "app/text/entitymentions.h"
#include "app/text/markdownrenderer.h"
#include "app/text/prosestatistics.h"
#include "app/text/stylechecker.h"

#include <algorithm>
#include <array>
#include <map>

namespace vl::app {

namespace {

constexpr qint64 readingSpeed = 250;   // words a minute
constexpr qint64 wordsOnAPage = 250;   // of a manuscript in standard format
constexpr qsizetype longestTitle = 80; // UTF-16 units of a title in a table

/// User text as it may stand in a line, a heading or a table cell.
QString escaped(const QString &text)
{
    QString result;
    result.reserve(text.size() + 8);
    for (const QChar unit : text.simplified()) {
        if (QStringView(u"\\`*_~[]<>|#!").contains(unit))
            result += u'\\';
        result += unit;
    }
    return result;
}

QString number(double value, int decimals = 1)
{
    return QString::number(value, 'f', decimals);
}

QString percent(qint64 part, qint64 whole)
{
    return whole == 0 ? QStringLiteral("–") : number(100.0 * double(part) / double(whole)) + u'%';
}

double ratio(qint64 part, qint64 whole)
{
    return whole == 0 ? 0 : double(part) / double(whole);
}

/// Lines of Markdown as they are added.
class Page
{
public:
    void heading(const QString &text)
    {
        m_text += QLatin1String("\n## ") + text + QLatin1String("\n\n");
    }
    void line(const QString &text) { m_text += text + u'\n'; }
    void item(const QString &label, const QString &value)
    {
        m_text += QLatin1String("- **") + label + QLatin1String(":** ") + value + u'\n';
    }
    void row(const QStringList &cells)
    {
        m_text += QLatin1String("| ") + cells.join(QLatin1String(" | ")) + QLatin1String(" |\n");
    }
    /// The head of a table whose columns but the first hold figures when their name ends in "#".
    void tableHead(const QStringList &columns)
    {
        QStringList names;
        QStringList rules;
        for (const QString &column : columns) {
            const bool isFigure = column.endsWith(u'#');
            names.append(isFigure ? column.chopped(1) : column);
            rules.append(isFigure ? QStringLiteral("---:") : QStringLiteral("---"));
        }
        row(names);
        row(rules);
    }
    QString text() const { return m_text; }
    void append(const QString &text) { m_text += text; }

private:
    QString m_text;
};

struct Scene
{
    const HealthDocument *document = nullptr;
    ProseStatistics prose;
    QString title;
};

/// Writes the sections of one report.
class Writer
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::HealthReport)

public:
    explicit Writer(const HealthInput &input);
    QString write();

private:
    void writeOverview();
    void writeStatus();
    void writeDialogue();
    void writeReadability();
    void writePointsOfView();
    void writeCoverage();
    QString withWords(const Scene &scene) const
    {
        return tr("%1 (%2 words)").arg(scene.title, QString::number(scene.prose.words));
    }

    const HealthInput &m_input;
    std::vector<Scene> m_scenes;
    ProseStatistics m_total;
    Page m_page;
};

Writer::Writer(const HealthInput &input)
    : m_input(input)
{
    int position = 0;
    for (const HealthDocument &document : input.documents) {
        ++position;
        Scene scene{&document, measureProse(document.text), QString()};
        if (scene.prose.words == 0)
            continue;
        QString title = document.title.simplified();
        if (title.size() > longestTitle)
            title = title.left(longestTitle - 1) + u'…';
        scene.title = title.isEmpty() ? tr("Untitled (%1)").arg(position) : escaped(title);
        m_total += scene.prose;
        m_scenes.push_back(scene);
    }
}

QString Writer::write()
{
    const QString title = escaped(m_input.title);
    m_page.line(QLatin1String("# ")
                + (title.isEmpty() ? tr("Manuscript health report")
                                   : tr("Manuscript health report: %1").arg(title)));
    writeOverview();
    writeDialogue();
    writeReadability();
    writePointsOfView();
    m_page.line(QString());
    m_page.append(HealthReport::styleSection(m_input.documents));
    writeCoverage();
    return m_page.text();
}

void Writer::writeOverview()
{
    m_page.heading(tr("Overview"));
    m_page.item(tr("Words"), QString::number(m_total.words));
    m_page.item(tr("Scenes"), QString::number(m_scenes.size()));
    const qsizetype empty = m_input.documents.size() - qsizetype(m_scenes.size());
    if (empty > 0)
        m_page.item(tr("Documents without text"), QString::number(empty));
    if (m_scenes.empty())
        return;

    std::vector<qint64> lengths;
    for (const Scene &scene : m_scenes)
        lengths.push_back(scene.prose.words);
    std::sort(lengths.begin(), lengths.end());
    const size_t middle = lengths.size() / 2;
    const qint64 median =
        lengths.size() % 2 ? lengths[middle] : (lengths[middle - 1] + lengths[middle] + 1) / 2;
    const auto byWords = [](const Scene &a, const Scene &b) {
        return a.prose.words < b.prose.words;
    };
    m_page.item(tr("Average scene"),
                tr("%1 words").arg(qRound64(ratio(m_total.words, qint64(m_scenes.size())))));
    m_page.item(tr("Median scene"), tr("%1 words").arg(median));
    m_page.item(tr("Longest scene"),
                withWords(*std::max_element(m_scenes.begin(), m_scenes.end(), byWords)));
    m_page.item(tr("Shortest scene"),
                withWords(*std::min_element(m_scenes.begin(), m_scenes.end(), byWords)));
    const qint64 minutes = std::max<qint64>(1, (m_total.words + readingSpeed / 2) / readingSpeed);
    m_page.item(
        tr("Reading time"),
        minutes < 60
            ? tr("%1 min").arg(minutes)
            : tr("%1 h %2 min").arg(QString::number(minutes / 60), QString::number(minutes % 60)));
    m_page.item(tr("Manuscript pages"),
                QString::number((m_total.words + wordsOnAPage - 1) / wordsOnAPage));
    m_page.item(tr("Paragraphs"), QString::number(m_total.paragraphs));
    writeStatus();
}

void Writer::writeStatus()
{
    std::map<QString, std::pair<qint64, qint64>> byStatus; // scenes and words
    for (const Scene &scene : m_scenes) {
        auto &[scenes, words] = byStatus[scene.document->status.simplified()];
        ++scenes;
        words += scene.prose.words;
    }
    if (byStatus.size() == 1 && byStatus.begin()->first.isEmpty())
        return;
    m_page.line(QString());
    m_page.tableHead({tr("Status"), tr("Scenes") + u'#', tr("Words") + u'#', tr("Share") + u'#'});
    for (const auto &[status, counts] : byStatus)
        m_page.row({status.isEmpty() ? tr("(no status)") : escaped(status),
                    QString::number(counts.first), QString::number(counts.second),
                    percent(counts.second, m_total.words)});
}

void Writer::writeDialogue()
{
    m_page.heading(tr("Dialogue and narration"));
    if (m_total.proseWords() == 0)
        return m_page.line(tr("There is no prose to measure."));
    m_page.item(tr("Dialogue"), tr("%1 words (%2)")
                                    .arg(QString::number(m_total.spokenWords),
                                         percent(m_total.spokenWords, m_total.proseWords())));
    m_page.item(tr("Narration"), tr("%1 words (%2)")
                                     .arg(QString::number(m_total.narratedWords),
                                          percent(m_total.narratedWords, m_total.proseWords())));
    m_page.item(tr("Passages of speech"), QString::number(m_total.speeches));
    if (m_total.speeches > 0)
        m_page.item(tr("Words in a passage"), number(ratio(m_total.spokenWords, m_total.speeches)));

    qint64 silent = 0;
    for (const Scene &scene : m_scenes)
        silent += scene.prose.spokenWords == 0;
    m_page.item(tr("Scenes without dialogue"), QString::number(silent));
    if (m_scenes.size() < 2)
        return;
    const auto share = [](const Scene &scene) {
        return ratio(scene.prose.spokenWords, scene.prose.proseWords());
    };
    const auto [least, most] =
        std::minmax_element(m_scenes.begin(), m_scenes.end(),
                            [&](const Scene &a, const Scene &b) { return share(a) < share(b); });
    const auto named = [](const Scene &scene) {
        return tr("%1 (%2)").arg(scene.title,
                                 percent(scene.prose.spokenWords, scene.prose.proseWords()));
    };
    m_page.item(tr("Most dialogue"), named(*most));
    m_page.item(tr("Least dialogue"), named(*least));
}

/// Flesch reading ease: 100 is very easy, 0 very hard.
double readingEase(const ProseStatistics &prose)
{
    return 206.835 - 1.015 * ratio(prose.proseWords(), prose.sentences)
           - 84.6 * ratio(prose.syllables, prose.proseWords());
}

QString easeName(double ease)
{
    static constexpr std::array<std::pair<int, const char *>, 6> names = {{
        {90, QT_TRANSLATE_NOOP("vl::app::HealthReport", "very easy")},
        {80, QT_TRANSLATE_NOOP("vl::app::HealthReport", "easy")},
        {70, QT_TRANSLATE_NOOP("vl::app::HealthReport", "fairly easy")},
        {60, QT_TRANSLATE_NOOP("vl::app::HealthReport", "plain")},
        {50, QT_TRANSLATE_NOOP("vl::app::HealthReport", "fairly hard")},
        {30, QT_TRANSLATE_NOOP("vl::app::HealthReport", "hard")},
    }};
    for (const auto &[lowest, name] : names) {
        if (ease >= lowest)
            return HealthReport::tr(name);
    }
    return HealthReport::tr("very hard");
}

void Writer::writeReadability()
{
    m_page.heading(tr("Readability"));
    const qint64 words = m_total.proseWords();
    if (words == 0)
        return m_page.line(tr("There is no prose to measure."));
    m_page.item(tr("Sentences"), QString::number(m_total.sentences));
    m_page.item(tr("Words in a sentence"), number(ratio(words, m_total.sentences)));
    m_page.item(tr("Longest sentence"), tr("%1 words").arg(m_total.longestSentence));
    m_page.item(tr("Sentences in a paragraph"),
                number(ratio(m_total.sentences, m_total.paragraphs)));
    m_page.item(tr("Syllables in a word"), number(ratio(m_total.syllables, words), 2));
    m_page.item(tr("Words of three syllables or more"), percent(m_total.longWords, words));
    const double ease = readingEase(m_total);
    m_page.item(tr("Flesch reading ease"), tr("%1 (%2)").arg(number(ease), easeName(ease)));
    const double grade =
        0.39 * ratio(words, m_total.sentences) + 11.8 * ratio(m_total.syllables, words) - 15.59;
    m_page.item(tr("Flesch–Kincaid grade"), number(std::max(0.0, grade)));
    m_page.item(
        tr("Gunning fog index"),
        number(0.4 * (ratio(words, m_total.sentences) + 100 * ratio(m_total.longWords, words))));
    if (m_scenes.size() < 2)
        return;
    const Scene *hardest = nullptr;
    const Scene *easiest = nullptr;
    for (const Scene &scene : m_scenes) {
        if (scene.prose.sentences == 0)
            continue;
        if (!hardest || readingEase(scene.prose) < readingEase(hardest->prose))
            hardest = &scene;
        if (!easiest || readingEase(scene.prose) > readingEase(easiest->prose))
            easiest = &scene;
    }
    if (!hardest)
        return;
    m_page.item(tr("Easiest scene"),
                tr("%1 (%2)").arg(easiest->title, number(readingEase(easiest->prose))));
    m_page.item(tr("Hardest scene"),
                tr("%1 (%2)").arg(hardest->title, number(readingEase(hardest->prose))));
}

void Writer::writePointsOfView()
{
    struct View
    {
        QString name;
        qint64 scenes = 0;
        qint64 words = 0;
        qint64 longestRun = 0;
    };
    std::map<QString, View> byName;
    QString previous;
    qint64 run = 0;
    for (const Scene &scene : m_scenes) {
        const QString name = scene.document->pointOfView.simplified();
        View &view = byName[name];
        view.name = name;
        ++view.scenes;
        view.words += scene.prose.words;
        run = run > 0 && name == previous ? run + 1 : 1;
        previous = name;
        view.longestRun = std::max(view.longestRun, run);
    }
    m_page.heading(tr("Point-of-view balance"));
    if (byName.empty() || (byName.size() == 1 && previous.isEmpty()))
        return m_page.line(tr("No scene names a point of view."));
    std::vector<View> views;
    views.reserve(byName.size());
    for (const auto &[name, view] : byName)
        views.push_back(view);
    std::stable_sort(views.begin(), views.end(),
                     [](const View &a, const View &b) { return a.words > b.words; });
    m_page.tableHead({tr("Point of view"), tr("Scenes") + u'#', tr("Words") + u'#',
                      tr("Share") + u'#', tr("Average scene") + u'#', tr("Longest run") + u'#'});
    for (const View &view : views)
        m_page.row({view.name.isEmpty() ? tr("(none)") : escaped(view.name),
                    QString::number(view.scenes), QString::number(view.words),
                    percent(view.words, m_total.words),
                    QString::number(qRound64(ratio(view.words, view.scenes))),
                    QString::number(view.longestRun)});
    m_page.line(QString());
    m_page.line(tr("The longest run counts scenes in a row from one point of view."));
}

struct Coverage
{
    qint64 mentions = 0;
    qint64 scenes = 0;
    const Scene *first = nullptr;
    const Scene *last = nullptr;
};

std::vector<Coverage> findCoverage(const QList<HealthEntity> &entities,
                                   const std::vector<Scene> &scenes)
{
    NameFinder finder;
    for (qsizetype i = 0; i < entities.size(); ++i) {
        finder.add(entities[i].name, int(i));
        for (const QString &alias : entities[i].aliases)
            finder.add(alias, int(i));
    }
    std::vector<Coverage> coverage(size_t(entities.size()));
    for (const Scene &scene : scenes) {
        const QHash<int, qint64> counts = finder.count(scene.document->text);
        for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
            Coverage &found = coverage[size_t(it.key())];
            found.mentions += it.value();
            ++found.scenes;
            if (!found.first)
                found.first = &scene;
            found.last = &scene;
        }
    }
    return coverage;
}

void Writer::writeCoverage()
{
    m_page.heading(tr("World coverage"));
    const QList<HealthEntity> &entities = m_input.entities;
    if (entities.isEmpty())
        return m_page.line(tr("The codex has no entities."));
    const std::vector<Coverage> coverage = findCoverage(entities, m_scenes);
    const qint64 mentioned = std::count_if(
        coverage.begin(), coverage.end(), [](const Coverage &found) { return found.mentions > 0; });
    m_page.item(tr("Entities"), QString::number(entities.size()));
    m_page.item(tr("Mentioned"),
                tr("%1 (%2)").arg(QString::number(mentioned), percent(mentioned, entities.size())));
    m_page.item(tr("Never mentioned"), QString::number(entities.size() - mentioned));
    for (qsizetype start = 0; start < entities.size();) {
        qsizetype end = start;
        std::vector<qsizetype> named;
        QStringList unnamed;
        for (; end < entities.size() && entities[end].category == entities[start].category; ++end) {
            if (coverage[size_t(end)].mentions > 0)
                named.push_back(end);
            else
                unnamed.append(escaped(entities[end].name));
        }
        std::stable_sort(named.begin(), named.end(), [&](qsizetype a, qsizetype b) {
            return coverage[size_t(a)].mentions > coverage[size_t(b)].mentions;
        });
        const QString category = escaped(entities[start].category);
        m_page.line(QString());
        m_page.line(QLatin1String("### ")
                    + (category.isEmpty() ? tr("Without a category") : category));
        m_page.line(QString());
        if (!named.empty()) {
            m_page.tableHead({tr("Entity"), tr("Mentions") + u'#', tr("Scenes") + u'#',
                              tr("First scene"), tr("Last scene")});
            for (const qsizetype index : named) {
                const Coverage &found = coverage[size_t(index)];
                m_page.row({escaped(entities[index].name), QString::number(found.mentions),
                            QString::number(found.scenes), found.first->title, found.last->title});
            }
        }
        if (!unnamed.isEmpty()) {
            if (!named.empty())
                m_page.line(QString());
            m_page.line(tr("Never mentioned: %1").arg(unnamed.join(QLatin1String(", "))));
        }
        start = end;
    }
}

} // namespace

QString HealthReport::styleSection(const QList<HealthDocument> &documents)
{
    const StyleChecker checker;
    std::map<int, qint64> counts;
    qint64 total = 0;
    for (const HealthDocument &document : documents) {
        for (const StyleIssue &issue : checker.check(document.text)) {
            ++counts[issue.kind];
            ++total;
        }
    }
    QString section = QLatin1String("## ") + tr("Writing style") + QLatin1String("\n\n");
    if (total == 0)
        return section + tr("No style issues flagged.") + u'\n';
    section += tr("| Category | Issues |") + QLatin1String("\n| --- | --- |\n");
    for (const auto &[kind, count] : counts)
        section +=
            QStringLiteral("| %1 | %2 |\n").arg(styleCategoryName(kind), QString::number(count));
    return section + tr("| **Total** | %1 |").arg(total) + u'\n';
}

QString HealthReport::toMarkdown(const HealthInput &input)
{
    return Writer(input).write();
}

QString HealthReport::toHtml(const HealthInput &input)
{
    const QString title = input.title.simplified();
    const QString heading = title.isEmpty() ? tr("Manuscript health report")
                                            : tr("Manuscript health report: %1").arg(title);
    return QStringLiteral(
               "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>%1</title>\n"
               "<style>\n"
               "body { font-family: serif; max-width: 50em; margin: 2em auto; padding: 0 1em; }\n"
               "table { border-collapse: collapse; }\n"
               "th, td { border: 1px solid #999; padding: 0.2em 0.6em; text-align: left; }\n"
               "</style>\n</head>\n<body>\n%2</body>\n</html>\n")
        .arg(heading.toHtmlEscaped(), MarkdownRenderer::toHtml(toMarkdown(input)));
}

} // namespace vl::app

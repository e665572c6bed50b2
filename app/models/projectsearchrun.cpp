#include "app/models/projectsearchrun.h"

#include <QtCore/QElapsedTimer>

#include <algorithm>

namespace vl::app {

namespace {

constexpr qsizetype contextBefore = 40; // UTF-16 units
constexpr qsizetype contextAfter = 160;
constexpr qsizetype longestShown = 400; // of a match
constexpr int batchMilliseconds = 40;
constexpr size_t batchFindings = 500;
const QString ellipsis = QStringLiteral("…");

SearchBatch::Finding findingOf(const QString &text, std::size_t number, SearchMatch match)
{
    const qsizetype start = match.position;
    const qsizetype end = start + match.length;
    const qsizetype lineStart = start > 0 ? text.lastIndexOf(u'\n', start - 1) + 1 : 0;
    const qsizetype lineEnd = text.indexOf(u'\n', end);
    qsizetype from = std::max(lineStart, start - contextBefore);
    if (from > lineStart) {
        // From the start of a word, so that no word reads as another.
        qsizetype word = from;
        while (word < start && !text[word].isSpace())
            ++word;
        from = word < start ? word + 1 : from;
        if (from < text.size() && text[from].isLowSurrogate())
            ++from;
    }
    qsizetype to = std::min(lineEnd < 0 ? text.size() : lineEnd, end + contextAfter);
    if (to < text.size() && text[to].isLowSurrogate())
        --to;
    SearchBatch::Finding finding;
    finding.text = number;
    finding.before = (from > lineStart ? ellipsis : QString())
                     + onOneLine(QStringView(text).mid(from, std::max<qsizetype>(start - from, 0)));
    finding.matched = onOneLine(QStringView(text).mid(start, std::min(match.length, longestShown)));
    finding.after = onOneLine(QStringView(text).mid(end, std::max<qsizetype>(to - end, 0)));
    finding.match = std::move(match);
    return finding;
}

} // namespace

QString onOneLine(QStringView text)
{
    QString line = text.toString();
    for (QChar &c : line) {
        if (c == u'\n')
            c = u'↵';
        else if (c.isSpace() || c.category() == QChar::Other_Control)
            c = u' ';
    }
    return line;
}

void runSearch(QPromise<SearchBatch> &promise, const std::vector<SearchText> &texts,
               const SearchPattern &pattern, int maximumPlaces)
{
    promise.setProgressRange(0, int(texts.size()));
    SearchBatch batch;
    int places = 0;
    QElapsedTimer sinceBatch;
    sinceBatch.start();
    const auto hand = [&] {
        if (!batch.findings.empty() || batch.isCut || batch.tooComplex)
            promise.addResult(std::exchange(batch, {}));
        sinceBatch.restart();
    };
    const auto isCancelled = [&promise] { return promise.isCanceled(); };
    for (size_t i = 0; i < texts.size() && !promise.isCanceled() && !batch.isCut; ++i) {
        const QString &text = texts[i].text;
        const auto receive = [&](SearchMatch match) {
            batch.isCut = places == maximumPlaces;
            if (batch.isCut)
                return false;
            ++places;
            batch.findings.push_back(findingOf(text, i, std::move(match)));
            if (batch.findings.size() >= batchFindings)
                hand();
            return true;
        };
        if (pattern.find(text, receive, isCancelled) == SearchPattern::Outcome::TooComplex) {
            batch.tooComplex = i;
            break;
        }
        if (sinceBatch.elapsed() > batchMilliseconds) {
            promise.setProgressValue(int(i));
            hand();
        }
    }
    hand();
}

} // namespace vl::app

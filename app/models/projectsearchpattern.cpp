#include "app/models/projectsearchpattern.h"

#include <algorithm>

namespace vl::app {

namespace {

// Steps that the matcher may take from one place of a text: far more than any expression needs
// that was meant to be matched, and reached within a moment by one that doubles its work with each
// letter.
const QLatin1String limits("(*LIMIT_MATCH=100000)(*LIMIT_DEPTH=5000)");

QString escaped(const QString &pattern)
{
    QString source;
    for (const QChar c : pattern) {
        if (c == u'\'')
            source += QStringLiteral("['\u2018\u2019\u02bc]");
        else if (c == u'"')
            source += QStringLiteral("[\"\u201c\u201d\u201e\u00ab\u00bb]");
        else if (c == u' ')
            source += QStringLiteral("[ \u00a0\u202f]");
        else
            source += c.isSurrogate() ? QString(c) : QRegularExpression::escape(QString(c));
    }
    return source;
}

/// The text with a replacement character for each lone half of a surrogate pair; its length stays.
QString withoutLoneSurrogates(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!text[i].isSurrogate())
            continue;
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            ++i;
        else
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

/// Where the stretch that begins at a place ends: behind a paragraph, or before a sign that is not
/// cut in two.
qsizetype stretchEnd(const QString &text, qsizetype start)
{
    if (text.size() - start <= SearchPattern::stretch)
        return text.size();
    const qsizetype paragraphEnd = text.indexOf(u'\n', start + SearchPattern::stretch);
    qsizetype end = paragraphEnd < 0 ? text.size() : paragraphEnd + 1;
    while (end < text.size() && (text[end] == u'\n' || text[end] == u'\r'))
        ++end; // empty lines are searched for as a whole
    if (end - start > SearchPattern::longestStretch) {
        end = start + SearchPattern::longestStretch;
        if (text[end].isLowSurrogate())
            --end;
    }
    return end;
}

QString inCaseOf(const QString &model, const QString &text)
{
    const auto isLetter = [](QChar c) { return c.isLetter(); };
    const auto first = std::find_if(model.begin(), model.end(), isLetter);
    if (first == model.end() || !first->isUpper())
        return text;
    const bool hasLower =
        std::any_of(model.begin(), model.end(), [](QChar c) { return c.isLower(); });
    const auto letters = std::count_if(model.begin(), model.end(), isLetter);
    if (!hasLower && letters > 1)
        return text.toUpper();
    QString capitalised = text;
    const auto letter = std::find_if(capitalised.begin(), capitalised.end(), isLetter);
    if (letter != capitalised.end())
        *letter = letter->toUpper();
    return capitalised;
}

QString expanded(const QString &replacement, const QStringList &groups)
{
    QString text;
    for (qsizetype i = 0; i < replacement.size(); ++i) {
        const QChar c = replacement[i];
        const QChar next = i + 1 < replacement.size() ? replacement[i + 1] : QChar();
        const bool isSign = c == u'\\' || c == u'$';
        const auto digit = [](QChar d) { return d >= u'0' && d <= u'9'; };
        if (isSign && digit(next)) {
            int group = next.digitValue();
            ++i;
            if (i + 1 < replacement.size() && digit(replacement[i + 1])
                && group * 10 + replacement[i + 1].digitValue() < groups.size())
                group = group * 10 + replacement[++i].digitValue();
            text += groups.value(group);
        } else if (isSign && next == c) {
            text += c;
            ++i;
        } else if (c == u'$' && next == u'&') {
            text += groups.value(0);
            ++i;
        } else if (c == u'\\' && (next == u'n' || next == u't')) {
            text += next == u'n' ? u'\n' : u'\t';
            ++i;
        } else {
            text += c;
        }
    }
    return text;
}

} // namespace

Result<SearchPattern> SearchPattern::compile(const SearchOptions &options)
{
    if (options.pattern.size() > maximumLength)
        return failure(tr("What is searched for is too long."));
    if (options.pattern.isEmpty())
        return failure(tr("There is nothing to search for."));
    QString before = limits;
    QString source = options.isExpression ? options.pattern : escaped(options.pattern);
    QString after;
    if (options.wholeWords) {
        // Next to a sign of the text searched for there may be anything.
        const auto needsEdge = [&options](QChar c) {
            return options.isExpression || c.isLetterOrNumber() || c.isSurrogate() || c == u'_';
        };
        if (needsEdge(options.pattern.front()))
            before += QStringLiteral("(?<![\\w\\p{M}])");
        before += QStringLiteral("(?:");
        after = QStringLiteral(")");
        if (needsEdge(options.pattern.back()))
            after += QStringLiteral("(?![\\w\\p{M}])");
    }
    QRegularExpression::PatternOptions flags =
        QRegularExpression::UseUnicodePropertiesOption | QRegularExpression::MultilineOption;
    flags.setFlag(QRegularExpression::CaseInsensitiveOption, !options.isCaseSensitive);
    SearchPattern pattern;
    pattern.m_isExpression = options.isExpression;
    pattern.m_expression = QRegularExpression(before + source + after, flags);
    if (!pattern.m_expression.isValid()) {
        const qsizetype place = pattern.m_expression.patternErrorOffset() - before.size();
        return failure(tr("The expression is not complete at character %1: %2.")
                           .arg(qBound<qsizetype>(0, place, options.pattern.size()) + 1)
                           .arg(pattern.m_expression.errorString()));
    }
    pattern.m_expression.optimize();
    return pattern;
}

SearchPattern::Outcome SearchPattern::findIn(const QString &text, qsizetype offset,
                                             const std::function<bool(SearchMatch)> &receive,
                                             const std::function<bool()> &isCancelled) const
{
    qsizetype at = 0;
    int sinceCheck = 0;
    while (at <= text.size()) {
        const QRegularExpressionMatch match =
            m_expression.match(text, at, QRegularExpression::NormalMatch,
                               QRegularExpression::DontCheckSubjectStringMatchOption);
        if (!match.isValid())
            return Outcome::TooComplex;
        if (!match.hasMatch())
            break;
        at = match.capturedEnd();
        if (match.capturedLength() == 0) { // nothing to show and nothing to replace
            at += at < text.size() && text[at].isHighSurrogate() ? 2 : 1;
            continue;
        }
        SearchMatch found{offset + match.capturedStart(), match.capturedLength(), {}};
        if (m_isExpression)
            found.groups = match.capturedTexts();
        if (!receive(std::move(found)) || (++sinceCheck % 256 == 0 && isCancelled && isCancelled()))
            return Outcome::Stopped;
    }
    return Outcome::Done;
}

SearchPattern::Outcome SearchPattern::find(const QString &text,
                                           const std::function<bool(SearchMatch)> &receive,
                                           const std::function<bool()> &isCancelled) const
{
    const QString sound = text.isValidUtf16() ? text : withoutLoneSurrogates(text);
    if (!m_isExpression)
        return findIn(sound, 0, receive, isCancelled);
    for (qsizetype start = 0; start < sound.size();) {
        if (isCancelled && isCancelled())
            return Outcome::Stopped;
        const qsizetype end = stretchEnd(sound, start);
        const bool isWhole = start == 0 && end == sound.size();
        const Outcome outcome =
            findIn(isWhole ? sound : sound.mid(start, end - start), start, receive, isCancelled);
        if (outcome != Outcome::Done)
            return outcome;
        start = end;
    }
    return Outcome::Done;
}

QString replacementFor(const SearchMatch &match, const QString &matched, const QString &replacement,
                       bool isExpression, bool keepsCase)
{
    const QString text = isExpression ? expanded(replacement, match.groups) : replacement;
    return keepsCase ? inCaseOf(matched, text) : text;
}

} // namespace vl::app

#include "app/models/fuzzy.h"

#include <QtCore/QVarLengthArray>

#include <algorithm>

namespace vl::app {

namespace {

// What one letter is worth, and what it gains and loses by where it stands. A run of letters from
// the start of a word beats the same letters picked from several words.
constexpr int matchWorth = 16;
constexpr int runWorth = 9;
constexpr int gapStartCost = 4;
constexpr int gapCost = 1;
constexpr qint8 textStartBonus = 14;
constexpr qint8 wordStartBonus = 10;
constexpr qint8 humpBonus = 6;
constexpr int wholeTextBonus = 24;
constexpr int leastWorth = 17; ///< a letter, on average; below it the match is an accident
constexpr int mistakeCost = 24;
constexpr qsizetype leastWithMistake = 4; ///< letters of a word that may hold a mistake
constexpr int impossible = -100000;

bool isAccent(QChar c)
{
    return c.combiningClass() != 0;
}

/// The letter without its accents, where it is one letter with accents.
QChar withoutAccents(QChar c)
{
    while (c.decompositionTag() == QChar::Canonical) {
        const QString parts = c.decomposition();
        if (parts.isEmpty() || parts.front().isSurrogate()
            || !std::all_of(parts.begin() + 1, parts.end(), isAccent))
            break;
        c = parts.front();
    }
    return c;
}

QChar foldedLetter(QChar c)
{
    if (c.unicode() < 128)
        return c.toLower();
    if (c.isSurrogate())
        return c;
    const QChar plain = withoutAccents(c).toCaseFolded();
    // Letters that many keyboards lack and that do not decompose, and typographic signs.
    switch (plain.unicode()) {
    case u'ø':
    case u'œ':
        return u'o';
    case u'ł':
        return u'l';
    case u'đ':
    case u'ð':
        return u'd';
    case u'þ':
        return u't';
    case u'ı':
        return u'i';
    case u'ß':
        return u's';
    case u'æ':
        return u'a';
    case u'\u2019':
    case u'\u2018':
        return u'\'';
    case u'\u2013':
    case u'\u2014':
    case u'\u2010':
        return u'-';
    default:
        return plain.isSpace() ? QChar(u' ') : plain;
    }
}

bool joins(QChar c)
{
    return c.isLetterOrNumber() || c.isSurrogate() || isAccent(c);
}

quint64 letterBit(QChar c)
{
    return quint64(1) << (c.unicode() % 64);
}

qint8 bonusAt(QStringView text, qsizetype place)
{
    if (place == 0)
        return textStartBonus;
    const QChar before = text[place - 1];
    const QChar here = text[place];
    if (here.isLowSurrogate())
        return 0;
    if (!joins(before))
        return joins(here) ? wordStartBonus : qint8(0);
    const bool isHump =
        (before.isLower() && here.isUpper()) || (before.isLetter() && here.isDigit());
    return isHump ? humpBonus : qint8(0);
}

} // namespace

FuzzyText::FuzzyText(QStringView text)
{
    const QStringView read = text.left(maximumLength);
    m_folded.reserve(read.size());
    m_bonus.reserve(size_t(read.size()));
    for (qsizetype i = 0; i < read.size(); ++i) {
        const QChar c = foldedLetter(read[i]);
        m_folded.append(c);
        m_bonus.push_back(bonusAt(read, i));
        m_letters |= letterBit(c);
    }
}

FuzzyWord::FuzzyWord(QStringView word)
{
    for (const QChar c : word.left(maximumLength)) {
        if (isAccent(c))
            continue; // the folded text has none on its letters either
        m_folded.append(foldedLetter(c));
        m_letters |= letterBit(m_folded.back());
    }
}

FuzzyWord FuzzyWord::without(qsizetype place) const
{
    return FuzzyWord(QString(m_folded).remove(place, 1));
}

bool FuzzyWord::mayMatch(const FuzzyText &text) const
{
    if (m_letters & ~text.m_letters)
        return false;
    qsizetype at = 0;
    for (const QChar c : m_folded) {
        at = text.m_folded.indexOf(c, at);
        if (at < 0)
            return false;
        ++at;
    }
    return true;
}

std::optional<int> FuzzyWord::align(const FuzzyText &text, std::vector<int> *places) const
{
    const auto letters = size_t(m_folded.size());
    const auto units = size_t(text.m_folded.size());
    // By letter and place: the worth of the best match of all letters up to this one that ends at
    // this place, and where the letter before it stands then. Without places two rows would do,
    // but a row each keeps the way back and is small.
    QVarLengthArray<int, 2048> worth(qsizetype(letters * units));
    QVarLengthArray<qint16, 2048> from(qsizetype(letters * units));
    for (size_t i = 0; i < letters; ++i) {
        const QChar letter = m_folded[qsizetype(i)];
        int bestBefore = impossible; // of the letter before, at least one place away, gap paid
        qint16 bestFrom = -1;
        for (size_t j = 0; j < units; ++j) {
            const auto here = qsizetype(i * units + j);
            if (i > 0 && j >= 2) {
                const int opened = worth[here - qsizetype(units) - 2] - gapStartCost;
                bestBefore -= gapCost;
                if (opened > bestBefore) {
                    bestBefore = opened;
                    bestFrom = qint16(j - 2);
                }
            }
            worth[here] = impossible;
            from[here] = -1;
            if (text.m_folded[qsizetype(j)] != letter)
                continue;
            const int own = matchWorth + text.m_bonus[j];
            if (i == 0) {
                worth[here] = own;
                continue;
            }
            const int run = j > 0 ? worth[here - qsizetype(units) - 1] : impossible;
            const bool isPairEnd = letter.isLowSurrogate(); // half a sign is no match
            const int continued = run + matchWorth + std::max<int>(runWorth, text.m_bonus[j]);
            const int jumped = isPairEnd ? impossible : bestBefore + own;
            const bool runs = continued >= jumped;
            if (std::max(continued, jumped) <= 0)
                continue;
            worth[here] = runs ? continued : jumped;
            from[here] = runs ? qint16(j - 1) : bestFrom;
        }
    }
    const auto lastRow = worth.cend() - qsizetype(units);
    const auto best = std::max_element(lastRow, worth.cend());
    if (*best <= 0)
        return {};
    if (places) {
        auto place = int(best - lastRow);
        for (auto i = int(letters) - 1; i >= 0; --i) {
            places->push_back(place);
            place = from[i * qsizetype(units) + place];
        }
        std::reverse(places->begin(), places->end());
    }
    return *best;
}

std::optional<int> FuzzyWord::score(const FuzzyText &text) const
{
    if (m_folded.isEmpty() || !mayMatch(text))
        return {};
    const std::optional<int> worth = align(text, nullptr);
    if (!worth || (m_folded.size() > 1 && *worth < leastWorth * m_folded.size()))
        return {};
    return *worth + (m_folded == text.m_folded ? wholeTextBonus : 0);
}

std::optional<int> FuzzyWord::scoreWithMistake(const FuzzyText &text) const
{
    std::optional<int> best = score(text);
    if (best || m_folded.size() < leastWithMistake)
        return best;
    // Letters too many, wrong ones and swapped ones all match without one letter; letters left out
    // match anyway.
    for (qsizetype i = 0; i < m_folded.size(); ++i) {
        const std::optional<int> found = without(i).score(text);
        if (found && *found - mistakeCost > best.value_or(0))
            best = *found - mistakeCost;
    }
    return best;
}

QList<int> FuzzyWord::places(const FuzzyText &text) const
{
    std::vector<int> list;
    if (score(text)) {
        align(text, &list);
        return {list.begin(), list.end()};
    }
    std::optional<int> best;
    for (qsizetype i = 0; m_folded.size() >= leastWithMistake && i < m_folded.size(); ++i) {
        const FuzzyWord rest = without(i);
        const std::optional<int> found = rest.score(text);
        if (found && found > best) {
            best = found;
            list.clear();
            rest.align(text, &list);
        }
    }
    return {list.begin(), list.end()};
}

QList<FuzzyWord> fuzzyWords(QStringView query)
{
    QList<FuzzyWord> words;
    const auto parts = query.split(u' ', Qt::SkipEmptyParts);
    for (const QStringView part : parts) {
        FuzzyWord word(part.trimmed());
        if (!word.folded().isEmpty())
            words.append(std::move(word));
    }
    return words;
}

} // namespace vl::app

#include "app/text/prosestatistics.h"

#include "app/base/wordcount.h"
#include "app/text/markdowntext.h"

#include <algorithm>

namespace vl::app {

namespace {

bool isVowel(char16_t unit)
{
    switch (unit) {
    case u'a':
    case u'e':
    case u'i':
    case u'o':
    case u'u':
    case u'y':
        return true;
    default:
        return false;
    }
}

/// The plain small letter of a letter with or without an accent.
char16_t plainLetter(QChar letter)
{
    QChar lower = letter.toLower();
    if (lower.unicode() >= 0x80 && lower.decompositionTag() == QChar::Canonical)
        lower = lower.decomposition().front();
    return lower.unicode();
}

bool endsWithAny(const QString &word, std::initializer_list<QLatin1String> endings)
{
    return std::any_of(endings.begin(), endings.end(),
                       [&word](QLatin1String ending) { return word.endsWith(ending); });
}

/// Whether the final "e", "es" or "ed" of a word of several vowel groups is not spoken.
bool hasSilentEnding(const QString &word)
{
    if (word.size() < 3)
        return false;
    const auto before = [&word](qsizetype fromEnd) {
        return word[word.size() - fromEnd].unicode();
    };
    if (word.endsWith(u'e'))
        return !isVowel(before(2)) && !(before(2) == u'l' && !isVowel(before(3)));
    if (word.endsWith(QLatin1String("ed")))
        return !isVowel(before(3)) && before(3) != u't' && before(3) != u'd';
    if (word.endsWith(QLatin1String("es")))
        return !isVowel(before(3))
               && !endsWithAny(word,
                               {QLatin1String("ses"), QLatin1String("zes"), QLatin1String("xes"),
                                QLatin1String("ches"), QLatin1String("shes"), QLatin1String("ges"),
                                QLatin1String("ces"), QLatin1String("les")});
    return false;
}

/// Walks over the lines of a text and keeps the state that reaches from one to the next.
class ProseMeter
{
public:
    explicit ProseMeter(ProseStatistics &result)
        : m_result(result)
    {
    }

    void readLine(QStringView line)
    {
        const QStringView content = line.trimmed();
        if (content.isEmpty())
            return endParagraph();
        if (isHeading(content))
            return endParagraph();
        m_line = content;
        for (m_at = 0; m_at < m_line.size();) {
            const QChar unit = m_line[m_at];
            if (isWordUnit(m_at)) {
                readWord();
                continue;
            }
            if (unit == u'.' || unit == u'!' || unit == u'?' || unit == u'\u2026')
                readSentenceEnd();
            else
                readQuotationMark(unit);
            ++m_at;
        }
        m_lastWord = QStringView();
    }

    void endParagraph()
    {
        endSentence();
        if (m_hasWords)
            ++m_result.paragraphs;
        m_hasWords = false;
        m_closing = QChar();
    }

private:
    static bool isHeading(QStringView content)
    {
        qsizetype marks = 0;
        while (marks < content.size() && content[marks] == u'#')
            ++marks;
        return marks > 0 && marks <= 6 && marks < content.size() && content[marks].isSpace();
    }

    QChar unitAt(qsizetype at) const
    {
        return at >= 0 && at < m_line.size() ? m_line[at] : QChar(u' ');
    }
    bool isWordUnit(qsizetype at) const
    {
        const QChar unit = unitAt(at);
        return unit.isLetterOrNumber() || unit.isMark() || unit.isSurrogate();
    }

    void readWord();
    void countWord(QStringView word);
    void readSentenceEnd();
    void endSentence();
    void readQuotationMark(QChar mark);
    void openSpeech(QChar closing)
    {
        m_closing = closing;
        ++m_result.speeches;
    }

    ProseStatistics &m_result;
    QStringView m_line;
    qsizetype m_at = 0;
    QStringView m_lastWord; ///< on this line
    qint64 m_sentenceWords = 0;
    bool m_hasWords = false; ///< in this paragraph
    QChar m_closing;         ///< the mark that ends the speech; null outside of one
};

void ProseMeter::readWord()
{
    const qsizetype start = m_at;
    const auto isJoint = [this](qsizetype at) {
        const QChar unit = unitAt(at);
        return (unit == u'\'' || unit == u'\u2019' || unit == u'-' || unit == u'.' || unit == u',')
               && isWordUnit(at - 1) && isWordUnit(at + 1);
    };
    while (m_at < m_line.size() && (isWordUnit(m_at) || isJoint(m_at)))
        ++m_at;
    countWord(m_line.sliced(start, m_at - start));
}

void ProseMeter::countWord(QStringView word)
{
    const int syllables = countSyllables(word);
    m_result.syllables += syllables;
    m_result.longWords += syllables >= 3;
    ++(m_closing.isNull() ? m_result.narratedWords : m_result.spokenWords);
    ++m_sentenceWords;
    m_hasWords = true;
    m_lastWord = word;
}

void ProseMeter::readSentenceEnd()
{
    static const QStringView titles[] = {u"Mr",   u"Mrs", u"Ms",  u"Dr",  u"St",  u"Prof",
                                         u"Capt", u"Col", u"Gen", u"Lt",  u"Sgt", u"Rev",
                                         u"Hon",  u"Jr",  u"Mme", u"Mlle"};
    const bool isPoint = m_line[m_at] == u'.';
    const bool endsWord = isWordUnit(m_at - 1);
    if (isPoint && endsWord
        && (std::find(std::begin(titles), std::end(titles), m_lastWord) != std::end(titles)
            || (m_lastWord.size() == 1 && m_lastWord[0].isUpper() && m_lastWord[0] != u'I')))
        return;
    // Closing marks belong to the sentence; a small letter behind them goes on with it.
    qsizetype next = m_at + 1;
    while (next < m_line.size() && !m_line[next].isSpace() && !isWordUnit(next))
        ++next;
    while (next < m_line.size() && m_line[next].isSpace())
        ++next;
    if (next >= m_line.size() || !m_line[next].isLower())
        endSentence();
}

void ProseMeter::endSentence()
{
    if (m_sentenceWords == 0)
        return;
    ++m_result.sentences;
    m_result.longestSentence = std::max(m_result.longestSentence, m_sentenceWords);
    m_sentenceWords = 0;
}

void ProseMeter::readQuotationMark(QChar mark)
{
    const bool isApostrophe = mark == u'\u2019' && isWordUnit(m_at + 1);
    if (!m_closing.isNull()) {
        const bool closesLowered = m_closing == u'\u201C' && mark == u'\u201D'; // „…”
        const bool closes = (mark == m_closing && !isApostrophe) || closesLowered;
        // A straight mark in front of a word opens the next paragraph of the same speech.
        const bool opensAgain =
            mark == u'"' && unitAt(m_at - 1).isSpace() && !unitAt(m_at + 1).isSpace();
        if (closes && !opensAgain)
            m_closing = QChar();
        return;
    }
    switch (mark.unicode()) {
    case u'"':
        return openSpeech(u'"');
    case u'\u201C':
        return openSpeech(u'\u201D');
    case u'\u201E':
        return openSpeech(u'\u201C');
    case u'\u00AB':
        return openSpeech(u'\u00BB');
    case u'\u00BB':
        return openSpeech(u'\u00AB');
    case u'\u2018':
        if (!isWordUnit(m_at - 1))
            openSpeech(u'\u2019');
        return;
    default:
        return;
    }
}

} // namespace

ProseStatistics &ProseStatistics::operator+=(const ProseStatistics &other)
{
    words += other.words;
    paragraphs += other.paragraphs;
    sentences += other.sentences;
    spokenWords += other.spokenWords;
    narratedWords += other.narratedWords;
    speeches += other.speeches;
    syllables += other.syllables;
    longWords += other.longWords;
    longestSentence = std::max(longestSentence, other.longestSentence);
    return *this;
}

int countSyllables(QStringView word)
{
    QString letters;
    letters.reserve(word.size());
    int groups = 0;
    bool endsPlain = false; // an accent on the last letter makes it heard
    for (const QChar unit : word) {
        if (!unit.isLetter())
            continue;
        const char16_t letter = plainLetter(unit);
        groups += isVowel(letter) && (letters.isEmpty() || !isVowel(letters.back().unicode()));
        letters.append(QChar(letter));
        endsPlain = unit.unicode() < 0x80;
    }
    if (groups > 1 && endsPlain && hasSilentEnding(letters))
        --groups;
    return std::max(1, groups);
}

ProseStatistics measureProse(const QString &text)
{
    ProseStatistics result;
    result.words = countWords(text);
    const QString plain = text.contains(u'[') ? withoutEmbedsAndReferences(text) : text;
    ProseMeter meter(result);
    for (const QStringView line : QStringView(plain).tokenize(u'\n'))
        meter.readLine(line);
    meter.endParagraph();
    return result;
}

} // namespace vl::app

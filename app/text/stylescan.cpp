#include "app/text/stylescan.h"

#include "app/text/wordscan.h"

#include <algorithm>

namespace vl::app {

namespace {

constexpr int longestReadableSentence = 40; // words

/// A translated message with one "%1", taken apart once so that user text is never searched for
/// "%1".
class MessageFrame
{
public:
    explicit MessageFrame(const QString &text)
        : m_before(text.section(QLatin1String("%1"), 0, 0))
        , m_after(text.section(QLatin1String("%1"), 1))
    {
    }

    QString around(QStringView content) const
    {
        QString message(m_before.size() + content.size() + m_after.size(), Qt::Uninitialized);
        QChar *to = std::copy(m_before.cbegin(), m_before.cend(), message.data());
        to = std::copy(content.cbegin(), content.cend(), to);
        std::copy(m_after.cbegin(), m_after.cend(), to);
        return message;
    }

private:
    QString m_before;
    QString m_after;
};

/// The walk over the words that serves all rules but the one on sentences.
class WordRules
{
public:
    WordRules(QStringView text, unsigned kinds, StyleFindings &findings)
        : m_text(text)
        , m_kinds(kinds)
        , m_findings(findings)
        , m_vocabulary(StyleVocabulary::instance())
        , m_passive(StyleRule::tr("Passive voice: %1"))
        , m_filler(StyleRule::tr("Filler word: %1"))
        , m_repeated(StyleRule::tr("Repeated word: %1"))
        , m_adverb(StyleRule::tr("Adverb: %1. Consider a stronger verb."))
        , m_cliche(StyleRule::tr("Cliché: %1"))
    {
    }

    void visit(const ScannedWord &word)
    {
        const StyleVocabulary::Entry *known =
            word.isListable ? m_vocabulary.find(textOf(word), word.hash) : nullptr;
        if (wants(stylekind::RepeatedWord))
            checkRepeated(word);
        if (wants(stylekind::PassiveVoice))
            checkPassive(word, known);
        if (wants(stylekind::Adverb))
            checkAdverb(word, known);
        if (known)
            checkPhrases(word, *known);
    }

private:
    bool wants(int kind) const { return m_kinds & (1U << kind); }
    QStringView textOf(const ScannedWord &word) const
    {
        return m_text.sliced(word.start, word.length());
    }

    void checkRepeated(const ScannedWord &word);
    void checkPassive(const ScannedWord &word, const StyleVocabulary::Entry *known);
    void checkAdverb(const ScannedWord &word, const StyleVocabulary::Entry *known);
    void checkPhrases(const ScannedWord &word, const StyleVocabulary::Entry &known);
    qsizetype longestPhraseAt(qsizetype start, const QStringList &phrases) const;
    bool isPhraseAt(qsizetype start, const QString &phrase) const;
    bool endsWith(const ScannedWord &word, char16_t last, char16_t lastButOne) const;
    void add(int kind, qsizetype start, qsizetype end, QString message, QString suggestion = {})
    {
        m_findings[size_t(kind)].append(
            {start, end - start, kind, std::move(message), std::move(suggestion)});
    }

    const QStringView m_text;
    const unsigned m_kinds;
    StyleFindings &m_findings;
    const StyleVocabulary &m_vocabulary;
    const MessageFrame m_passive;
    const MessageFrame m_filler;
    const MessageFrame m_repeated;
    const MessageFrame m_adverb;
    const MessageFrame m_cliche;

    ScannedWord m_previous;        ///< what may be repeated; empty when that is nothing
    qsizetype m_auxiliary = -1;    ///< start of the form of "to be" that waits for its participle
    bool m_auxiliaryTaken = false; ///< whether "not" or an adverb has followed it
    std::array<qsizetype, StyleVocabulary::PhraseListCount> m_phraseEnd{}; ///< of the last finding
};

bool isSameFolded(QStringView a, QStringView b)
{
    // Simple case folding never changes the number of UTF-16 units.
    if (a.size() != b.size())
        return false;
    for (qsizetype i = 0; i < a.size(); ++i) {
        if (a[i] == b[i])
            continue;
        char32_t left = a[i].unicode();
        char32_t right = b[i].unicode();
        if (a[i].isHighSurrogate() && b[i].isHighSurrogate() && i + 1 < a.size()) {
            left = QChar::surrogateToUcs4(a[i], a[i + 1]);
            right = QChar::surrogateToUcs4(b[i], b[i + 1]);
            ++i;
        } else if (a[i].isLowSurrogate() && b[i].isLowSurrogate() && i > 0) {
            left = QChar::surrogateToUcs4(a[i - 1], a[i]);
            right = QChar::surrogateToUcs4(b[i - 1], b[i]);
        }
        if (QChar::toCaseFolded(left) != QChar::toCaseFolded(right))
            return false;
    }
    return true;
}

void WordRules::checkRepeated(const ScannedWord &word)
{
    const bool isRepeated = word.followsBlanks() && m_previous.length() == word.length()
                            && m_previous.length() > 0 && word.isAllLetters()
                            && isSameFolded(textOf(m_previous), textOf(word));
    if (isRepeated)
        add(stylekind::RepeatedWord, m_previous.start, word.end,
            m_repeated.around(textOf(m_previous)));
    // The third of three equal words is not a repetition of the second once more.
    m_previous = isRepeated || !word.isAllLetters() ? ScannedWord() : word;
}

bool WordRules::endsWith(const ScannedWord &word, char16_t lastButOne, char16_t last) const
{
    return word.length() >= 2 && foldToList(m_text[word.end - 2].unicode()) == lastButOne
           && foldToList(m_text[word.end - 1].unicode()) == last;
}

void WordRules::checkPassive(const ScannedWord &word, const StyleVocabulary::Entry *known)
{
    if (m_auxiliary >= 0 && word.followsWhiteSpace()) {
        const bool isParticiple = (known && known->isParticiple)
                                  || (word.characterCount() >= 4 && endsWith(word, u'e', u'd'));
        if (isParticiple) {
            add(stylekind::PassiveVoice, m_auxiliary, word.end,
                m_passive.around(m_text.sliced(m_auxiliary, word.end - m_auxiliary)));
            m_auxiliary = -1;
            return;
        }
        const bool mayStandBetween =
            (known && known->isNot) || (word.characterCount() >= 3 && endsWith(word, u'l', u'y'));
        if (mayStandBetween && !m_auxiliaryTaken) {
            m_auxiliaryTaken = true;
            return;
        }
    }
    m_auxiliary = known && known->isFormOfToBe ? word.start : -1;
    m_auxiliaryTaken = false;
}

void WordRules::checkAdverb(const ScannedWord &word, const StyleVocabulary::Entry *known)
{
    if (!word.isAllLetters() || word.characterCount() < 4 || !endsWith(word, u'l', u'y'))
        return;
    // The exceptions are looked up in lower case, and a long s stays one there.
    if (known && known->isAdverbException && !textOf(word).contains(QChar(0x017F)))
        return;
    add(stylekind::Adverb, word.start, word.end, m_adverb.around(textOf(word)));
}

void WordRules::checkPhrases(const ScannedWord &word, const StyleVocabulary::Entry &known)
{
    static constexpr int kinds[] = {stylekind::CrutchWord, stylekind::Wordiness, stylekind::Cliche};
    for (size_t list = 0; list < StyleVocabulary::PhraseListCount; ++list) {
        if (!wants(kinds[list]) || word.start < m_phraseEnd[list])
            continue;
        for (const QString &phrase : known.phrases[list]) {
            if (!isPhraseAt(word.start, phrase))
                continue;
            const QStringView found = m_text.sliced(word.start, phrase.size());
            m_phraseEnd[list] = word.start + phrase.size();
            if (list == StyleVocabulary::Wordy) {
                const QString replacement = m_vocabulary.replacementFor(phrase);
                add(kinds[list], word.start, m_phraseEnd[list],
                    StyleRule::tr("Wordy: %1 → %2").arg(found, replacement), replacement);
            } else {
                add(kinds[list], word.start, m_phraseEnd[list],
                    (list == StyleVocabulary::Fillers ? m_filler : m_cliche).around(found));
            }
            break;
        }
    }
}

bool WordRules::isPhraseAt(qsizetype start, const QString &phrase) const
{
    if (m_text.size() - start < phrase.size())
        return false;
    for (qsizetype i = 0; i < phrase.size(); ++i) {
        if (foldToList(m_text[start + i].unicode()) != phrase[i].unicode())
            return false;
    }
    const qsizetype end = start + phrase.size();
    return end == m_text.size() || !(characterAt(m_text, end).charClass & charclass::AnyWord);
}

bool isSentenceEnd(char16_t unit)
{
    return unit == u'.' || unit == u'!' || unit == u'?';
}

/// Counts the words of the sentence between two units and reports it when they are too many.
class SentenceRule
{
public:
    SentenceRule(QStringView text, QList<StyleIssue> &issues)
        : m_text(text)
        , m_issues(issues)
    {
    }

    void run()
    {
        const qsizetype size = m_text.size();
        qsizetype at = 0;
        while (at < size) {
            while (at < size && isSentenceEnd(m_text.utf16()[at]))
                ++at; // ends without a sentence before them belong to none
            if (at < size)
                at = checkSentence(at);
        }
    }

private:
    qsizetype checkSentence(qsizetype at);

    const QStringView m_text;
    QList<StyleIssue> &m_issues;
};

qsizetype SentenceRule::checkSentence(qsizetype at)
{
    const qsizetype size = m_text.size();
    const char16_t *units = m_text.utf16();
    qsizetype first = -1;
    qsizetype last = at;
    int words = 0;
    bool isClosing = false;
    while (at < size && (!isClosing || isSentenceEnd(units[at]))) {
        // Every white-space character is one unit, so half a pair may be judged alone.
        if (charclass::of(units[at]) & charclass::AnySpace) {
            ++at;
            continue;
        }
        if (first < 0)
            first = at;
        ++words;
        for (; at < size; ++at) {
            const quint8 charClass = charclass::of(units[at]);
            if (charClass & charclass::AnyWord) {
                if (isClosing)
                    break;
                continue;
            }
            if (charClass & charclass::AnySpace)
                break;
            const bool isEnd = isSentenceEnd(units[at]);
            if (isClosing && !isEnd)
                break;
            isClosing = isEnd;
        }
        last = at;
    }
    if (words > longestReadableSentence)
        m_issues.append(
            {first, last - first, stylekind::LongSentence,
             StyleRule::tr("Long sentence (%1 words). Consider breaking it up.").arg(words),
             QString()});
    return at;
}

} // namespace

StyleFindings scanStyle(QStringView text, unsigned kinds)
{
    StyleFindings findings;
    if (kinds & (1U << stylekind::LongSentence))
        SentenceRule(text, findings[stylekind::LongSentence]).run();
    if (kinds & ~(1U << stylekind::LongSentence)) {
        WordRules rules(text, kinds, findings);
        scanWords(text, [&rules](const ScannedWord &word) { rules.visit(word); });
    }
    return findings;
}

} // namespace vl::app

#include "app/text/entitymentions.h"

#include <algorithm>

namespace vl::app {

namespace {

constexpr quint64 hashSeed = 14695981039346656037U;

quint64 hashStep(quint64 hash, char32_t value)
{
    return (hash ^ value) * 1099511628211U;
}

/// Makes one key of the node that a step starts at and the hash of what it reads.
quint64 stepKey(int node, quint64 read)
{
    quint64 key = read ^ (quint64(node) * 0x9E3779B97F4A7C15U);
    key ^= key >> 29;
    return key * 0xBF58476D1CE4E5B9U;
}

bool isWordUnit(QChar unit)
{
    const char16_t code = unit.unicode();
    if (code < 0x80)
        return (code >= u'a' && code <= u'z') || (code >= u'A' && code <= u'Z')
               || (code >= u'0' && code <= u'9');
    return unit.isLetterOrNumber() || unit.isMark() || unit.isSurrogate();
}

char32_t folded(QChar unit)
{
    const char16_t code = unit.unicode();
    if (code < 0x80)
        return code >= u'A' && code <= u'Z' ? code | 0x20 : code;
    return unit.toCaseFolded().unicode();
}

/// Whether a name that ends in front of the unit (or begins behind it) is only half of
/// "Anne-Marie".
bool isHalfOfDouble(QStringView text, qsizetype hyphen, qsizetype beyond)
{
    return hyphen >= 0 && hyphen < text.size() && text[hyphen] == u'-' && beyond >= 0
           && beyond < text.size() && text[beyond].isLetter();
}

} // namespace

/// A word and the hash of what stands between it and the word before.
struct NameFinder::Token
{
    qsizetype start = 0;
    qsizetype end = 0;
    quint64 gap = hashSeed;
    quint64 word = hashSeed;
};

bool NameFinder::nextToken(QStringView text, qsizetype &at, Token &token)
{
    token = Token();
    bool wasSpace = false;
    for (; at < text.size() && !isWordUnit(text[at]); ++at) {
        const QChar unit = text[at];
        const bool isSpace = unit.isSpace();
        if (!isSpace)
            token.gap = hashStep(token.gap, unit == u'\u2019' ? u'\'' : unit.unicode());
        else if (!wasSpace)
            token.gap = hashStep(token.gap, u' ');
        wasSpace = isSpace;
    }
    token.start = at;
    for (; at < text.size() && isWordUnit(text[at]); ++at)
        token.word = hashStep(token.word, folded(text[at]));
    token.end = at;
    return token.end > token.start;
}

void NameFinder::add(const QString &name, int thing)
{
    const QString normal = name.normalized(QString::NormalizationForm_C);
    QStringList words;
    Token token;
    int node = 0;
    for (qsizetype at = 0; nextToken(normal, at, token);) {
        if (words.size() == maximumWords)
            return;
        const quint64 read = words.isEmpty() ? token.word : token.word * 31 + token.gap;
        words.append(normal.mid(token.start, token.end - token.start));
        const auto [step, isNew] = m_steps.try_emplace(stepKey(node, read), int(m_nodes.size()));
        if (isNew)
            m_nodes.emplace_back();
        node = step->second;
    }
    if (words.isEmpty())
        return;
    std::vector<int> &names = m_nodes[size_t(node)].names;
    auto known = std::find_if(names.begin(), names.end(),
                              [&](int index) { return m_names[size_t(index)].words == words; });
    if (known == names.end()) {
        known = names.insert(names.end(), int(m_names.size()));
        m_names.push_back({words, {}});
    }
    std::vector<int> &things = m_names[size_t(*known)].things;
    if (things.empty() || things.back() != thing)
        things.push_back(thing);
}

bool NameFinder::isSpelledLike(const QString &listed, QStringView written)
{
    if (listed == written)
        return true;
    const bool hasCapital =
        std::any_of(listed.cbegin(), listed.cend(), [](QChar unit) { return unit.isUpper(); });
    if (hasCapital)
        return std::none_of(written.cbegin(), written.cend(),
                            [](QChar unit) { return unit.isLower(); })
               && listed.compare(written, Qt::CaseInsensitive) == 0;
    return listed.compare(written, Qt::CaseInsensitive) == 0;
}

/// The longest name that begins with the token, or -1; end becomes the offset behind it.
int NameFinder::matchAt(QStringView text, const Token &first, qsizetype *end) const
{
    int found = -1;
    if (isHalfOfDouble(text, first.start - 1, first.start - 2))
        return found;
    std::vector<QStringView> words;
    Token token = first;
    quint64 read = token.word;
    int node = 0;
    for (qsizetype at = first.end;;) {
        const auto step = m_steps.find(stepKey(node, read));
        if (step == m_steps.end())
            return found;
        node = step->second;
        words.push_back(text.sliced(token.start, token.end - token.start));
        for (const int index : m_nodes[size_t(node)].names) {
            const QStringList &listed = m_names[size_t(index)].words;
            if (listed.size() == qsizetype(words.size())
                && std::equal(listed.cbegin(), listed.cend(), words.cbegin(), isSpelledLike)
                && !isHalfOfDouble(text, token.end, token.end + 1)) {
                found = index;
                *end = token.end;
                break;
            }
        }
        if (qsizetype(words.size()) == maximumWords || !nextToken(text, at, token))
            return found;
        read = token.word * 31 + token.gap;
    }
}

QHash<int, qint64> NameFinder::count(const QString &text) const
{
    const QString normal = text.normalized(QString::NormalizationForm_C);
    std::unordered_map<int, qint64> named;
    Token token;
    for (qsizetype at = 0; nextToken(normal, at, token);) {
        qsizetype end = 0;
        const int name = matchAt(normal, token, &end);
        if (name < 0)
            continue;
        ++named[name];
        at = end;
    }
    QHash<int, qint64> counts;
    for (const auto &[name, times] : named) {
        for (const int thing : m_names[size_t(name)].things)
            counts[thing] += times;
    }
    return counts;
}

} // namespace vl::app

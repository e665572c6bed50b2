#include "app/text/markdowninline.h"

#include "app/text/markdownscan.h"
#include "app/text/markdownurl.h"

#include <array>
#include <bit>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vl::app {

namespace {

constexpr char16_t firstEscape = 0xE000;
constexpr size_t maxEscapes = 6400; // the private-use characters of the basic plane

enum Seen : unsigned
{
    SeenBracket = 1,
    SeenImage = 2,
    SeenAsterisk = 4,
    SeenTilde = 8,
    SeenCode = 16,
    SeenEscape = 32
};

enum CharacterClass : quint8
{
    Plain,
    Special,
    Dropped
};

/// What the first pass has to do for a character below U+0080.
constexpr std::array<quint8, 128> makeClasses()
{
    std::array<quint8, 128> classes{};
    for (size_t c = 0; c < 0x20; ++c)
        classes[c] = c == '\t' || c == '\n' || c == '\r' ? Plain : Dropped;
    for (const char16_t c : {u'"', u'&', u'*', u'<', u'>', u'[', u'\\', u'`', u'~'})
        classes[c] = Special;
    return classes;
}
constexpr std::array<quint8, 128> classes = makeClasses();

inline quint8 classOf(char16_t c)
{
    if (c < 128)
        return classes[c];
    return c < 0xFFFE ? Plain : Dropped;
}

#if defined(__SSE2__)
/// A bit a unit, set where the first pass may have to do something. The units come as bytes, those
/// from U+0100 on as 0xFF and those from U+8000 on, the noncharacters among them, as 0.
unsigned specialBits(__m128i units)
{
    const auto equals = [](__m128i some, char unit) {
        return _mm_cmpeq_epi8(some, _mm_set1_epi8(unit));
    };
    const auto with = [units](char bit) { return _mm_or_si128(units, _mm_set1_epi8(bit)); };
    const auto either = [](__m128i a, __m128i b) { return _mm_or_si128(a, b); };
    const __m128i controls = _mm_cmpeq_epi8(_mm_min_epu8(units, _mm_set1_epi8(0x1F)), units);
    const __m128i entities = either(equals(with(4), '&'), equals(with(2), '>')); // also '"', '<'
    const __m128i emphasis = either(equals(units, '*'), equals(units, '~'));
    const __m128i others =
        either(either(equals(units, '['), equals(units, '\\')), equals(units, '`'));
    return unsigned(
        _mm_movemask_epi8(either(either(controls, entities), either(emphasis, others))));
}
#endif

/// Copies units to `to`, which has room for all, as far as they need no look of the first pass.
const char16_t *copyPlain(const char16_t *at, const char16_t *end, char16_t *to)
{
#if defined(__SSE2__)
    while (end - at >= 16) {
        const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i *>(at));
        const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i *>(at + 8));
        _mm_storeu_si128(reinterpret_cast<__m128i *>(to), low);
        _mm_storeu_si128(reinterpret_cast<__m128i *>(to + 8), high);
        const unsigned bits = specialBits(_mm_packus_epi16(low, high));
        const int plain = bits == 0 ? 16 : std::countr_zero(bits);
        at += plain;
        to += plain;
        if (plain == 16)
            continue;
        if (classOf(*at) != Plain)
            return at;
        do // a tab, or a script far up
            *to++ = *at++;
        while (at != end && *at >= 0x8000 && classOf(*at) == Plain);
    }
#endif
    while (at != end && classOf(*at) == Plain)
        *to++ = *at++;
    return at;
}

/// The first unit that stands for one of `count` escaped characters, or the end.
const char16_t *nextEscape(const char16_t *at, const char16_t *end, size_t count)
{
#if defined(__SSE2__)
    const __m128i base = _mm_set1_epi16(short(firstEscape));
    const __m128i limit = _mm_set1_epi16(short(count));
    for (; end - at >= 8; at += 8) {
        const __m128i units = _mm_loadu_si128(reinterpret_cast<const __m128i *>(at));
        const __m128i others =
            _mm_cmpeq_epi16(_mm_subs_epu16(limit, _mm_sub_epi16(units, base)), _mm_setzero_si128());
        if (_mm_movemask_epi8(others) != 0xFFFF)
            break;
    }
#endif
    while (at != end && size_t(*at) - firstEscape >= count)
        ++at;
    return at;
}

void appendEscaped(char16_t c, HtmlSink &to)
{
    switch (c) {
    case u'"':
        to.append(u"&quot;");
        break;
    case u'&':
        to.append(u"&amp;");
        break;
    case u'<':
        to.append(u"&lt;");
        break;
    case u'>':
        to.append(u"&gt;");
        break;
    default:
        to.append(c);
    }
}

/// The first "]" at or after `from`, or -1. It is mostly near, so a plain walk is the quickest.
qsizetype closingBracket(QStringView text, qsizetype from)
{
    const char16_t *const units = text.utf16();
    for (const qsizetype size = text.size(); from < size; ++from) {
        if (units[from] == u']')
            return from;
    }
    return -1;
}

} // namespace

MarkdownInline::MarkdownInline(HtmlSink &out, MarkdownFootnotes &footnotes)
    : m_out(out)
    , m_footnotes(footnotes)
{
}

void MarkdownInline::render(QStringView text)
{
    m_start = m_out.size();
    m_seen = 0;
    escapeAndShieldCode(text);
    if (m_seen == 0)
        return;
    if (m_seen & SeenBracket) {
        if (m_footnotes.hasNumbered())
            replaceFootnoteReferences();
        if (m_seen & SeenImage)
            replaceTargets(Target::Image); // before links: without its "!" it would be one
        replaceTargets(Target::Link);
    }
    if (m_seen & (SeenAsterisk | SeenTilde | SeenCode | SeenEscape))
        finish();
}

/// Backslash escapes, removal of control characters, HTML escaping and code spans in one pass.
/// Code goes by what is left after escaping, escaping by every backtick that is not escaped.
void MarkdownInline::escapeAndShieldCode(QStringView text)
{
    m_escapes.clear();
    m_codes.clear();
    m_codeText.truncate(0);
    dropMarksFrom(0);
    bool insideCode = false;
    qsizetype open = -1; // where in m_out a backtick waits for its partner
    const char16_t *at = text.utf16();
    const char16_t *const end = at + text.size();
    for (;;) {
        const char16_t *const run = at;
        at = copyPlain(run, end, m_out.room(end - run));
        m_out.advance(at - run);
        if (at == end)
            return;
        const char16_t c = *at++;
        if (c == u'`') {
            insideCode = !insideCode;
            backtick(open);
        } else if (c == u'\\' && !insideCode && at != end && isAsciiPunctuation(*at)
                   && m_escapes.size() < maxEscapes) {
            m_out.append(char16_t(firstEscape + m_escapes.size()));
            m_escapes.push_back(*at++);
            m_seen |= SeenEscape;
        } else {
            appendSpecial(c);
        }
    }
}

void MarkdownInline::appendSpecial(char16_t c)
{
    const qsizetype place = m_out.size() - m_start;
    switch (c) {
    case u'*':
        m_seen |= SeenAsterisk;
        m_asterisks.push_back({place, Role::Text});
        break;
    case u'~':
        m_seen |= SeenTilde;
        m_tildes.push_back({place, Role::Text});
        break;
    case u'[':
        m_seen |= SeenBracket;
        m_brackets.push_back(place);
        if (place > 0 && working().back() == u'!')
            m_seen |= SeenImage;
        break;
    default:
        break;
    }
    if (classOf(c) != Dropped)
        appendEscaped(c, m_out);
}

/// Closes a code span if one is open and not empty: it becomes a marker, NUL, its number, NUL. No
/// NUL of the text itself gets this far.
void MarkdownInline::backtick(qsizetype &open)
{
    if (open < 0 || m_out.size() == open + 1) {
        open = m_out.size();
        m_out.append(u'`');
        return;
    }
    const qsizetype start = m_codeText.size();
    m_codeText.append(m_out.from(open + 1));
    m_out.truncate(open);
    dropMarksFrom(open - m_start);
    m_out.append(u'\0');
    m_out.append(quint64(m_codes.size()));
    m_out.append(u'\0');
    m_codes.push_back({start, m_codeText.size()});
    m_seen |= SeenCode;
    open = -1;
}

void MarkdownInline::dropMarksFrom(qsizetype place)
{
    while (!m_brackets.empty() && m_brackets.back() >= place)
        m_brackets.pop_back();
    while (!m_asterisks.empty() && m_asterisks.back().place >= place)
        m_asterisks.pop_back();
    while (!m_tildes.empty() && m_tildes.back().place >= place)
        m_tildes.pop_back();
}

/// Puts what a pass collected in m_scratch, and the rest of the working text from `copied` on, in
/// the place of the working text from `first` on.
void MarkdownInline::replaceWorking(qsizetype first, qsizetype copied)
{
    m_scratch.append(working().mid(copied));
    m_out.truncate(m_start + first);
    m_out.append(m_scratch.from(0));
}

void MarkdownInline::replaceFootnoteReferences()
{
    const QStringView text = working();
    m_scratch.truncate(0);
    qsizetype first = -1; // the place of the first match
    qsizetype copied = 0;
    qsizetype next = 0; // where the next match may start
    for (const qsizetype at : m_brackets) {
        if (at < next || at + 1 == text.size() || text[at + 1] != u'^')
            continue;
        const qsizetype close = closingBracket(text, at + 2);
        if (close < 0)
            break;
        if (auto *note = m_footnotes.numbered(text.mid(at + 2, close - at - 2))) {
            if (first < 0)
                first = at;
            else
                m_scratch.append(text.mid(copied, at - copied));
            m_scratch.append(u"<sup class=\"footnote-ref\" id=\"fnref-");
            m_scratch.append(note->number);
            if (++note->references > 1) {
                m_scratch.append(u'-');
                m_scratch.append(note->references);
            }
            m_scratch.append(u"\"><a href=\"#fn-");
            m_scratch.append(note->number);
            m_scratch.append(u"\">");
            m_scratch.append(note->number);
            m_scratch.append(u"</a></sup>");
            copied = close + 1;
        }
        next = close + 1;
    }
    if (first >= 0) {
        replaceWorking(first, copied);
        collectMarks(first);
    }
}

/// All starts before a "]" share it, and with it the URL behind; so a miss moves on behind the "]".
void MarkdownInline::replaceTargets(Target kind)
{
    const QStringView text = working();
    const bool image = kind == Target::Image;
    m_scratch.truncate(0);
    qsizetype first = -1; // the place of the first match
    qsizetype copied = 0;
    qsizetype next = 0; // where the next match may start
    for (const qsizetype bracket : m_brackets) {
        if (bracket < next || (image && (bracket == 0 || text[bracket - 1] != u'!')))
            continue;
        const qsizetype content = bracket + 1;
        const qsizetype close = closingBracket(text, content);
        if (close < 0)
            break;
        next = close + 1;
        const bool hasTarget =
            (image || close > content) && close + 1 < text.size() && text[close + 1] == u'(';
        const qsizetype end = hasTarget ? markdownUrlEnd(text, close + 2) : -1;
        if (end < 0)
            continue;
        const QStringView label = text.mid(content, close - content);
        const qsizetype start = image ? bracket - 1 : bracket;
        if (first < 0)
            first = start;
        else
            m_scratch.append(text.mid(copied, start - copied));
        m_scratch.append(image ? QStringView(u"<img src=\"") : QStringView(u"<a href=\""));
        m_scratch.append(checkedUrl(text.mid(close + 2, end - close - 2), kind));
        m_scratch.append(image ? QStringView(u"\" alt=\"") : QStringView(u"\">"));
        m_scratch.append(label);
        m_scratch.append(image ? QStringView(u"\"/>") : QStringView(u"</a>"));
        copied = next = end + 1;
    }
    if (first >= 0) {
        replaceWorking(first, copied);
        if (image || !m_asterisks.empty() || !m_tildes.empty()) // brackets serve no later pass
            collectMarks(first);
    }
}

/// The URL, or "#" in its place. It is judged as it will stand in the output, with escaped
/// characters and code put back, so that no escaped colon smuggles a scheme through.
QStringView MarkdownInline::checkedUrl(QStringView url, Target kind)
{
    QStringView judged = url;
    if (m_seen & (SeenCode | SeenEscape)) {
        m_url.truncate(0);
        appendRestored(url, m_url);
        judged = m_url.from(0);
    }
    return isSafeMarkdownUrl(judged, kind == Target::Image) ? url : QStringView(u"#");
}

/// Notes the marks of a working text that from `first` on is no longer as the first pass left it.
void MarkdownInline::collectMarks(qsizetype first)
{
    dropMarksFrom(first);
    const QStringView text = working();
    for (qsizetype at = first; at < text.size(); ++at) {
        const char16_t c = text[at].unicode();
        if (c == u'[')
            m_brackets.push_back(at);
        else if (c == u'*')
            m_asterisks.push_back({at, Role::Text});
        else if (c == u'~')
            m_tildes.push_back({at, Role::Text});
    }
}

/// Pairs of two marks side by side, with at least one other character and no mark between them.
void MarkdownInline::pairDoubled(std::vector<Mark> &marks)
{
    for (size_t i = 0; i + 3 < marks.size();) {
        if (marks[i + 1].place != marks[i].place + 1 || marks[i + 2].place == marks[i + 1].place + 1
            || marks[i + 3].place != marks[i + 2].place + 1) {
            ++i;
            continue;
        }
        marks[i].role = Role::PairOpening;
        marks[i + 2].role = Role::PairClosing;
        marks[i + 1].role = marks[i + 3].role = Role::Skipped;
        i += 4;
    }
}

/// Pairs of the marks that are left: each with the next one, unless they stand side by side.
void MarkdownInline::pairSingle(std::vector<Mark> &marks)
{
    Mark *open = nullptr;
    for (Mark &mark : marks) {
        if (mark.role != Role::Text)
            continue;
        if (open == nullptr || mark.place == open->place + 1) {
            open = &mark;
            continue;
        }
        open->role = Role::Opening;
        mark.role = Role::Closing;
        open = nullptr;
    }
}

/// Strong, emphasis, strike-through, and then code and escapes put back, in one walk. The first
/// three only replace marks and put no new ones in, so their pairs are found beforehand.
void MarkdownInline::finish()
{
    pairDoubled(m_asterisks);
    pairSingle(m_asterisks);
    pairDoubled(m_tildes);
    const qsizetype first = firstToFinish();
    if (first < 0)
        return;
    m_scratch.truncate(0);
    m_scratch.append(working());
    m_out.truncate(m_start + first);
    const QStringView text = m_scratch.from(0);
    qsizetype copied = first;
    auto asterisk = m_asterisks.cbegin();
    auto tilde = m_tildes.cbegin();
    while (asterisk != m_asterisks.cend() || tilde != m_tildes.cend()) {
        const bool isTilde = asterisk == m_asterisks.cend()
                             || (tilde != m_tildes.cend() && tilde->place < asterisk->place);
        const Mark mark = isTilde ? *tilde++ : *asterisk++;
        if (mark.role == Role::Text)
            continue;
        appendRestored(text.mid(copied, mark.place - copied), m_out);
        appendTag(mark.role, isTilde);
        copied = mark.place + 1;
    }
    appendRestored(text.mid(copied), m_out);
}

/// The first place that finish() has to change, or -1.
qsizetype MarkdownInline::firstToFinish() const
{
    if (m_seen & (SeenCode | SeenEscape))
        return 0;
    qsizetype first = -1;
    for (const std::vector<Mark> *marks : {&m_asterisks, &m_tildes}) {
        for (const Mark &mark : *marks) {
            if (mark.role == Role::Text)
                continue;
            if (first < 0 || mark.place < first)
                first = mark.place;
            break;
        }
    }
    return first;
}

void MarkdownInline::appendTag(Role role, bool isTilde)
{
    switch (role) {
    case Role::Opening:
        m_out.append(u"<em>");
        break;
    case Role::Closing:
        m_out.append(u"</em>");
        break;
    case Role::PairOpening:
        m_out.append(isTilde ? QStringView(u"<del>") : QStringView(u"<strong>"));
        break;
    case Role::PairClosing:
        m_out.append(isTilde ? QStringView(u"</del>") : QStringView(u"</strong>"));
        break;
    case Role::Text:
    case Role::Skipped:
        break;
    }
}

/// Appends text with every code marker replaced by its code and every escape by its character.
void MarkdownInline::appendRestored(QStringView text, HtmlSink &to) const
{
    if (!(m_seen & SeenCode)) {
        appendUnescaped(text, to);
        return;
    }
    qsizetype copied = 0;
    qsizetype at = 0;
    while ((at = text.indexOf(u'\0', at)) >= 0) {
        appendUnescaped(text.mid(copied, at - copied), to);
        size_t index = 0;
        while (text[++at] != u'\0')
            index = index * 10 + (text[at].unicode() - u'0');
        const TextRange code = m_codes[index];
        to.append(u"<code>");
        appendUnescaped(m_codeText.from(code.start).left(code.end - code.start), to);
        to.append(u"</code>");
        copied = ++at;
    }
    appendUnescaped(text.mid(copied), to);
}

void MarkdownInline::appendUnescaped(QStringView text, HtmlSink &to) const
{
    const size_t count = m_escapes.size();
    if (count == 0) {
        to.append(text);
        return;
    }
    const char16_t *at = text.utf16();
    const char16_t *const end = at + text.size();
    while (at != end) {
        const char16_t *const run = at;
        at = nextEscape(at, end, count);
        to.append(QStringView(run, at));
        if (at != end)
            appendEscaped(m_escapes[size_t(*at++) - firstEscape], to);
    }
}

} // namespace vl::app

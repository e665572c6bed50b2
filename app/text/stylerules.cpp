#include "app/text/stylerules.h"

#include "app/text/stylescan.h"

#include <algorithm>

namespace vl::app {

QString styleCategoryName(int kind)
{
    switch (kind) {
    case stylekind::LongSentence:
        return StyleRule::tr("Hard-to-read sentences");
    case stylekind::PassiveVoice:
        return StyleRule::tr("Passive voice");
    case stylekind::CrutchWord:
        return StyleRule::tr("Crutch words");
    case stylekind::RepeatedWord:
        return StyleRule::tr("Repeated words");
    case stylekind::Wordiness:
        return StyleRule::tr("Wordy phrases");
    case stylekind::Adverb:
        return StyleRule::tr("Weak adverbs");
    case stylekind::Cliche:
        return StyleRule::tr("Clichés");
    default:
        return StyleRule::tr("Other");
    }
}

QRegularExpression buildPhrasePattern(const QStringList &phrases)
{
    const auto options =
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption;
    if (phrases.isEmpty())
        return QRegularExpression(QStringLiteral("(?!)"), options);
    QStringList escaped;
    escaped.reserve(phrases.size());
    for (const QString &phrase : phrases)
        escaped.append(QRegularExpression::escape(phrase));
    std::stable_sort(escaped.begin(), escaped.end(),
                     [](const QString &a, const QString &b) { return a.size() > b.size(); });
    return QRegularExpression(
        QLatin1String("(?<!\\w)(") + escaped.join(u'|') + QLatin1String(")(?!\\w)"), options);
}

/// What the scan finds for one rule alone.
static QList<StyleIssue> findingsOf(const StyleRule &rule, QStringView text)
{
    return std::move(scanStyle(text, 1U << rule.kind())[size_t(rule.kind())]);
}

StyleRule::~StyleRule() = default;

QString LongSentenceRule::id() const
{
    return QStringLiteral("long-sentence");
}

int LongSentenceRule::kind() const
{
    return stylekind::LongSentence;
}

QList<StyleIssue> LongSentenceRule::check(QStringView text) const
{
    return findingsOf(*this, text);
}

QString PassiveVoiceRule::id() const
{
    return QStringLiteral("passive-voice");
}

int PassiveVoiceRule::kind() const
{
    return stylekind::PassiveVoice;
}

QList<StyleIssue> PassiveVoiceRule::check(QStringView text) const
{
    return findingsOf(*this, text);
}

QString CrutchWordRule::id() const
{
    return QStringLiteral("crutch-word");
}

int CrutchWordRule::kind() const
{
    return stylekind::CrutchWord;
}

QList<StyleIssue> CrutchWordRule::check(QStringView text) const
{
    return findingsOf(*this, text);
}

QString RepeatedWordRule::id() const
{
    return QStringLiteral("repeated-word");
}

int RepeatedWordRule::kind() const
{
    return stylekind::RepeatedWord;
}

QList<StyleIssue> RepeatedWordRule::check(QStringView text) const
{
    return findingsOf(*this, text);
}

QString WordinessRule::id() const
{
    return QStringLiteral("wordiness");
}

int WordinessRule::kind() const
{
    return stylekind::Wordiness;
}

QList<StyleIssue> WordinessRule::check(QStringView text) const
{
    return findingsOf(*this, text);
}

QString AdverbRule::id() const
{
    return QStringLiteral("adverb");
}

int AdverbRule::kind() const
{
    return stylekind::Adverb;
}

QList<StyleIssue> AdverbRule::check(QStringView text) const
{
    return findingsOf(*this, text);
}

QString ClicheRule::id() const
{
    return QStringLiteral("cliche");
}

int ClicheRule::kind() const
{
    return stylekind::Cliche;
}

QList<StyleIssue> ClicheRule::check(QStringView text) const
{
    return findingsOf(*this, text);
}

} // namespace vl::app

#include "app/text/stylechecker.h"

#include "app/text/stylescan.h"

namespace vl::app {

StyleChecker::StyleChecker()
{
    m_rules.push_back(std::make_unique<RepeatedWordRule>());
    m_rules.push_back(std::make_unique<CrutchWordRule>());
    m_rules.push_back(std::make_unique<WordinessRule>());
    m_rules.push_back(std::make_unique<PassiveVoiceRule>());
    m_rules.push_back(std::make_unique<LongSentenceRule>());
    m_rules.push_back(std::make_unique<AdverbRule>());
    m_rules.push_back(std::make_unique<ClicheRule>());
}

QList<StyleIssue> StyleChecker::check(QStringView text) const
{
    // One walk over the text finds what the rules would find one by one.
    unsigned kinds = 0;
    for (const auto &rule : m_rules)
        kinds |= 1U << rule->kind();
    StyleFindings findings = scanStyle(text, kinds);
    qsizetype count = 0;
    for (const QList<StyleIssue> &found : findings)
        count += found.size();
    QList<StyleIssue> issues;
    issues.reserve(count);
    for (const auto &rule : m_rules)
        issues.append(std::move(findings[size_t(rule->kind())]));
    return issues;
}

} // namespace vl::app

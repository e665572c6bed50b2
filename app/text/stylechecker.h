#pragma once

#include "app/text/stylerules.h"

#include <memory>
#include <vector>

namespace vl::app {

/// Owns one style rule of each sort and runs them all; may be used from several threads at once.
class StyleChecker
{
public:
    StyleChecker();

    /// The findings of all rules, one rule after the other in the order in which they are owned.
    QList<StyleIssue> check(QStringView text) const;

    /// The rules in the order in which their findings are listed.
    const std::vector<std::unique_ptr<StyleRule>> &rules() const { return m_rules; }

private:
    std::vector<std::unique_ptr<StyleRule>> m_rules;
};

} // namespace vl::app

#pragma once

#include "app/text/stylerules.h"

#include <QtCore/QList>
#include <QtCore/QStringView>

#include <array>

namespace vl::app {

/// The findings of each category, in the order found.
using StyleFindings = std::array<QList<StyleIssue>, stylekind::Count>;

/// Looks for all wanted categories (bit 1 << kind) in one walk over the words of the text, so that
/// seven rules cost little more than one. Takes time linear in the length of the text.
StyleFindings scanStyle(QStringView text, unsigned kinds);

} // namespace vl::app

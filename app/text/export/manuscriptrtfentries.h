#pragma once

#include "app/text/manuscript.h"

#include <QtCore/QList>

namespace vl::app {

/// The entries of a manuscript made ready for the standard layout in RTF. A line break inside a
/// paragraph becomes a blank, because readers of RTF skip line feeds and would join the words; a
/// line that is only a rule ("---", "* * *") or "#" begins another scene. Footnote definitions are
/// left out.
QList<ManuscriptEntry> manuscriptRtfEntries(const Manuscript &manuscript);

} // namespace vl::app

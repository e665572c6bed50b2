#pragma once

#include <QtCore/QStringView>

namespace vl::app {

/// The end of the URL of a link or image that starts at `at`: no white space, parentheses only in
/// pairs one deep, not empty, and a ")" right behind. -1 if there is no such URL.
qsizetype markdownUrlEnd(QStringView text, qsizetype at);

/// Whether a URL may stand: relative, or of a known scheme; for images also "data:image/".
bool isSafeMarkdownUrl(QStringView url, bool image);

} // namespace vl::app

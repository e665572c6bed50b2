#pragma once

#include <QtCore/QStringView>

namespace vl::app {

/// The number of words: pieces of text between runs of white space. Every count of the program,
/// on screen and in what it writes, is this one.
qsizetype countWords(QStringView text);

} // namespace vl::app

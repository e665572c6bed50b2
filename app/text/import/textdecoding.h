#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>

namespace vl::app {

/// Decodes a text file of unknown encoding and brings its line ends to single line feeds. The byte
/// order mark decides; without one the text is UTF-16 when its zero bytes stand as UTF-16 has them,
/// UTF-8 when it reads as that, else Windows-1252. A few bad bytes do not make UTF-8 text anything
/// else: each is read as Windows-1252 alone. Control characters other than tab and line feed are
/// dropped, form feeds become empty lines. Never fails.
QString decodeText(QByteArrayView bytes);

/// Whether the bytes are no text: too many control characters, in no encoding that decodeText()
/// knows.
bool looksBinary(QByteArrayView bytes);

} // namespace vl::app

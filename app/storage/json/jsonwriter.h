#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringView>

#include <string_view>

namespace vl::app {

/// Writes JSON as UTF-8 text, byte for byte as QJsonDocument::toJson() indents it. Names must be
/// given in their sorted order (by UTF-16 code unit), which is the order in which QJsonObject keeps
/// them.
class JsonWriter
{
public:
    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }

    /// The name of the next value, in plain ASCII with nothing to escape.
    void name(std::string_view ascii);
    /// The name of the next value.
    void name(QStringView text);

    void string(QStringView text);
    /// A text in plain ASCII with nothing to escape.
    void plainString(std::string_view ascii);
    void integer(qint64 value);
    /// Whole numbers up to 2^53 are written as integers, those that are not finite as null.
    void number(double value);
    void boolean(bool value) { literal(value ? "true" : "false"); }

    /// Ends the text with a line feed, hands it over, and starts anew.
    QByteArray finish();

private:
    void open(char bracket);
    void close(char bracket);
    void beginValue();
    void beginLine();
    void literal(std::string_view text);
    void append(std::string_view text);
    void put(char c) { *reserve(1) = c, ++m_size; }
    /// Room for that many bytes more; where they go.
    char *reserve(qsizetype count);

    QByteArray m_buffer;
    qsizetype m_size = 0; ///< bytes of the buffer that are written
    int m_depth = 0;
    bool m_isFirst = true;  ///< the next value is the first of its object or array
    bool m_hasName = false; ///< the next value stands behind its name
};

} // namespace vl::app

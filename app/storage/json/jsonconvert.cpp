#include "app/storage/json/jsonconvert.h"

#include <limits>

namespace vl::app {

namespace {

constexpr qsizetype idLength = 36;

/// The number that the digits at the place make, or -1.
int digitsAt(QStringView text, qsizetype place, qsizetype count)
{
    int number = 0;
    for (const QChar c : text.mid(place, count)) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return -1;
        number = number * 10 + (c.unicode() - u'0');
    }
    return number;
}

/// "2026-11-30"; any other text gives an invalid date.
QDate dateFromText(QStringView text)
{
    constexpr qsizetype length = 10;
    if (text.size() != length || text[4] != QLatin1Char('-') || text[7] != QLatin1Char('-'))
        return {};
    const int year = digitsAt(text, 0, 4);
    // There are years before the first one, but their dates have no text of this form.
    return year < 1 ? QDate() : QDate(year, digitsAt(text, 5, 2), digitsAt(text, 8, 2));
}

/// The form in which the files have it: "2026-11-30T18:05:00.250Z". Reading every one of them with
/// the toolkit's general reader would take a good part of the time in which a project opens.
QDateTime utcFromText(QStringView text)
{
    constexpr qsizetype length = 24;
    if (text.size() != length || text[10] != QLatin1Char('T') || text[13] != QLatin1Char(':')
        || text[16] != QLatin1Char(':') || text[19] != QLatin1Char('.')
        || text[23] != QLatin1Char('Z'))
        return {};
    const QDate date = dateFromText(text.left(10));
    const QTime time(digitsAt(text, 11, 2), digitsAt(text, 14, 2), digitsAt(text, 17, 2),
                     digitsAt(text, 20, 3));
    return date.isValid() && time.isValid() ? QDateTime(date, time, Qt::UTC) : QDateTime();
}

} // namespace

void toJson(JsonWriter &json, const core::ContentId &id)
{
    if (id.isNull()) {
        json.plainString({});
        return;
    }
    constexpr char digits[] = "0123456789abcdef";
    const QByteArray raw = id.uuid().toRfc4122();
    char text[idLength];
    char *at = text;
    for (int i = 0; i < 16; ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10)
            *at++ = '-';
        const auto byte = uchar(raw[i]);
        *at++ = digits[byte >> 4];
        *at++ = digits[byte & 0xF];
    }
    json.plainString({text, size_t(idLength)});
}

void toJson(JsonWriter &json, const QDate &date)
{
    json.string(date.toString(Qt::ISODate));
}

void toJson(JsonWriter &json, const QDateTime &dateTime)
{
    json.string(dateTime.toString(Qt::ISODateWithMs));
}

void fromJson(const JsonValue &json, QString &value)
{
    if (json.isText())
        value = json.text();
}

void fromJson(const JsonValue &json, bool &value)
{
    value = json.boolean().value_or(value);
}

void fromJson(const JsonValue &json, qint32 &value)
{
    const qint64 number = json.integer().value_or(value);
    if (number >= std::numeric_limits<qint32>::min()
        && number <= std::numeric_limits<qint32>::max())
        value = qint32(number);
}

void fromJson(const JsonValue &json, qint64 &value)
{
    value = json.integer().value_or(value);
}

void fromJson(const JsonValue &json, double &value)
{
    value = json.number().value_or(value);
}

void fromJson(const JsonValue &json, core::ContentId &id)
{
    if (json.length() == idLength || json.length() == idLength + 2) // with braces
        id = core::ContentId::fromString(json.text());
}

void fromJson(const JsonValue &json, QDate &date)
{
    if (json.isText())
        date = dateFromText(json.text());
}

void fromJson(const JsonValue &json, QDateTime &dateTime)
{
    if (!json.isText())
        return;
    const QString text = json.text();
    dateTime = utcFromText(text);
    if (!dateTime.isValid())
        dateTime = QDateTime::fromString(text, Qt::ISODateWithMs);
}

void toJson(JsonWriter &json, const std::set<QString> &texts)
{
    json.beginArray();
    for (const QString &text : texts)
        json.string(text);
    json.endArray();
}

void fromJson(const JsonValue &json, std::set<QString> &texts)
{
    for (const JsonValue element : json.elements())
        if (element.isText())
            texts.insert(element.text());
}

void toJson(JsonWriter &json, const std::set<core::ContentId> &ids)
{
    json.beginArray();
    for (const core::ContentId &id : ids)
        toJson(json, id);
    json.endArray();
}

void fromJson(const JsonValue &json, std::set<core::ContentId> &ids)
{
    for (const JsonValue element : json.elements()) {
        core::ContentId id;
        fromJson(element, id);
        if (!id.isNull())
            ids.insert(id);
    }
}

void toJson(JsonWriter &json, const std::map<QString, QString> &entries)
{
    json.beginObject();
    for (const auto &[key, value] : entries) {
        json.name(QStringView(key));
        json.string(value);
    }
    json.endObject();
}

void fromJson(const JsonValue &json, std::map<QString, QString> &entries)
{
    for (const JsonValue::Member member : json.members()) {
        if (member.value.isText())
            entries.insert_or_assign(entries.end(), member.name.text(), member.value.text());
    }
}

void toJson(JsonWriter &json, const std::optional<qint64> &value)
{
    Q_ASSERT(value);
    json.integer(value.value_or(0));
}

void fromJson(const JsonValue &json, std::optional<qint64> &value)
{
    if (const std::optional<qint64> integer = json.integer())
        value = integer;
}

} // namespace vl::app

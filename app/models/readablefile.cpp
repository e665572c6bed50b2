#include "app/models/readablefile.h"

#include "app/models/objecttexts.h"
#include "app/models/readablewords.h"
#include "app/time/calendartext.h"
#include "core/project.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QLocale>

#include <algorithm>

namespace vl::app {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::ReadableFile)
};

/// The members that a thing is known by, the first of them that is there.
const QLatin1String headKeys[] = {
    QLatin1String("title"), QLatin1String("name"), QLatin1String("caption"), QLatin1String("label"),
    QLatin1String("word"),  QLatin1String("key"),  QLatin1String("text"),
};

template<std::size_t N>
bool isOneOf(const QString &key, const char *const (&keys)[N])
{
    return std::any_of(std::begin(keys), std::end(keys),
                       [&](const char *one) { return key == QLatin1String(one); });
}

/// "wordCountTarget" as "Word count target".
QString spelledOut(const QString &key)
{
    QString words;
    for (const QChar c : key) {
        if (c.isUpper() && !words.isEmpty())
            words += u' ';
        words += words.isEmpty() ? c.toUpper() : c.toLower();
    }
    return words;
}

QString labelOf(const QString &key, const QJsonValue &value)
{
    // The numbers of a chart are no fields.
    const bool isSeries = key == QLatin1String("values") && value.isArray();
    const QString label = readableLabel(isSeries ? QStringLiteral("stats") : key);
    return label.isNull() ? spelledOut(key) : label;
}

/// Whether the members have names that the user gave them.
bool hasOwnNames(const QString &key)
{
    static const char *const keys[] = {"values", "fields", "fieldValues"};
    return isOneOf(key, keys);
}

bool isInstant(const QString &key)
{
    static const char *const keys[] = {"sceneInstant", "birthInstant", "deathInstant",
                                       "instant",      "startMinute",  "endMinute"};
    return isOneOf(key, keys);
}

/// Whether the file counts from 0 what people count from 1.
bool isCounted(const QString &key)
{
    static const char *const keys[] = {"sortIndex", "row", "column", "index"};
    return isOneOf(key, keys);
}

/// "B2" for the second cell of the second row; empty for what is no cell.
QString cellName(const QJsonObject &item)
{
    const QJsonValue row = item.value(QLatin1String("row"));
    int column = item.value(QLatin1String("column")).toInt(-1);
    if (!row.isDouble() || column < 0)
        return {};
    QString letters;
    for (; column >= 0; column = column / 26 - 1)
        letters.prepend(QChar(u'A' + column % 26));
    return letters + QString::number(qint64(row.toDouble()) + 1);
}

bool isNothing(const QJsonValue &value)
{
    return value.isNull() || (value.isBool() && !value.toBool())
           || (value.isString() && value.toString().isEmpty())
           || (value.isArray() && value.toArray().isEmpty())
           || (value.isObject() && value.toObject().isEmpty());
}

/// Blanks before a line; not more for what lies deeper than a file of the program ever does.
QString indentation(int depth)
{
    return QString(2 * std::min(depth, 20), u' ');
}

/// Writes the members of a file one below the other.
class Writer
{
public:
    explicit Writer(const core::Project *project)
        : m_project(project)
    {
    }

    QString write(const QJsonObject &file);

private:
    void addMember(const QString &key, const QJsonValue &value, int depth, bool isOwnName = false);
    void addMembers(const QJsonObject &object, int depth, const QString &leftOut, bool areOwnNames);
    void addItem(const QJsonObject &item, int depth);
    void addLines(const QString &text, int depth);
    QString shortText(const QString &key, const QJsonValue &value) const;
    QString nameOf(const core::ContentId &id) const;

    const core::Project *m_project;
    QString m_text;
};

QString Writer::write(const QJsonObject &file)
{
    QString head;
    for (const QLatin1String key : headKeys) {
        if (!file.value(key).isString())
            continue;
        head = key;
        addMember(head, file.value(key), 0);
        break;
    }
    QJsonObject rest = file;
    for (const char *key : {"id", "type", "body"}) // a name for programs, and what comes last
        rest.remove(QLatin1String(key));
    addMembers(rest, 0, head, false);
    const QString body = file.value(QLatin1String("body")).toString();
    if (!body.isEmpty()) {
        if (!m_text.isEmpty())
            m_text += u'\n';
        addLines(body, 0);
    }
    return m_text.isEmpty() ? Texts::tr("(empty)") + u'\n' : m_text;
}

QString Writer::nameOf(const core::ContentId &id) const
{
    if (m_project) {
        if (const core::ContentObject *object = m_project->find(id)) {
            const QString title = rowText(titleOf(*object));
            return title.isEmpty() ? kindText(object->kind()) : title;
        }
        if (m_project->taxonomy().contains(id))
            return categoryPathText(*m_project, id);
    }
    return Texts::tr("another object (%1)").arg(id.toString().left(8));
}

/// What fits into a line; null for what does not.
QString Writer::shortText(const QString &key, const QJsonValue &value) const
{
    if (value.isBool())
        return value.toBool() ? Texts::tr("yes") : Texts::tr("no");
    if (value.isDouble()) {
        const QVariant number = value.toVariant();
        if (isInstant(key) && m_project)
            return formatInstant(m_project->calendar(), number.toLongLong());
        return isCounted(key) ? QString::number(number.toLongLong() + 1) : number.toString();
    }
    if (value.isArray()) {
        QStringList texts;
        for (const QJsonValue item : value.toArray()) {
            texts.append(item.isObject() || item.isArray() ? QString() : shortText({}, item));
            if (texts.last().isNull())
                return {};
        }
        return texts.join(QStringLiteral(", "));
    }
    QString text = value.toString();
    if (!value.isString() || text.contains(u'\n'))
        return {};
    if (const auto id = core::ContentId::fromString(text); text.size() == 36 && !id.isNull())
        return nameOf(id);
    if (key.endsWith(QLatin1String("edAt"))) {
        const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs).toLocalTime();
        if (time.isValid())
            return QLocale().toString(time.date(), QLocale::ShortFormat) + u' '
                   + time.toString(QStringLiteral("HH:mm:ss"));
    }
    return readableChoice(key, text);
}

void Writer::addLines(const QString &text, int depth)
{
    const QString indent = indentation(depth);
    QStringView lines(text);
    if (lines.endsWith(u'\n'))
        lines.chop(1);
    for (const QStringView line : lines.split(u'\n')) {
        if (!line.isEmpty())
            m_text += indent;
        m_text += line;
        m_text += u'\n';
    }
}

void Writer::addMembers(const QJsonObject &object, int depth, const QString &leftOut,
                        bool areOwnNames)
{
    for (auto it = object.begin(); it != object.end(); ++it)
        if (leftOut.isEmpty() || it.key() != leftOut)
            addMember(it.key(), it.value(), depth, areOwnNames);
}

void Writer::addMember(const QString &key, const QJsonValue &value, int depth, bool isOwnName)
{
    if (isNothing(value))
        return;
    const QString start =
        indentation(depth) + (isOwnName ? key : labelOf(key, value)) + QLatin1Char(':');
    if (const QString line = shortText(isOwnName ? QString() : key, value); !line.isNull()) {
        m_text += start + u' ' + line + u'\n';
        return;
    }
    m_text += start + u'\n';
    if (value.isObject()) {
        addMembers(value.toObject(), depth + 1, {}, hasOwnNames(key));
    } else if (value.isString()) {
        addLines(value.toString(), depth + 1);
    } else {
        for (const QJsonValue item : value.toArray()) {
            if (item.isObject())
                addItem(item.toObject(), depth + 1);
            else if (item.isArray())
                addMember(QString(), item, depth + 1);
            else
                addLines(item.isString() ? item.toString() : shortText({}, item), depth + 1);
        }
    }
}

/// What it is known by and its short members on one line, its texts below.
void Writer::addItem(const QJsonObject &item, int depth)
{
    QString head;
    QStringList line;
    const QString cell = cellName(item);
    if (!cell.isEmpty())
        line.append(cell);
    for (const QLatin1String key : headKeys) {
        const QString text = shortText(key, item.value(key));
        if (text.isEmpty())
            continue;
        head = key;
        line.append(text);
        break;
    }
    QJsonObject below;
    for (auto it = item.begin(); it != item.end(); ++it) {
        const bool isInCell =
            !cell.isEmpty()
            && (it.key() == QLatin1String("row") || it.key() == QLatin1String("column"));
        if (it.key() == head || isInCell || isNothing(it.value()))
            continue;
        const QString text = it->isObject() ? QString() : shortText(it.key(), it.value());
        if (text.isNull() || it.key() == QLatin1String("body"))
            below.insert(it.key(), it.value());
        else if (core::ContentId::fromString(it->toString()).isNull()
                 || it.key() != QLatin1String("id"))
            line.append(labelOf(it.key(), *it) + QStringLiteral(": ") + text);
    }
    m_text += indentation(depth) + QStringLiteral("• ") + line.join(QStringLiteral(", ")) + u'\n';
    for (auto it = below.begin(); it != below.end(); ++it) {
        if (it->isString())
            addLines(it->toString(), depth + 1);
        else
            addMember(it.key(), it.value(), depth + 1);
    }
}

std::optional<QJsonObject> objectIn(const std::optional<QByteArray> &bytes)
{
    if (!bytes)
        return std::nullopt;
    const QJsonDocument json = QJsonDocument::fromJson(*bytes);
    return json.isObject() ? std::optional(json.object()) : std::nullopt;
}

/// The beginning of a JSON text that was cut off, closed so that it may be read.
class CutJson
{
public:
    explicit CutJson(const QString &text)
        : m_text(text)
    {
        for (qsizetype i = 0; i < text.size(); ++i)
            take(i, text.at(i));
    }

    std::optional<QJsonObject> object() const
    {
        if (const auto all = parsed(m_isInString ? wholeLetters() + u'"' : m_text, m_open))
            return all;
        return parsed(m_text.left(m_lastComma), m_openAtComma);
    }

private:
    void take(qsizetype place, QChar letter)
    {
        if (std::exchange(m_isEscaped, false))
            return;
        if (m_isInString && letter == u'\\')
            m_isEscaped = true;
        else if (letter == u'"')
            m_isInString = !m_isInString;
        if (m_isInString || letter == u'"')
            return;
        if (letter == u'{' || letter == u'[')
            m_open.append(letter == u'{' ? u'}' : u']');
        else if (letter == u'}' || letter == u']')
            m_open.chop(1);
        else if (letter == u',') {
            m_lastComma = place;
            m_openAtComma = m_open;
        }
    }

    /// Without an escape that is only half there.
    QString wholeLetters() const
    {
        constexpr qsizetype longest = 6;
        const qsizetype slash = m_text.lastIndexOf(u'\\');
        const bool isHalf =
            m_isEscaped
            || (slash >= 0 && m_text.size() - slash < longest && m_text.at(slash + 1) == u'u');
        return isHalf ? m_text.left(slash) : m_text;
    }

    static std::optional<QJsonObject> parsed(QString text, const QString &open)
    {
        for (qsizetype i = open.size(); i > 0; --i)
            text += open.at(i - 1);
        const QJsonDocument json = QJsonDocument::fromJson(text.toUtf8());
        return json.isObject() ? std::optional(json.object()) : std::nullopt;
    }

    const QString &m_text;
    QString m_open; ///< what closes the open objects and lists, the innermost last
    QString m_openAtComma;
    qsizetype m_lastComma = 0;
    bool m_isInString = false;
    bool m_isEscaped = false;
};

} // namespace

QString readableRemains(const QByteArray &bytes)
{
    const qsizetype end = bytes.indexOf('\0'); // what a disk leaves where nothing was written
    const QString text = QString::fromUtf8(end < 0 ? bytes : bytes.first(end)).trimmed();
    const std::optional<QJsonObject> file = CutJson(text).object();
    if (!file)
        return text;
    return file->isEmpty() ? QString() : Writer(nullptr).write(*file);
}

QString readableFile(const QByteArray &bytes, const core::Project *project)
{
    const std::optional<QJsonObject> file = objectIn(bytes);
    return file ? Writer(project).write(*file) : QString::fromUtf8(bytes);
}

ReadableVersions readableVersions(const std::optional<QByteArray> &before,
                                  const std::optional<QByteArray> &after,
                                  const core::Project *project)
{
    std::optional<QJsonObject> first = objectIn(before);
    std::optional<QJsonObject> second = objectIn(after);
    if (!first || !second)
        return {before ? readableFile(*before, project) : QString(),
                after ? readableFile(*after, project) : QString()};
    const QStringList keys = first->keys();
    for (const QString &key : keys) {
        const bool isKept =
            key == QLatin1String("body")
            || std::find(std::begin(headKeys), std::end(headKeys), key) != std::end(headKeys);
        if (!isKept && first->value(key) == second->value(key)) {
            first->remove(key);
            second->remove(key);
        }
    }
    return {Writer(project).write(*first), Writer(project).write(*second)};
}

QString readableName(const QString &path, const QByteArray &bytes)
{
    const QJsonObject json = QJsonDocument::fromJson(bytes).object();
    for (const QLatin1String key : {QLatin1String("title"), QLatin1String("name")}) {
        QString text = json.value(key).toString();
        if (!text.isEmpty())
            return text;
    }
    return path;
}

} // namespace vl::app

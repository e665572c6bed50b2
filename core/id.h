#pragma once

#include <QtCore/QHashFunctions>
#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtCore/QUuid>

namespace vl::core {

/// Reads a UUID in its 36-character text form, with or without braces, in any case of letters.
/// Anything else, trailing text and lone braces included, gives the null UUID.
QUuid uuidFromText(QStringView text);

/// The text form of a UUID: 36 characters, lower case, without braces.
QString uuidToText(const QUuid &uuid);

/// A typed 128-bit identifier. The tag only keeps families of identifiers apart while compiling.
template<typename Tag>
class Id
{
public:
    /// The null id: all zero.
    constexpr Id() = default;
    explicit constexpr Id(const QUuid &uuid)
        : m_uuid(uuid)
    {
    }

    /// A new random (version 4) id.
    static Id create() { return Id(QUuid::createUuid()); }
    /// The id that the text names, or the null id when it names none.
    static Id fromString(QStringView text) { return Id(uuidFromText(text)); }

    QString toString() const { return uuidToText(m_uuid); }
    bool isNull() const { return m_uuid.isNull(); }
    const QUuid &uuid() const { return m_uuid; }

    friend bool operator==(const Id &a, const Id &b) { return a.m_uuid == b.m_uuid; }
    friend bool operator!=(const Id &a, const Id &b) { return !(a == b); }
    /// The order of UUIDs: by variant, then by the fields from left to right.
    friend bool operator<(const Id &a, const Id &b) { return a.m_uuid < b.m_uuid; }
    friend size_t qHash(const Id &id, size_t seed = 0) { return ::qHash(id.m_uuid, seed); }

private:
    QUuid m_uuid;
};

struct ContentIdTag;
/// Names a content object, or a category of the codex.
using ContentId = Id<ContentIdTag>;

} // namespace vl::core

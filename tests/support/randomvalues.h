#pragma once

#include "tests/support/modelmembers.h"

#include <map>
#include <random>
#include <set>

namespace vl::test {

/// Makes values of every type of the model, the same ones for the same seed.
class RandomValues
{
public:
    explicit RandomValues(quint64 seed)
        : m_engine(seed)
    {
    }

    /// A number from 0 up to, and without, the limit.
    int below(int limit) { return int(m_engine() % quint64(limit)); }
    bool oneIn(int count) { return below(count) == 0; }

    core::ContentId newId()
    {
        // Version 4, as new ids are, but from the seed.
        const quint64 a = m_engine();
        const quint64 b = m_engine();
        return core::ContentId(QUuid(quint32(a), quint16(a >> 32),
                                     quint16((a >> 48 & 0x0fff) | 0x4000), uchar((b & 0x3f) | 0x80),
                                     uchar(b >> 8), uchar(b >> 16), uchar(b >> 24), uchar(b >> 32),
                                     uchar(b >> 40), uchar(b >> 48), uchar(b >> 56)));
    }

    template<typename T>
    T make()
    {
        T value{};
        fill(value);
        return value;
    }

private:
    void fill(bool &value) { value = oneIn(2); }
    void fill(double &value) { value = oneIn(3) ? below(100) : (below(2000001) - 1000000) / 64.0; }
    void fill(qint32 &value) { value = oneIn(8) ? qint32(m_engine()) : below(20); }
    void fill(qint64 &value) { value = oneIn(4) ? qint64(m_engine()) : below(100000); }
    void fill(QString &value);
    void fill(QDate &value)
    {
        value = oneIn(3) ? QDate() : QDate(1990, 1, 1).addDays(below(20000));
    }
    void fill(QDateTime &value)
    {
        value = oneIn(3) ? QDateTime() : QDateTime::fromMSecsSinceEpoch(below(2000000000), Qt::UTC);
    }
    void fill(core::ContentId &value) { value = oneIn(3) ? core::ContentId() : newId(); }
    void fill(core::DocumentKind &value) { value = core::DocumentKind(below(3)); }
    void fill(core::RuleComparison &value) { value = core::RuleComparison(below(2)); }
    void fill(core::FieldType &value) { value = core::FieldType(below(7)); }
    void fill(core::MapGridKind &value) { value = core::MapGridKind(below(3)); }
    void fill(core::DateQualifier &value) { value = core::DateQualifier(below(5)); }
    void fill(core::CellAlignment &value) { value = core::CellAlignment(below(4)); }
    void fill(core::CellNumberFormat &value) { value = core::CellNumberFormat(below(5)); }
    template<typename T>
    void fill(std::optional<T> &value)
    {
        if (oneIn(3))
            value.reset();
        else
            value = make<T>();
    }
    template<typename T>
    void fill(QList<T> &list)
    {
        for (int count = below(3); count > 0; --count)
            list.append(make<T>());
    }
    template<typename T>
    void fill(std::set<T> &set)
    {
        for (int count = below(3); count > 0; --count)
            set.insert(make<T>());
    }
    template<typename Key, typename T>
    void fill(std::map<Key, T> &map)
    {
        for (int count = below(3); count > 0; --count)
            map[make<Key>()] = make<T>();
    }
    template<core::Record T>
    void fill(T &record)
    {
        std::apply([this](auto &...member) { (fill(member), ...); }, members(record));
    }

    std::mt19937_64 m_engine;
};

/// A random object of any of the kinds, with random contents. A document gets one of the parents.
std::unique_ptr<core::ContentObject> randomObject(RandomValues &random, core::ContentKind kind,
                                                  const QList<core::ContentId> &parents = {});

/// A project with two objects of each kind, a few categories and every record filled.
void fillRandomly(core::Project &project, RandomValues &random);

} // namespace vl::test

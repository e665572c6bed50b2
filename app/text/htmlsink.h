#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

#include <cstring>

#if defined(Q_OS_LINUX)
#include <sys/mman.h>
#endif

namespace vl::app {

/// A text that grows at its end, for writers that put out millions of short pieces.
class HtmlSink
{
public:
    explicit HtmlSink(qsizetype expectedSize = 256) { grow(expectedSize); }

    qsizetype size() const { return m_size; }
    QStringView from(qsizetype start) const { return {m_data + start, m_size - start}; }
    void truncate(qsizetype size) { m_size = size; }

    /// Makes room for `extra` units and gives the place to write them; advance() then keeps them.
    char16_t *room(qsizetype extra)
    {
        if (m_capacity - m_size < extra)
            grow(qMax(m_capacity + m_capacity / 2, m_size + extra));
        return m_data + m_size;
    }
    void advance(qsizetype units) { m_size += units; }

    void append(char16_t c)
    {
        *room(1) = c;
        ++m_size;
    }
    void append(QStringView text)
    {
        if (text.isEmpty())
            return;
        std::memcpy(room(text.size()), text.utf16(), size_t(text.size()) * sizeof(char16_t));
        m_size += text.size();
    }
    /// Appends a string literal.
    template<size_t N>
    void append(const char16_t (&literal)[N])
    {
        std::memcpy(room(N), literal, (N - 1) * sizeof(char16_t));
        m_size += N - 1;
    }
    /// Appends the decimal digits of a number that is not negative.
    void append(quint64 number)
    {
        char16_t digits[20];
        char16_t *first = digits + 20;
        do {
            *--first = char16_t(u'0' + number % 10);
            number /= 10;
        } while (number != 0);
        append(QStringView(first, digits + 20));
    }

    /// The text; the sink must not be used after this.
    QString take()
    {
        m_text.truncate(m_size);
        return std::move(m_text);
    }

private:
    void grow(qsizetype capacity)
    {
        m_text.resize(capacity);
        m_data = reinterpret_cast<char16_t *>(m_text.data());
        m_capacity = capacity;
        wantLargePages();
    }

    /// For a text of many megabytes a third of the time would go into page faults of 4 KiB each.
    void wantLargePages() const
    {
#if defined(Q_OS_LINUX) && defined(MADV_HUGEPAGE)
        constexpr size_t pageSize = 1 << 21;
        auto *const bytes = reinterpret_cast<char *>(m_data);
        const size_t size = size_t(m_capacity) * sizeof(char16_t);
        const size_t before = (pageSize - quintptr(bytes) % pageSize) % pageSize;
        if (size >= before + pageSize) // advice only: that it may fail does not matter
            madvise(bytes + before, (size - before) / pageSize * pageSize, MADV_HUGEPAGE);
#endif
    }

    QString m_text; // its size is the capacity until take()
    char16_t *m_data = nullptr;
    qsizetype m_size = 0;
    qsizetype m_capacity = 0;
};

} // namespace vl::app

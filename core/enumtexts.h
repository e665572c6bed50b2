#pragma once

#include <QtCore/QLatin1String>
#include <QtCore/QString>
#include <QtCore/QStringView>

#include <array>
#include <optional>

namespace vl::core {

/// The stored texts of an enumeration whose values run 0, 1, 2, … in the order of the table.
template<typename Enum, std::size_t N>
class EnumTexts
{
public:
    constexpr explicit EnumTexts(const std::array<QLatin1String, N> &texts)
        : m_texts(texts)
    {
    }

    /// The stored text; the empty text for a value outside the table.
    QLatin1String text(Enum value) const
    {
        const auto index = static_cast<std::size_t>(value);
        return index < N ? m_texts[index] : QLatin1String();
    }
    /// The value whose text this is, to the letter; nothing when there is none.
    std::optional<Enum> value(QStringView text) const
    {
        for (std::size_t i = 0; i < N; ++i) {
            if (m_texts[i] == text)
                return static_cast<Enum>(i);
        }
        return std::nullopt;
    }
    static constexpr std::size_t size() { return N; }

private:
    std::array<QLatin1String, N> m_texts;
};

template<typename Enum, typename... Texts>
constexpr auto makeEnumTexts(const Texts &...texts)
{
    return EnumTexts<Enum, sizeof...(Texts)>({QLatin1String(texts)...});
}

} // namespace vl::core

#pragma once

#include <QtCore/QString>
#include <tl/expected.hpp>

#include <type_traits>
#include <utility>

namespace vl::app {

/// The failure half of a Result: one message fit for the user, in the interface language.
struct Failure
{
    QString message;
};

/// Makes a failure to return from a function that gives a Result.
inline Failure failure(QString message)
{
    return Failure{std::move(message)};
}

/// A value, or one message that tells the user why there is none. Test it before `*` or `->`.
template<typename T = void>
class [[nodiscard]] Result
{
    static constexpr bool hasValue = !std::is_void_v<T>;
    template<typename U>
    static constexpr bool isValue = hasValue && std::is_constructible_v<T, U>
                                    && !std::is_same_v<std::remove_cvref_t<U>, Result>
                                    && !std::is_same_v<std::remove_cvref_t<U>, Failure>;

public:
    Result()
        requires std::is_void_v<T>
    = default;
    // In this form, which the linter takes for what it is: a condition that leaves copying alone.
    template<typename U = T, typename = std::enable_if_t<isValue<U>>>
    Result(U &&value) // NOLINT(google-explicit-constructor): `return value;` is the point
        : m_expected(std::forward<U>(value))
    {
    }
    Result(Failure why) // NOLINT(google-explicit-constructor): `return failure(…);` is the point
        : m_expected(tl::unexpect, std::move(why.message))
    {
    }

    bool hasFailed() const { return !m_expected.has_value(); }
    explicit operator bool() const { return m_expected.has_value(); }

    /// The message; only when the result has failed.
    const QString &message() const { return m_expected.error(); }
    /// The failure itself, to be handed on by a caller whose own Result holds another type.
    Failure asFailure() const { return Failure{m_expected.error()}; }

    decltype(auto) operator*() &
        requires hasValue
    {
        return *m_expected;
    }
    decltype(auto) operator*() const &
        requires hasValue
    {
        return *m_expected;
    }
    decltype(auto) operator*() &&
        requires hasValue
    {
        return *std::move(m_expected);
    }
    auto operator->()
        requires hasValue
    {
        return m_expected.operator->();
    }
    auto operator->() const
        requires hasValue
    {
        return m_expected.operator->();
    }

private:
    tl::expected<T, QString> m_expected;
};

} // namespace vl::app

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringView>

#include <optional>
#include <vector>

namespace vl::app {

/// A text as the matcher reads it: without case and accents, each UTF-16 unit in its old place, so
/// that a place found in it is a place of the text.
class FuzzyText
{
public:
    /// Longer texts are matched by their beginning, of this many UTF-16 units.
    static constexpr qsizetype maximumLength = 256;

    FuzzyText() = default;
    explicit FuzzyText(QStringView text);

    QStringView folded() const { return m_folded; }
    bool isEmpty() const { return m_folded.isEmpty(); }

private:
    friend class FuzzyWord;

    QString m_folded;
    std::vector<qint8> m_bonus; ///< by place: what it is worth to begin a run of letters there
    quint64 m_letters = 0;      ///< a bit for each letter that occurs; several letters share one
};

/// One word of what the user types. Its letters match in their order with others between them;
/// beginnings of words and unbroken runs count most.
class FuzzyWord
{
public:
    /// Longer words are matched by their beginning, of this many UTF-16 units.
    static constexpr qsizetype maximumLength = 64;

    explicit FuzzyWord(QStringView word);

    QStringView folded() const { return m_folded; }
    /// How well the word matches, the higher the better; nothing when it does not, or only with
    /// its letters scattered all over the text.
    std::optional<int> score(const FuzzyText &text) const;
    /// The same when one letter of the word may be wrong; short words allow for no mistake.
    std::optional<int> scoreWithMistake(const FuzzyText &text) const;
    /// The places of the text, ascending, that the best match took; empty when there is none.
    QList<int> places(const FuzzyText &text) const;

private:
    bool mayMatch(const FuzzyText &text) const;
    std::optional<int> align(const FuzzyText &text, std::vector<int> *places) const;
    FuzzyWord without(qsizetype place) const;

    QString m_folded;
    quint64 m_letters = 0;
};

/// What the user types to find something by its name: words in any order, all of which must match.
QList<FuzzyWord> fuzzyWords(QStringView query);

} // namespace vl::app

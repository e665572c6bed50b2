#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QRegularExpression>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QStringView>

namespace vl::app {

/// One finding in a text. Offsets and lengths count UTF-16 code units.
struct StyleIssue
{
    qint64 start = 0;
    qint64 length = 0;
    int kind = 0;       ///< the category, equal to the kind of the rule that found it
    QString message;    ///< what the user reads
    QString suggestion; ///< a text to put in place of the finding; empty when there is none

    bool operator==(const StyleIssue &) const = default;
};

} // namespace vl::app
Q_DECLARE_TYPEINFO(vl::app::StyleIssue, Q_RELOCATABLE_TYPE);
namespace vl::app {

/// The categories of findings, numbered as StyleIssue::kind.
namespace stylekind {
constexpr int LongSentence = 0;
constexpr int PassiveVoice = 1;
constexpr int CrutchWord = 2;
constexpr int RepeatedWord = 3;
constexpr int Wordiness = 4;
constexpr int Adverb = 5;
constexpr int Cliche = 6;
constexpr int Count = 7;
} // namespace stylekind

/// The name of a category in reports; "Other" for a number that is none.
QString styleCategoryName(int kind);

/// A case-insensitive expression that finds each of the phrases, literally and as whole words, the
/// longest where several begin at one place. Without phrases it never matches.
QRegularExpression buildPhrasePattern(const QStringList &phrases);

/// One check for weak prose. Rules keep no state: one object may check on several threads at once.
/// A unit that is half of a surrogate pair counts as a sign that is neither letter nor blank.
class StyleRule
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::StyleRule)

public:
    StyleRule() = default;
    StyleRule(const StyleRule &) = delete;
    StyleRule &operator=(const StyleRule &) = delete;
    virtual ~StyleRule();

    /// The stable identifier of the rule.
    virtual QString id() const = 0;
    /// The category of what the rule finds.
    virtual int kind() const = 0;
    /// What the rule has against the text, from front to back; linear in the length.
    virtual QList<StyleIssue> check(QStringView text) const = 0;
};

/// Finds sentences of more than 40 words.
class LongSentenceRule final : public StyleRule
{
public:
    QString id() const override;
    int kind() const override;
    QList<StyleIssue> check(QStringView text) const override;
};

/// Finds a form of "to be" with a participle, "not" or one word in "-ly" allowed between them.
class PassiveVoiceRule final : public StyleRule
{
public:
    QString id() const override;
    int kind() const override;
    QList<StyleIssue> check(QStringView text) const override;
};

/// Finds filler words.
class CrutchWordRule final : public StyleRule
{
public:
    QString id() const override;
    int kind() const override;
    QList<StyleIssue> check(QStringView text) const override;
};

/// Finds a word that stands twice in a row on one line.
class RepeatedWordRule final : public StyleRule
{
public:
    QString id() const override;
    int kind() const override;
    QList<StyleIssue> check(QStringView text) const override;
};

/// Finds wordy phrases; the suggestion is the shorter text, always in lower case.
class WordinessRule final : public StyleRule
{
public:
    QString id() const override;
    int kind() const override;
    QList<StyleIssue> check(QStringView text) const override;
};

/// Finds adverbs in "-ly"; the message shows the word as it is written.
class AdverbRule final : public StyleRule
{
public:
    QString id() const override;
    int kind() const override;
    QList<StyleIssue> check(QStringView text) const override;
};

/// Finds stock phrases.
class ClicheRule final : public StyleRule
{
public:
    QString id() const override;
    int kind() const override;
    QList<StyleIssue> check(QStringView text) const override;
};

} // namespace vl::app

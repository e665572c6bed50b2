#pragma once

#include "app/text/stylerules.h"
#include "app/text/stylewords.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

#include <algorithm>
#include <vector>

/// The style rules once more, by regular expressions: slow, and easy to hold against their
/// description.
class StyleOracle
{
public:
    struct Rule
    {
        int kind;
        QRegularExpression expression;
    };

    StyleOracle()
    {
        using namespace vl::app;
        QStringList wordy;
        for (const WordyPhrase &row : stylewords::wordyPhrases())
            wordy.append(row.phrase);
        // In the order of the checker.
        m_rules = {
            {3, expression(QStringLiteral("\\b(\\p{L}+)[ \\t]+\\1\\b"))},
            {2, buildPhrasePattern(stylewords::fillers())},
            {4, buildPhrasePattern(wordy)},
            {1,
             expression(QStringLiteral("\\b(?:") + stylewords::formsOfToBe().join(u'|')
                        + QStringLiteral(")\\b(?:\\s+(?:not|\\w+ly))?\\s+((?:\\w{2,}ed|")
                        + stylewords::irregularParticiples().join(u'|') + QStringLiteral("))\\b"))},
            {0, expression(QStringLiteral("[^.!?]+[.!?]*"))},
            {5, expression(QStringLiteral("\\b\\p{L}{2,}ly\\b"))},
            {6, buildPhrasePattern(stylewords::cliches())},
        };
        const QStringList exceptions = stylewords::adverbExceptions();
        m_exceptions = QSet<QString>(exceptions.begin(), exceptions.end());
        m_space = expression(QStringLiteral("\\s"));
        m_word = expression(QStringLiteral("\\S+"));
    }

    const std::vector<Rule> &rules() const { return m_rules; }

    /// The findings of one rule. Sets *hasFailed when the expression gave up.
    QList<vl::app::StyleIssue> check(const Rule &rule, const QString &text, bool *hasFailed) const
    {
        // The expressions refuse a text with half a surrogate pair in it.
        const QString searched = withoutLoneSurrogates(text);
        QList<vl::app::StyleIssue> issues;
        QRegularExpressionMatchIterator matches = rule.expression.globalMatch(searched);
        *hasFailed = *hasFailed || !matches.isValid();
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            addIssue(rule.kind, match, text, issues);
        }
        return issues;
    }

private:
    static QRegularExpression expression(const QString &pattern)
    {
        return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption
                                               | QRegularExpression::UseUnicodePropertiesOption);
    }

    static QString withoutLoneSurrogates(QString text)
    {
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (!text[i].isSurrogate())
                continue;
            if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
                ++i;
            else
                text[i] = QChar(QChar::ReplacementCharacter);
        }
        return text;
    }

    void addIssue(int kind, const QRegularExpressionMatch &match, const QString &text,
                  QList<vl::app::StyleIssue> &issues) const
    {
        qsizetype start = match.capturedStart();
        qsizetype end = match.capturedEnd();
        if (kind == 0) {
            const QString whole = match.captured();
            while (start < end
                   && m_space.match(whole.mid(start - match.capturedStart(), 1)).hasMatch())
                ++start;
            while (end > start
                   && m_space.match(whole.mid(end - 1 - match.capturedStart(), 1)).hasMatch())
                --end;
        }
        const QString found = text.mid(start, end - start);
        QString message;
        QString suggestion;
        switch (kind) {
        case 0: {
            int words = 0;
            for (auto word = m_word.globalMatch(match.captured()); word.hasNext(); word.next())
                ++words;
            if (words <= 40)
                return;
            message =
                QStringLiteral("Long sentence (%1 words). Consider breaking it up.").arg(words);
            break;
        }
        case 1:
            message = QStringLiteral("Passive voice: ") + found;
            break;
        case 2:
            message = QStringLiteral("Filler word: ") + found;
            break;
        case 3:
            message = QStringLiteral("Repeated word: ") + match.captured(1);
            break;
        case 4:
            for (const vl::app::WordyPhrase &row : vl::app::stylewords::wordyPhrases()) {
                if (row.phrase == QString(found).replace(QChar(0x17F), u's').toLower())
                    suggestion = row.replacement;
            }
            message = QStringLiteral("Wordy: ") + found + QStringLiteral(" → ") + suggestion;
            break;
        case 5:
            if (m_exceptions.contains(found.toLower()))
                return;
            message =
                QStringLiteral("Adverb: ") + found + QStringLiteral(". Consider a stronger verb.");
            break;
        default:
            message = QStringLiteral("Cliché: ") + found;
        }
        issues.append({start, end - start, kind, message, suggestion});
    }

    std::vector<Rule> m_rules;
    QSet<QString> m_exceptions;
    QRegularExpression m_space;
    QRegularExpression m_word;
};

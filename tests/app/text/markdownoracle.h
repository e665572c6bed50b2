#pragma once

#include <QtCore/QString>

/// The Markdown dialect in its slow, plain form: one regular expression a rule, one rule after the
/// other. Lone surrogates, which the expressions refuse, pass as placeholders.
QString renderedByPatterns(const QString &markdown);

/// escapeMarkdownLine() by patterns.
QString lineEscapedByPatterns(const QString &line);

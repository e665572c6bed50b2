#include "app/text/footnotetext.h"

#include "app/text/markdownscan.h"

#include <QtCore/QSet>

namespace vl::app {

QString footnoteDefinitionLine(const QString &id, const QString &text)
{
    return QLatin1String("[^") + id + QLatin1String("]: ") + text + u'\n';
}

QString newFootnoteId(const QStringList &usedIds)
{
    const QSet<QString> used(usedIds.begin(), usedIds.end());
    for (qsizetype number = 1;; ++number) {
        QString id = QLatin1String("fn") + QString::number(number);
        if (!used.contains(id))
            return id;
    }
}

QList<FootnoteReference> findFootnoteReferences(const QString &text)
{
    QList<FootnoteReference> found;
    qsizetype at = 0;
    while ((at = text.indexOf(QLatin1String("[^"), at)) >= 0) {
        const qsizetype close = text.indexOf(u']', at + 2);
        if (close < 0)
            break;
        if (close > at + 2) // "[^]" names nothing
            found.append({text.mid(at + 2, close - at - 2), at, close + 1 - at});
        at = close + 1;
    }
    return found;
}

bool isFootnoteDefinitionLine(QStringView line)
{
    const qsizetype at = skipPatternSpace(line);
    if (!line.mid(at).startsWith(QLatin1String("[^")))
        return false;
    const qsizetype close = line.indexOf(u']', at + 2);
    return close > at + 2 && close + 1 < line.size() && line[close + 1] == u':';
}

QString withoutFootnoteDefinitions(const QString &text)
{
    if (!text.contains(QLatin1String("[^")))
        return text;
    QString kept;
    kept.reserve(text.size());
    bool first = true;
    for (const QStringView line : QStringView(text).tokenize(u'\n')) {
        if (isFootnoteDefinitionLine(line))
            continue;
        if (!first)
            kept += u'\n';
        kept += line;
        first = false;
    }
    return kept;
}

} // namespace vl::app

#include "app/models/textheadings.h"

#include "app/text/markdownscan.h"

#include <algorithm>
#include <optional>

namespace vl::app {

namespace {

constexpr int widestSceneLevel = 3; // below the acts and sequences that sections stand for

std::optional<TextHeading> markedHeading(QStringView line)
{
    qsizetype level = 0;
    while (level < line.size() && line[level] == u'#')
        ++level;
    if (level < 1 || level > 6 || level == line.size() || !isPatternSpace(line[level].unicode()))
        return {};
    const QStringView text = line.mid(level).trimmed();
    return text.isEmpty() ? std::nullopt : std::optional(TextHeading{text.toString(), int(level)});
}

std::optional<TextHeading> sceneHeading(QStringView line)
{
    // A lone dot forces a scene heading; three are an ellipsis.
    if (line.size() > 1 && line[0] == u'.' && line[1] != u'.')
        return TextHeading{line.mid(1).trimmed().toString(), widestSceneLevel};
    static constexpr QStringView beginnings[] = {u"INT", u"EXT", u"EST", u"I/E"};
    const bool begins =
        std::any_of(std::begin(beginnings), std::end(beginnings), [line](QStringView beginning) {
            const qsizetype length = beginning.size();
            return line.size() > length + 1 && line.startsWith(beginning, Qt::CaseInsensitive)
                   && (line[length] == u'.' || line[length] == u' ' || line[length] == u'/');
        });
    return begins ? std::optional(TextHeading{line.toString(), widestSceneLevel}) : std::nullopt;
}

} // namespace

QList<TextHeading> textHeadings(QStringView body, core::DocumentKind kind)
{
    QList<TextHeading> list;
    qsizetype start = 0;
    while (start < body.size()) {
        qsizetype end = start;
        while (end < body.size() && body[end] != u'\n' && body[end] != u'\r')
            ++end;
        const QStringView line = body.mid(start, end - start);
        std::optional<TextHeading> heading = markedHeading(line);
        if (!heading && kind == core::DocumentKind::Screenplay)
            heading = sceneHeading(line);
        if (heading) {
            heading->position = start;
            heading->length = line.size();
            list.append(*std::move(heading));
        }
        start = end + 1;
    }
    return list;
}

} // namespace vl::app

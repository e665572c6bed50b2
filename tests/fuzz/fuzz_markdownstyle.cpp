#include "app/text/markdownstyle.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using namespace vl::app;
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    MarkdownLineState state;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        const MarkdownLine read = readMarkdownLine(line, state);
        if (read.after != markdownStateAfter(line, state))
            abort();
        int end = 0;
        for (const MarkdownRange &range : read.ranges) {
            if (range.start < end || range.length <= 0 || range.style == PlainText)
                abort();
            end = range.start + range.length;
        }
        if (end > line.size())
            abort();
        for (const MarkdownImage &image : read.images)
            if (image.pathStart < 0 || image.pathStart + image.pathLength > line.size())
                abort();
        state = read.after;
    }
    return 0;
}

#include "app/text/healthreport.h"
#include "app/text/prosestatistics.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cstdint>
#include <cstdlib>

using namespace vl::app;

/// The lines of the input are by turns a name, a title with its point of view, and a text.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString all = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    HealthInput input;
    qsizetype number = 0;
    qint64 words = 0;
    for (const QString &line : all.split(u'\x1e')) {
        if (number++ % 3 == 0) {
            input.entities.append({line, line.split(u'|'), line.left(2)});
        } else {
            input.documents.append({line.left(40), line, line.left(3), line.right(3)});
            const ProseStatistics prose = measureProse(line);
            if (prose.spokenWords < 0 || prose.sentences > prose.proseWords()
                || prose.paragraphs > prose.sentences || prose.longWords > prose.proseWords()
                || prose.syllables < prose.proseWords())
                std::abort();
            words += prose.words;
        }
    }
    if (!HealthReport::toMarkdown(input).contains(QString::number(words)))
        std::abort();
    return 0;
}

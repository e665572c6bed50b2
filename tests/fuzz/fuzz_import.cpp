// The importers of plain text and of Markdown: no bytes break them, no letter of the text is lost,
// and no document lies deeper than the limit.

#include "app/text/import/markdownimport.h"
#include "app/text/import/plaintextimport.h"
#include "app/text/import/textdecoding.h"

#include <QtCore/QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace vl::app;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void appendLetters(QString &letters, const QString &text)
{
    for (const QChar c : text)
        if (c.isLetterOrNumber())
            letters += c;
}

void appendLetters(QString &letters, const std::vector<ImportedDocument> &documents, int depth)
{
    require(depth <= deepestImport);
    for (const ImportedDocument &document : documents) {
        if (document.title != QLatin1String("Front Matter"))
            appendLetters(letters, document.title);
        appendLetters(letters, document.body);
        appendLetters(letters, document.children, depth + 1);
    }
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the name that libFuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArrayView bytes(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    QString before;
    appendLetters(before, decodeText(bytes));
    QString after;
    if (data[0] % 2 == 0) {
        appendLetters(after, importPlainText(bytes, QString()).documents, 0);
        require(before.contains(QLatin1String("FrontMatter")) || after == before);
    } else {
        // Footnotes move, and go to every document that refers to them; a title may come from YAML.
        const ImportedManuscript result = importMarkdownText(bytes, QString());
        appendLetters(after, result.documents, 0);
        const QString text = decodeText(bytes);
        const bool mayMove = text.contains(QLatin1String("[^"))
                             || QStringView(text).trimmed().startsWith(QLatin1String("---"))
                             || before.contains(QLatin1String("FrontMatter"));
        if (mayMove)
            require(after.size() + result.title.size() + 32 >= before.size());
        else
            require(after == before);
    }
    return 0;
}

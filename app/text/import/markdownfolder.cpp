#include "app/text/import/markdownfolder.h"

#include "app/base/files.h"
#include "app/text/import/markdownimport.h"
#include "app/text/import/plaintextimport.h"
#include "app/text/import/textdecoding.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <iterator>

namespace vl::app {

namespace {

// More than any book, less than a mistyped path to a whole disk.
constexpr int mostFiles = 50000;
constexpr qint64 mostBytes = qint64(512) << 20;
constexpr int deepestFolder = deepestImport / 2;

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/// The digits from `at` on, without leading zeros; moves behind them.
QStringView takeNumber(QStringView text, qsizetype &at)
{
    while (at + 1 < text.size() && text[at] == QLatin1Char('0') && isDigit(text[at + 1]))
        ++at;
    const qsizetype start = at;
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return text.mid(start, at - start);
}

/// Walks one folder and gathers what is text in it.
class FolderReader
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::FolderReader)

public:
    /// The documents of a folder and of those below it.
    std::vector<ImportedDocument> read(const QString &folder, int depth);
    QStringList takeSkipped() { return std::move(m_skipped); }

private:
    void skip(const QString &message, const QFileInfo &entry)
    {
        m_skipped += withPath(message, entry.filePath());
    }
    bool isToRead(const QFileInfo &entry, int depth);
    void readFile(const QFileInfo &entry, std::vector<ImportedDocument> &documents);

    QStringList m_skipped;
    int m_files = 0;
    qint64 m_bytes = 0;
};

/// A file as one document: its only one, or one of its own with the headings below it. A note that
/// the file came with goes below as well.
ImportedDocument asOneDocument(ImportedManuscript file)
{
    auto &parts = file.documents;
    const auto firstText =
        std::stable_partition(parts.begin(), parts.end(), [](const ImportedDocument &part) {
            return part.kind == core::DocumentKind::Note;
        });
    ImportedDocument document;
    document.title = file.title;
    auto firstChild = firstText;
    if (parts.end() - firstText == 1) {
        document = std::move(*firstChild++);
    } else if (file.hasFrontText && firstText != parts.end()) {
        document.body = firstText->body;
        ++firstChild;
    }
    auto &children = document.children;
    children.insert(children.begin(), std::make_move_iterator(parts.begin()),
                    std::make_move_iterator(firstText));
    std::move(firstChild, parts.end(), std::back_inserter(children));
    return document;
}

bool FolderReader::isToRead(const QFileInfo &entry, int depth)
{
    static const QStringList endings{QStringLiteral("md"), QStringLiteral("markdown"),
                                     QStringLiteral("txt")};
    if (entry.fileName().startsWith(QLatin1Char('.')))
        skip(tr("Skipped a hidden file: %1"), entry);
    else if (entry.isSymLink())
        skip(tr("Skipped a link: %1"), entry);
    else if (entry.isDir() && depth >= deepestFolder)
        skip(tr("Skipped a folder that lies too deep: %1"), entry);
    else if (!entry.isDir() && !endings.contains(entry.suffix().toLower()))
        skip(tr("Skipped, not a text file: %1"), entry);
    else if (!entry.isDir() && (m_files >= mostFiles || m_bytes + entry.size() > mostBytes))
        skip(tr("Skipped, too much was read already: %1"), entry);
    else
        return true;
    return false;
}

void FolderReader::readFile(const QFileInfo &entry, std::vector<ImportedDocument> &documents)
{
    const auto bytes = readRegularFile(entry.filePath(), tr("Cannot read file: %1"),
                                       largestTextImport, Links::Refuse);
    if (!bytes) {
        m_skipped += bytes.message();
        return;
    }
    if (looksBinary(*bytes)) {
        skip(tr("Skipped, not a text file: %1"), entry);
        return;
    }
    ++m_files;
    m_bytes += bytes->size();
    const QString name = entry.completeBaseName();
    const bool isPlain = entry.suffix().compare(QLatin1String("txt"), Qt::CaseInsensitive) == 0;
    ImportedManuscript file =
        isPlain ? importPlainText(*bytes, name) : importMarkdownText(*bytes, name);
    documents.push_back(asOneDocument(std::move(file)));
}

std::vector<ImportedDocument> FolderReader::read(const QString &folder, int depth)
{
    QFileInfoList entries = QDir(folder).entryInfoList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    std::sort(entries.begin(), entries.end(), [](const QFileInfo &a, const QFileInfo &b) {
        return isNaturallyBefore(a.fileName(), b.fileName());
    });
    std::vector<ImportedDocument> documents;
    for (const QFileInfo &entry : std::as_const(entries)) {
        if (!isToRead(entry, depth))
            continue;
        if (!entry.isDir()) {
            readFile(entry, documents);
            continue;
        }
        std::vector<ImportedDocument> below = read(entry.filePath(), depth + 1);
        if (below.empty())
            continue;
        ImportedDocument document;
        document.title = entry.fileName();
        document.children = std::move(below);
        documents.push_back(std::move(document));
    }
    return documents;
}

} // namespace

bool isNaturallyBefore(QStringView a, QStringView b)
{
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < a.size() && j < b.size()) {
        if (isDigit(a[i]) && isDigit(b[j])) {
            const QStringView first = takeNumber(a, i);
            const QStringView second = takeNumber(b, j);
            if (first.size() != second.size())
                return first.size() < second.size();
            if (const int order = first.compare(second); order != 0)
                return order < 0;
            continue;
        }
        const QChar first = a[i++].toCaseFolded();
        const QChar second = b[j++].toCaseFolded();
        if (first != second)
            return first < second;
    }
    if (i < a.size() || j < b.size())
        return j < b.size();
    return a < b; // alike but for case and leading zeros
}

Result<ImportedManuscript> importMarkdown(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isDir()) {
        const auto bytes = readRegularFile(
            path, QCoreApplication::translate("vl::app::FolderReader", "Cannot read file: %1"),
            largestTextImport);
        if (!bytes)
            return bytes.asFailure();
        return importMarkdownText(*bytes, info.completeBaseName());
    }
    if (!QDir(path).isReadable()) {
        return failure(withPath(
            QCoreApplication::translate("vl::app::FolderReader", "Cannot read folder: %1"), path));
    }
    FolderReader reader;
    ImportedManuscript result;
    result.title = QDir(path).dirName();
    result.documents = reader.read(path, 0);
    result.skipped = reader.takeSkipped();
    return result;
}

} // namespace vl::app

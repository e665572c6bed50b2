#include "app/storage/journal.h"

#include "app/base/files.h"
#include "app/base/sha256.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QtEndian>

#include <libdeflate.h>

#include <algorithm>
#include <limits>

namespace vl::app {

namespace {

constexpr QByteArrayView magic("IVOREL JOURNAL 1\n");
constexpr qsizetype pieceHead = 8;            // length and checksum
constexpr qint64 slack = qint64(8) << 20;     // a journal grows by so much before it is tidied
constexpr int mostPieces = 2000;              // and by so many pieces
constexpr qint64 mostWork = qint64(8) << 30;  // bytes that reading one may copy
constexpr qint64 mostBytes = qint64(1) << 30; // that a journal may have
constexpr std::size_t mostVersions = std::size_t(2) * mostPieces; // of one file
constexpr qint64 mostBases = qint64(64) << 20;  // bytes of what stood there, kept whole
constexpr qint64 headBytes = qint64(64) * 1024; // that a head may have

/// What a record does to a file.
enum class Operation : char
{
    Base = 'B',     ///< tells the sum of what stood there, or that nothing did
    Original = 'O', ///< all bytes of what stood there
    Whole = 'W',    ///< all bytes
    Part = 'P',     ///< bytes between a beginning and an end that stay
    Gone = 'G',
};

quint32 sumOf(QByteArrayView bytes)
{
    return libdeflate_crc32(0, bytes.data(), size_t(bytes.size()));
}

class PieceWriter
{
public:
    void begin(Operation operation, const QString &path)
    {
        m_bytes += char(operation);
        text(path.toUtf8());
    }
    void number(quint32 value)
    {
        const quint32 little = qToLittleEndian(value);
        m_bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
    }
    void text(QByteArrayView bytes)
    {
        number(quint32(bytes.size()));
        m_bytes.append(bytes);
    }
    /// The piece with its length and checksum in front.
    QByteArray finish() const
    {
        PieceWriter head;
        head.number(quint32(m_bytes.size()));
        head.number(sumOf(m_bytes));
        return head.m_bytes + m_bytes;
    }

private:
    QByteArray m_bytes;
};

class PieceReader
{
public:
    explicit PieceReader(QByteArrayView bytes)
        : m_rest(bytes)
    {
    }

    bool atEnd() const { return m_rest.isEmpty(); }
    bool isGood() const { return m_isGood; }

    char byte()
    {
        const QByteArrayView taken = take(1);
        return taken.isEmpty() ? '\0' : taken.front();
    }
    quint32 number()
    {
        const QByteArrayView taken = take(4);
        return taken.isEmpty() ? 0 : qFromLittleEndian<quint32>(taken.data());
    }
    QByteArrayView text() { return take(number()); }

private:
    QByteArrayView take(qint64 size)
    {
        if (!m_isGood || size > m_rest.size()) {
            m_isGood = false;
            return {};
        }
        const QByteArrayView taken = m_rest.first(size);
        m_rest = m_rest.sliced(size);
        return taken;
    }

    QByteArrayView m_rest;
    bool m_isGood = true;
};

void writeBase(PieceWriter &piece, const QString &path, const QByteArray &sha256,
               const std::optional<QByteArray> &bytes)
{
    piece.begin(bytes ? Operation::Original : Operation::Base, path);
    piece.text(bytes ? *bytes : sha256);
}

/// The length of the beginning that both have, and then of the end.
std::pair<qsizetype, qsizetype> commonEnds(const QByteArray &a, const QByteArray &b)
{
    const qsizetype shorter = std::min(a.size(), b.size());
    const auto [first, other] = std::mismatch(a.begin(), a.begin() + shorter, b.begin());
    const qsizetype prefix = first - a.begin();
    const auto ends = std::mismatch(a.rbegin(), a.rbegin() + (shorter - prefix), b.rbegin());
    return {prefix, ends.first - a.rbegin()};
}

/// Brings a journal's pieces together, one after the other.
class Replay
{
public:
    explicit Replay(Journal &journal)
        : m_journal(journal)
    {
    }

    /// False when the piece makes no sense; what it did so far is not in the journal then.
    bool add(QByteArrayView piece)
    {
        std::map<QString, JournalFile> changed;
        PieceReader reader(piece);
        while (reader.isGood() && !reader.atEnd()) {
            const auto operation = Operation(reader.byte());
            const QString path = QString::fromUtf8(reader.text());
            if (!reader.isGood())
                return false;
            auto place = changed.find(path);
            if (place == changed.end()) {
                const auto known = m_journal.files.find(path);
                JournalFile file = known == m_journal.files.end() ? JournalFile() : known->second;
                file.change.path = path;
                place = changed.emplace(path, std::move(file)).first;
            }
            if (!apply(operation, reader, place->second))
                return false;
        }
        if (!reader.isGood())
            return false;
        for (auto &[path, file] : changed)
            m_journal.files[path] = std::move(file);
        return true;
    }

private:
    bool apply(Operation operation, PieceReader &reader, JournalFile &file)
    {
        switch (operation) {
        case Operation::Base:
            file.hasBase = true;
            file.baseSha256 = reader.text().toByteArray();
            return reader.isGood();
        case Operation::Original:
            file.hasBase = true;
            file.base = reader.text().toByteArray();
            file.baseSha256 = Sha256::of(*file.base);
            return reader.isGood();
        case Operation::Whole:
            file.change.bytes = reader.text().toByteArray();
            break;
        case Operation::Part: {
            const qint64 prefix = reader.number();
            const qint64 suffix = reader.number();
            const QByteArrayView middle = reader.text();
            const quint32 sum = reader.number();
            if (!reader.isGood() || !file.change.bytes
                || prefix + suffix > file.change.bytes->size())
                return false;
            QByteArray &bytes = *file.change.bytes;
            m_work += bytes.size() + middle.size();
            if (m_work > mostWork)
                return false;
            bytes.replace(prefix, bytes.size() - prefix - suffix, middle.data(), middle.size());
            if (sumOf(bytes) != sum)
                return false;
            break;
        }
        case Operation::Gone:
            file.change.bytes.reset();
            return reader.isGood();
        default:
            return false;
        }
        if (file.versions.size() >= mostVersions)
            file.versions.erase(file.versions.begin());
        if (reader.isGood())
            file.versions.push_back(FileStamp::of(*file.change.bytes));
        return reader.isGood();
    }

    Journal &m_journal;
    qint64 m_work = 0;
};

/// The next piece behind the place, which moves on; nothing when none stands there whole.
std::optional<QByteArrayView> nextPiece(const QByteArray &bytes, qsizetype &place)
{
    if (place + pieceHead > bytes.size())
        return std::nullopt;
    const qint64 size = qFromLittleEndian<quint32>(bytes.constData() + place);
    const auto sum = qFromLittleEndian<quint32>(bytes.constData() + place + 4);
    if (place + pieceHead + size > bytes.size())
        return std::nullopt;
    const QByteArrayView piece = QByteArrayView(bytes).sliced(place + pieceHead, size);
    if (sumOf(piece) != sum)
        return std::nullopt;
    place += pieceHead + size;
    return piece;
}

QByteArray headPiece(const JournalHeader &header)
{
    const QJsonObject json{{QLatin1String("path"), header.projectPath},
                           {QLatin1String("writer"), QString::fromUtf8(header.writer.toJson())},
                           {QLatin1String("earlier"), qint64(header.earlierPieces)}};
    PieceWriter piece;
    piece.text(QJsonDocument(json).toJson(QJsonDocument::Compact));
    return piece.finish();
}

std::optional<JournalHeader> headerIn(QByteArrayView piece)
{
    PieceReader reader(piece);
    const QByteArray text = reader.text().toByteArray();
    const QJsonObject json = QJsonDocument::fromJson(text).object();
    const std::optional<LockHolder> writer =
        LockHolder::fromJson(json.value(QLatin1String("writer")).toString().toUtf8());
    if (!reader.isGood() || !writer)
        return std::nullopt;
    const qint64 earlier = json.value(QLatin1String("earlier")).toInteger();
    return JournalHeader{json.value(QLatin1String("path")).toString(), *writer,
                         quint32(std::clamp<qint64>(earlier, 0, std::numeric_limits<int>::max()))};
}

} // namespace

bool JournalFile::goesOnFrom(const std::optional<QByteArray> &present) const
{
    if (present
        && std::find(versions.begin(), versions.end(), FileStamp::of(*present)) != versions.end())
        return true;
    return hasBase && baseSha256 == (present ? Sha256::of(*present) : QByteArray());
}

std::optional<Journal> parseJournal(const QByteArray &bytes)
{
    if (!bytes.startsWith(magic))
        return std::nullopt;
    qsizetype place = magic.size();
    const std::optional<QByteArrayView> head = nextPiece(bytes, place);
    const std::optional<JournalHeader> header = head ? headerIn(*head) : std::nullopt;
    if (!header)
        return std::nullopt;
    Journal journal;
    journal.header = *header;
    journal.pieces = header->earlierPieces;
    Replay replay(journal);
    while (place < bytes.size()) {
        const std::optional<QByteArrayView> piece = nextPiece(bytes, place);
        if (!piece || !replay.add(*piece)) {
            journal.isTorn = true;
            break;
        }
        ++journal.pieces;
    }
    return journal;
}

Result<Journal> readJournal(const QString &path)
{
    const QString message = QCoreApplication::translate(
        "vl::app::Journal", "What was not saved before the crash cannot be read: %1");
    const Result<QByteArray> bytes = readRegularFile(path, message, mostBytes);
    if (!bytes)
        return bytes.asFailure();
    std::optional<Journal> journal = parseJournal(*bytes);
    if (!journal)
        return failure(withPath(message, path));
    return *std::move(journal);
}

std::optional<JournalHeader> readJournalHeader(const QString &path)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || info.isSymLink() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.read(headBytes);
    qsizetype place = magic.size();
    const std::optional<QByteArrayView> head =
        bytes.startsWith(magic) ? nextPiece(bytes, place) : std::nullopt;
    return head ? headerIn(*head) : std::nullopt;
}

QString nextJournalPath(const QString &path)
{
    return path + QStringLiteral(".next");
}

JournalWriter::JournalWriter(QString path, JournalHeader header, ReadBase readBase)
    : m_path(std::move(path))
    , m_header(std::move(header))
    , m_readBase(std::move(readBase))
    , m_file(m_path)
{
}

bool JournalWriter::begin()
{
    // A failed write left half a piece, behind which nothing may stand: a new journal takes its
    // place.
    const bool isLost = m_allPieces > 0 && (!m_file.isOpen() || !QFile::exists(m_path));
    if (m_isDoubtful || isLost)
        return compact();
    if (m_file.isOpen() && m_file.size() > 0)
        return true;
    return makeFolder() && append(m_file, magic.toByteArray() + headPiece(m_header));
}

bool JournalWriter::makeFolder()
{
    if (makePrivateFolder(QFileInfo(m_path).path()))
        return true;
    m_error = qt_error_string();
    return false;
}

bool JournalWriter::append(AppendFile &file, const QByteArray &bytes)
{
    if (file.append(bytes))
        return true;
    m_error = file.error();
    return false;
}

bool JournalWriter::sync(AppendFile &file)
{
    if (file.sync())
        return true;
    m_error = file.error();
    return false;
}

void JournalWriter::addBase(const QString &path)
{
    if (m_bases.contains(path))
        return;
    Base base;
    if (std::optional<QByteArray> bytes = m_readBase(path)) {
        base.sha256 = Sha256::of(*bytes);
        if (m_baseSize + bytes->size() <= mostBases) {
            m_baseSize += bytes->size();
            base.bytes = std::move(bytes);
        }
    }
    m_bases.emplace(path, std::move(base));
}

QByteArray JournalWriter::missingPiece() const
{
    PieceWriter piece;
    for (const auto &[path, change] : m_missing) {
        const auto known = m_last.find(path);
        if (known == m_last.end())
            writeBase(piece, path, m_bases.at(path).sha256, m_bases.at(path).bytes);
        const Last last = known == m_last.end() ? std::nullopt : known->second;
        if (!change.bytes) {
            piece.begin(Operation::Gone, path);
        } else if (!last) {
            piece.begin(Operation::Whole, path);
            piece.text(*change.bytes);
        } else if (*last != *change.bytes) {
            const auto [prefix, suffix] = commonEnds(*last, *change.bytes);
            piece.begin(Operation::Part, path);
            piece.number(quint32(prefix));
            piece.number(quint32(suffix));
            piece.text(QByteArrayView(*change.bytes)
                           .sliced(prefix, change.bytes->size() - prefix - suffix));
            piece.number(sumOf(*change.bytes));
        }
    }
    return piece.finish();
}

void JournalWriter::noteWritten()
{
    for (auto &[path, change] : m_missing) {
        Last &last = m_last[path];
        m_lastSize += (change.bytes ? change.bytes->size() : 0) - (last ? last->size() : 0);
        last = std::move(change.bytes);
    }
    m_missing.clear();
    ++m_pieces;
    ++m_allPieces;
}

bool JournalWriter::isTooLarge() const
{
    return m_pieces > mostPieces || m_file.size() > 2 * (m_lastSize + m_baseSize) + slack;
}

bool JournalWriter::add()
{
    if (m_missing.empty())
        return !m_isDoubtful || compact();
    if (!begin())
        return false;
    for (const auto &[path, change] : m_missing)
        addBase(path);
    if (!append(m_file, missingPiece()))
        return false;
    noteWritten();
    if (isTooLarge())
        return compact();
    m_isDoubtful = !sync(m_file);
    return !m_isDoubtful;
}

Result<> JournalWriter::write(const std::vector<FileChange> &changes)
{
    for (const FileChange &change : changes)
        m_missing[change.path] = change;
    if (add())
        return {};
    return failure(m_error);
}

/// Writes the journal anew with what it comes to; the old one stays until the new one is whole.
bool JournalWriter::compact()
{
    PieceWriter piece;
    for (const auto &[path, base] : m_bases)
        writeBase(piece, path, base.sha256, base.bytes);
    for (const auto &[path, bytes] : m_last) {
        piece.begin(bytes ? Operation::Whole : Operation::Gone, path);
        if (bytes)
            piece.text(*bytes);
    }
    JournalHeader header = m_header;
    header.earlierPieces = m_allPieces;
    AppendFile file(nextJournalPath(m_path));
    const bool isWritten = makeFolder()
                           && append(file, magic.toByteArray() + headPiece(header) + piece.finish())
                           && sync(file);
    if (!isWritten || !file.renameTo(m_path)) {
        m_error = isWritten ? file.error() : m_error;
        file.remove();
        return false;
    }
    m_file = std::move(file);
    m_pieces = 0;
    ++m_allPieces;
    m_isDoubtful = false;
    return true;
}

void JournalWriter::clear()
{
    m_file.remove();
    removeFile(nextJournalPath(m_path), Durability::Atomic);
    m_bases.clear();
    m_last.clear();
    m_missing.clear();
    m_baseSize = 0;
    m_lastSize = 0;
    m_pieces = 0;
    m_allPieces = 0;
    m_isDoubtful = false;
}

} // namespace vl::app

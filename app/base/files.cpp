#include "app/base/files.h"

#include "app/base/atomicfilehandle.h"
#include "app/base/unfinishedname.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>

namespace vl::app {

namespace {

const QLatin1String unfinishedPrefix(".ivorel-");
const QLatin1String unfinishedSuffix(".tmp");
constexpr int nameDigits = 8;   // tell which file the temporary is for
constexpr int randomDigits = 8; // tell it from others for the same file

QByteArray hexDigits(quint32 value)
{
    return QByteArray::number(value, 16).rightJustified(8, '0');
}

} // namespace

QByteArray unfinishedNameStart(QByteArrayView fileName)
{
    quint32 hash = 2166136261U; // FNV-1a
    for (const char byte : fileName)
        hash = (hash ^ uchar(byte)) * 16777619U;
    return unfinishedPrefix.data() + hexDigits(hash);
}

QByteArray newUnfinishedName(QByteArrayView fileName)
{
    return unfinishedNameStart(fileName) + hexDigits(QRandomGenerator::global()->generate())
           + unfinishedSuffix.data();
}

QString withPath(const QString &message, const QString &path)
{
    // A caller that shows no message hands in none.
    return message.isEmpty() ? QString() : message.arg(QDir::toNativeSeparators(path));
}

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool isUnfinishedFileName(const QString &fileName)
{
    return fileName.size()
               == unfinishedPrefix.size() + nameDigits + randomDigits + unfinishedSuffix.size()
           && fileName.startsWith(unfinishedPrefix) && fileName.endsWith(unfinishedSuffix);
}

static void removeUnfinished(QDir folder, const QString &start)
{
    const QStringList names =
        folder.entryList({start + QLatin1Char('*')}, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &name : names) {
        if (isUnfinishedFileName(name))
            folder.remove(name);
    }
}

bool makePrivateFolder(const QString &path)
{
    if (QFileInfo(path).isDir())
        return true;
    return makeFolder(path)
           && QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void removeUnfinishedFiles(const QString &folder)
{
    removeUnfinished(QDir(folder), unfinishedPrefix);
}

void removeUnfinishedFilesOf(const QString &path)
{
    const QFileInfo info(path);
    const QFileInfo target(info.isSymLink() ? info.symLinkTarget() : path);
    const QByteArray name = QFile::encodeName(target.fileName());
    removeUnfinished(target.absoluteDir(), QString::fromLatin1(unfinishedNameStart(name)));
}

AtomicFile::AtomicFile(QString path, WriteMessages messages)
    : m_path(std::move(path))
    , m_messages(std::move(messages))
    , m_handle(std::make_unique<Handle>())
{
}

AtomicFile::~AtomicFile()
{
    discard();
}

Result<> AtomicFile::openFailure() const
{
    return failure(withPath(m_messages.cannotOpen, m_path));
}

Result<> AtomicFile::writeFailure()
{
    discard();
    return failure(withPath(m_messages.cannotWrite, m_path));
}

Result<> writeFile(const QString &path, QByteArrayView bytes, const WriteMessages &messages,
                   Durability durability)
{
    AtomicFile file(path, messages);
    if (Result<> opened = file.open(); !opened)
        return opened;
    if (Result<> written = file.write(bytes); !written)
        return written;
    return file.commit(durability);
}

FileBatch::FileBatch(WriteMessages messages, Durability durability)
    : m_messages(std::move(messages))
    , m_durability(durability)
{
}

Result<> FileBatch::add(const QString &path, QByteArrayView bytes)
{
    return fileHolds(path, bytes) ? Result<>() : addChanged(path, bytes);
}

} // namespace vl::app

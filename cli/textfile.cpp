#include "cli/textfile.h"

#include "app/base/files.h"
#include "cli/console.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

namespace vl::cli {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(vl::cli::TextFile)
};

} // namespace

app::Result<QByteArray> readInput(const QString &path)
{
    if (!path.isEmpty() && path != QLatin1String("-"))
        return app::readRegularFile(path, Texts::tr("Cannot read file: %1"));
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return app::failure(Texts::tr("Cannot read from standard input."));
    QByteArray bytes = input.readAll();
    if (input.error() != QFileDevice::NoError)
        return app::failure(Texts::tr("Cannot read from standard input."));
    return bytes;
}

app::Result<QString> readInputText(const QString &path)
{
    const app::Result<QByteArray> bytes = readInput(path);
    if (!bytes)
        return bytes.asFailure();
    QByteArrayView view(*bytes);
    if (view.startsWith("\xEF\xBB\xBF"))
        view = view.sliced(3);
    return QString::fromUtf8(view);
}

app::Result<> writeOutput(const QString &path, const QByteArray &bytes, Console &console)
{
    if (path != QLatin1String("-"))
        return app::writeFile(
            path, bytes,
            {Texts::tr("Cannot write file: %1"), Texts::tr("Failed to write file: %1")});
    console.writeBytes(bytes);
    return {};
}

} // namespace vl::cli

#include "cli/textfile.h"

#include "app/base/files.h"

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
    const QByteArray bytes = input.readAll();
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

} // namespace vl::cli

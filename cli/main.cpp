#include "cli/catalogue.h"

#include <QtCore/QCoreApplication>

#include <clocale>
#include <cstdlib>
#include <langinfo.h>

namespace {

/// The toolkit reads names of files by the locale and warns about any but UTF-8. Scripts run in the
/// "C" locale more often than not, and their output is read by other programs.
void useUtf8()
{
    std::setlocale(LC_ALL, "");
    if (qstrcmp(nl_langinfo(CODESET), "UTF-8") != 0)
        qputenv("LC_ALL", "C.UTF-8");
}

} // namespace

int main(int argc, char *argv[])
{
    useUtf8();
    QCoreApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quessel Games"));
    QCoreApplication::setApplicationName(QStringLiteral("Ivorel"));
    QCoreApplication::setApplicationVersion(QStringLiteral(IVOREL_VERSION));

    vl::cli::Console console;
    vl::cli::ExitStatus status = vl::cli::run(QCoreApplication::arguments().mid(1), console);
    if (!console.flush() && status != vl::cli::ExitStatus::Usage)
        status = console.fail(
            QCoreApplication::translate("vl::cli::Main", "Cannot write to standard output."));
    return int(status);
}

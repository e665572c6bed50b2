// Linked into every test program: what the program keeps in the user's folders (journals, backups,
// settings) lies in a folder of the test's own, which goes when the test ends.

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace {

void keepDataApart()
{
    const char *const isApart = "IVOREL_TEST_IS_APART";
    if (qEnvironmentVariableIsSet(isApart))
        return; // the program again, started by its own test
    static const QTemporaryDir home;
    if (!home.isValid())
        qFatal("no folder for what the test keeps");
    for (const char *name :
         {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
        qunsetenv(name);
    // Programs that the test starts keep theirs there too.
    qputenv("HOME", QFile::encodeName(home.path()));
    qputenv(isApart, "1");
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(keepDataApart)

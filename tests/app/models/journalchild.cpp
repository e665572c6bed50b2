// Types into a project until it is killed, as a window does: the recovery test starts it. Prints a
// line for each word that it is sure was written down.
//
// journalchild DATA [PROJECT [--read-only] | --picture FILE]

#include "app/models/journalkeeper.h"
#include "app/models/workspace.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"

#include <QtCore/QCoreApplication>

#include <cstdio>

using namespace vl;

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    app::StorageLocations locations;
    locations.root = arguments.at(1);
    app::Workspace workspace;
    app::JournalKeeper keeper(workspace, locations);
    QString text; // that the document begins with
    if (arguments.contains(QLatin1String("--picture"))) {
        workspace.replaceProject(std::make_unique<app::OpenProject>(locations));
        const app::Result<QString> path = workspace.current().addMedia(arguments.last());
        if (!path)
            return 1;
        text = QStringLiteral("![](%1) ").arg(*path);
    } else if (arguments.size() > 2) {
        auto opened = arguments.contains(QLatin1String("--read-only"))
                          ? app::OpenProject::openReadOnly(arguments.at(2))
                          : app::OpenProject::open(arguments.at(2));
        if (!opened)
            return 1;
        workspace.replaceProject(*std::move(opened));
    }
    if (workspace.project().size() == 0)
        workspace.push<core::AddObjectCommand>(
            workspace.project(),
            std::make_unique<core::Document>(core::ContentId::create(), core::DocumentKind::Prose,
                                             QStringLiteral("Scene")));
    core::Document *document = workspace.project().all<core::Document>().front();
    if (!text.isEmpty())
        workspace.push<core::SetDocumentBodyCommand>(*document, text);
    // Every other word is only in the editor, not handed in.
    QString typed;
    QObject::connect(&workspace, &app::Workspace::peekRequested, [&](app::PendingTexts &texts) {
        if (!typed.isEmpty())
            texts.append({document->id(), document->body().size(), 0, typed});
    });
    for (int i = 0;; ++i) {
        const QString word = QStringLiteral("word%1 ").arg(i);
        if (i % 2 == 0) {
            typed = word;
            Q_EMIT workspace.typed();
        } else {
            const QString body = document->body() + std::exchange(typed, QString()) + word;
            workspace.push<core::SetDocumentBodyCommand>(*document, body);
        }
        keeper.finish();
        std::printf("%d\n", i);
        std::fflush(stdout);
    }
}

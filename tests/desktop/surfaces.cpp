#include "tests/desktop/surfaces.h"

#include "app/models/backupsmodel.h"
#include "app/models/codexmerge.h"
#include "app/models/codexoperations.h"
#include "app/models/documentoperations.h"
#include "app/models/recentlydeleted.h"
#include "app/models/recovery.h"
#include "app/models/workspace.h"
#include "app/storage/journal.h"
#include "core/content/media.h"
#include "desktop/dialogs/backupsdialog.h"
#include "desktop/dialogs/codexdialogs.h"
#include "desktop/dialogs/damagedprojectdialog.h"
#include "desktop/dialogs/dialogprompts.h"
#include "desktop/dialogs/externalchangesdialog.h"
#include "desktop/dialogs/fielddialog.h"
#include "desktop/dialogs/newproject.h"
#include "desktop/dialogs/pickdialog.h"
#include "desktop/dialogs/recentlydeleteddialog.h"
#include "desktop/dialogs/recoverydialog.h"
#include "desktop/dialogs/restoredocumentdialog.h"
#include "desktop/preferences/catalogue.h"
#include "desktop/preferences/preferencesdialog.h"
#include "desktop/shell/notices.h"
#include "tests/support/folders.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMessageBox>

namespace vl::test {

namespace {

using Open = std::function<void(Desk &, const Look &)>;
using Make = std::function<QWidget *(Desk &)>;

void lookAt(QWidget *widget, const Look &look)
{
    widget->show();
    if (!QTest::qWaitForWindowExposed(widget))
        qFatal("a window does not show");
    QCoreApplication::processEvents();
    look(widget);
}

/// For what is made without being shown.
Open made(const Make &make)
{
    return [make](Desk &desk, const Look &look) {
        QWidget *widget = make(desk);
        lookAt(widget, look);
        if (widget != &desk.window)
            delete widget;
    };
}

/// For what stops the program until it is answered: looked at from within, then called off.
Open asked(const std::function<void(Desk &)> &ask)
{
    return [ask](Desk &desk, const Look &look) {
        bool isSeen = false;
        QTimer::singleShot(0, &desk.window, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            lookAt(dialog, look);
            isSeen = true;
            dialog->reject();
        });
        ask(desk);
        if (!isSeen)
            qFatal("nothing was asked");
    };
}

/// For the window or dialog that an action opens.
Open acted(const char *action)
{
    return [action](Desk &desk, const Look &look) {
        desk.openSample(QStringLiteral("The Count at Dusk"));
        desk.window.show();
        desk.window.actions()[action]->trigger();
        QWidget *shown = &desk.window;
        for (QWidget *other : QApplication::topLevelWidgets())
            if (other->isVisible() && other->parentWidget() && other->windowType() != Qt::ToolTip
                && other->parentWidget()->window() == &desk.window)
                shown = other;
        lookAt(shown, look);
    };
}

void addWindows(QList<Surface> &list, const QString &text)
{
    list.append({QStringLiteral("window with nothing in it"), {}, made([](Desk &desk) {
                     return &desk.window;
                 })});
    list.append({QStringLiteral("window with a document and notices"), {}, made([text](Desk &desk) {
                     app::Workspace &workspace = desk.window.workspace();
                     workspace.select(
                         app::DocumentOperations(workspace).add(core::DocumentKind::Prose, {}));
                     auto *notices = desk.window.findChild<desktop::Notices *>();
                     notices->offerUndo(QStringLiteral("Deleted “%1”.").arg(text));
                     notices->ask(QStringLiteral("outside"),
                                  QStringLiteral("Another program changed “%1”.").arg(text),
                                  {{QStringLiteral("Look at the Changes"), {}},
                                   {QStringLiteral("Keep Mine"), {}}});
                     return &desk.window;
                 })});
    list.append({QStringLiteral("window with a scene"), {}, made([](Desk &desk) {
                     desk.openSample(QStringLiteral("The Count at Dusk"));
                     return &desk.window;
                 })});
    list.append({QStringLiteral("window with a person"), {}, made([](Desk &desk) {
                     desk.openSample(QStringLiteral("Mara Tolvey"));
                     return &desk.window;
                 })});
    const std::pair<const char *, core::ContentId Desk::Filled::*> parts[]{
        {"document", &Desk::Filled::document},
        {"category", &Desk::Filled::category},
        {"entity", &Desk::Filled::entity}};
    for (const auto &[name, part] : parts)
        list.append({QStringLiteral("window with every text of a ") + QLatin1String(name),
                     {},
                     made([text, part = part](Desk &desk) {
                         const Desk::Filled filled = desk.fillWith(text);
                         desk.window.workspace().select(filled.*part);
                         return &desk.window;
                     })});
    for (size_t page = 0; page < desktop::preferencesCatalogue().size(); ++page)
        list.append({QLatin1String("preferences, ")
                         + QLatin1String(desktop::preferencesCatalogue()[page].title),
                     QStringLiteral("PreferencesDialog"), made([page](Desk &desk) {
                         auto *dialog = new desktop::PreferencesDialog(
                             {desk.settings, desk.window.actions(), desk.prompts}, &desk.window);
                         dialog->findChild<QListWidget *>()->setCurrentRow(int(page));
                         return dialog;
                     })});
    for (const auto &[action, shows] :
         {std::pair("file.quickOpen", ""), std::pair("edit.findInProject", "FindInProject"),
          std::pair("edit.find", ""), std::pair("edit.replace", ""),
          std::pair("view.distractionFree", ""), std::pair("view.pageLayout", ""),
          std::pair("file.new", "NewProjectDialog"), std::pair("help.welcome", "WelcomeDialog"),
          std::pair("help.about", "AboutDialog")})
        list.append({QLatin1String(action), QLatin1String(shows), acted(action)});
}

void addProjectDialogs(QList<Surface> &list, const QString &text)
{
    const auto add = [&list](const char *shows, const Make &make) {
        list.append({QLatin1String(shows), QLatin1String(shows), made(make)});
    };
    add("DamagedProjectDialog", [text](Desk &desk) {
        app::DamagedProject project;
        project.path = QStringLiteral("/home/someone/Books/%1.vellum").arg(text);
        project.message = QStringLiteral("Invalid JSON in file: objects/%1.json").arg(text);
        project.hasBackup = true;
        project.isRepairable = true;
        project.leftOut = {{QStringLiteral("objects/%1.json").arg(text), text}};
        return new desktop::DamagedProjectDialog(project, &desk.window);
    });
    add("RestoreDocumentDialog", [text](Desk &desk) {
        app::BackupDocument document;
        document.title = text;
        document.after = QStringLiteral("The lamps of Vessarine were lit from the water upward.");
        return new desktop::RestoreDocumentDialog({document}, {}, &desk.window);
    });
    add("BackupsDialog", [](Desk &desk) {
        app::StorageLocations locations;
        locations.root = desk.dir.path();
        return new desktop::BackupsDialog(
            app::AutoBackups(desk.dir.filePath(QStringLiteral("a.vellum")), locations,
                             [](const core::Project &) { return app::BackupSummary(); }),
            &desk.window);
    });
    add("RecentlyDeletedDialog", [text](Desk &desk) {
        app::DeletedItem scene;
        scene.path = text;
        scene.name = text;
        scene.text = QStringLiteral("The lamps of Vessarine were lit from the water upward.");
        app::DeletedItem note = scene;
        note.depth = 1;
        app::DeletedGroup group;
        group.time = QDateTime(QDate(2026, 11, 20), QTime(18, 30), Qt::UTC);
        group.label = QStringLiteral("2 documents");
        group.items = {scene, note};
        return new desktop::RecentlyDeletedDialog({group}, &desk.window);
    });
    list.append({QStringLiteral("RecentlyDeletedDialog, nothing in it"), {}, made([](Desk &desk) {
                     return new desktop::RecentlyDeletedDialog({}, &desk.window);
                 })});
    add("RecoveryDialog", [text](Desk &desk) {
        app::Workspace lost;
        auto *document = lost.project().find<core::Document>(
            app::DocumentOperations(lost).add(core::DocumentKind::Prose, {}));
        document->setTitle(text);
        document->setBody(QStringLiteral("The lamps were lit from the water upward."));
        std::vector<app::FileChange> changes;
        const FileMap files = filesOf(lost.project());
        for (auto file = files.begin(); file != files.end(); ++file)
            changes.push_back({file.key(), file.value()});
        const QString journal = desk.dir.filePath(QStringLiteral("lost.journal"));
        (void)app::JournalWriter(journal, {QString(), app::LockHolder::current()},
                                 [](const QString &) { return std::optional<QByteArray>(); })
            .write(changes);
        return new desktop::RecoveryDialog(app::Recovery::read({journal}, app::Workspace()),
                                           desktop::RecoveryDialog::Occasion::AfterCrash,
                                           &desk.window);
    });
    add("ExternalChangesDialog", [text](Desk &desk) {
        app::ReconcileEntry entry;
        entry.path = QStringLiteral("objects/%1.json").arg(text);
        entry.state = app::ReconcileState::ConflictEdited;
        entry.localText = QStringLiteral("{\"title\": \"mine\"}");
        entry.remoteText = QStringLiteral("{\"title\": \"theirs\"}");
        entry.conflictText = *entry.localText;
        return new desktop::ExternalChangesDialog({}, {entry}, nullptr, &desk.window);
    });
}

void addCodexDialogs(QList<Surface> &list, const QString &text)
{
    const auto ask = [&list](const char *shows, const std::function<void(Desk &)> &asks) {
        list.append({QLatin1String(shows), QLatin1String(shows), asked(asks)});
    };
    list.append({QStringLiteral("FieldDialog"), QStringLiteral("FieldDialog"),
                 asked([text](Desk &desk) { desktop::FieldDialog::askNew(text, &desk.window); })});
    list.append({QStringLiteral("FieldDialog, of a choice"), {}, asked([text](Desk &desk) {
                     core::FieldDefinition field;
                     field.label = text;
                     field.type = core::FieldType::Choice;
                     field.options = {text};
                     desktop::FieldDialog::askChanged(field, &desk.window);
                 })});
    ask("PickDialog", [text](Desk &desk) {
        desktop::PickDialog::pick(QStringLiteral("Merge Entity"),
                                  QStringLiteral("Merge “%1” into:").arg(text), {text},
                                  QStringLiteral("Merge"), &desk.window);
    });
    ask("askMerge", [text](Desk &desk) {
        desktop::askMerge(text, text,
                          {{QStringLiteral("role"), text, text, text},
                           {QStringLiteral("birth"), text, text.repeated(4), text.repeated(4)}},
                          &desk.window);
    });
    list.append({QStringLiteral("askMerge, without conflicts"), {}, asked([text](Desk &desk) {
                     desktop::askMerge(text, text, {}, &desk.window);
                 })});
    ask("askSplit", [text](Desk &desk) {
        desktop::askSplit(text, {{QStringLiteral("role"), text}}, {text}, &desk.window);
    });
    ask("askTemplates", [text](Desk &desk) {
        core::EntityTemplate person;
        person.name = text;
        desktop::askTemplates({person}, &desk.window);
    });
}

void addPrompts(QList<Surface> &list, const QString &text)
{
    using desktop::DialogPrompts;
    const auto ask = [&list](const char *shows, const std::function<void(DialogPrompts &)> &asks) {
        list.append({QLatin1String(shows), QLatin1String(shows), asked([asks](Desk &desk) {
                         DialogPrompts prompts(&desk.window);
                         asks(prompts);
                     })});
    };
    ask("askUnsaved", [text](DialogPrompts &prompts) { prompts.askUnsaved(text); });
    ask("confirm", [text](DialogPrompts &prompts) {
        prompts.confirm(QStringLiteral("Delete “%1”?").arg(text), text,
                        QStringLiteral("Delete 3 Scenes"));
    });
    ask("chooseProjectToOpen", [](DialogPrompts &prompts) { prompts.chooseProjectToOpen(); });
    ask("chooseProjectFolderToOpen",
        [](DialogPrompts &prompts) { prompts.chooseProjectFolderToOpen(); });
    ask("chooseBundleToSave", [](DialogPrompts &prompts) { prompts.chooseBundleToSave({}); });
    ask("chooseFolderToSave", [](DialogPrompts &prompts) { prompts.chooseFolderToSave({}); });
    ask("askText", [text](DialogPrompts &prompts) {
        prompts.askText(QStringLiteral("Edit Tags"), QStringLiteral("Tags of “%1”:").arg(text),
                        text);
    });
    ask("chooseOne", [text](DialogPrompts &prompts) {
        prompts.chooseOne(QStringLiteral("Delete Perspective"), text,
                          {text, QStringLiteral("Write")});
    });
    ask("choose", [text](DialogPrompts &prompts) {
        prompts.choose(QStringLiteral("Open Project"), text,
                       {QStringLiteral("This Window"), QStringLiteral("New Window")});
    });
    ask("showInformation", [text](DialogPrompts &prompts) { prompts.showInformation(text, text); });
    ask("showError", [text](DialogPrompts &prompts) { prompts.showError(text, text); });
    ask("showError of a file", [](DialogPrompts &prompts) {
        prompts.showError(QStringLiteral("Save Project"),
                          QStringLiteral("Cannot write file: /home/mara/Manuscripts/The Low Lamps/"
                                         "objects/804ddec3-70bb-42bf-916d-857f930b56b7.json"));
    });
    ask("showError of a deep folder", [](DialogPrompts &prompts) {
        prompts.showError(QStringLiteral("Save Project"),
                          QStringLiteral("/manuscripts_of_the_low_lamps").repeated(12));
    });
    ask("askDamaged", [text](DialogPrompts &prompts) {
        app::DamagedProject project;
        project.path = text;
        project.message = text;
        prompts.askDamaged(project);
    });
    ask("askDamaged with all its offers", [text](DialogPrompts &prompts) {
        app::DamagedProject project;
        project.path = QStringLiteral("/home/mara/The Low Lamps");
        const QString file = QStringLiteral("objects/804ddec3-70bb-42bf-916d-857f930b56b7.json");
        const QString copy = file.chopped(5) + QStringLiteral(" (conflicted copy).json");
        project.message = QStringLiteral("Duplicate object id 804ddec3-70bb-42bf-916d-857f930b56b7 "
                                         "in %1/%2")
                              .arg(project.path, copy);
        project.leftOut.push_back({copy, project.message});
        project.conflicts.push_back({copy, file, "{\"title\": \"Dusk\"}", "{\"title\": \"Dawn\"}"});
        project.hasBackup = true;
        project.newestBackup = QDateTime(QDate(2026, 11, 21), QTime(12, 3), Qt::UTC);
        project.isRepairable = true;
        prompts.askDamaged(project);
    });
    ask("askLocked", [text](DialogPrompts &prompts) {
        app::LockHolder holder = app::LockHolder::current();
        holder.user = text;
        holder.host = text;
        holder.token = text;
        prompts.askLocked(text, holder, app::HolderState::Unknown);
    });
}

} // namespace

void Desk::openSample(const QString &title)
{
    const QString folder = dir.filePath(QStringLiteral("The Low Lamps"));
    putFiles(folder, filesUnder(QStringLiteral(IVOREL_SAMPLE)));
    if (!window.openProject(folder))
        qFatal("the sample does not open");
    app::Workspace &workspace = window.workspace();
    for (const auto *document : workspace.project().all<core::Document>())
        if (document->title() == title)
            workspace.select(document->id());
    for (const auto *entity : workspace.project().all<core::Entity>())
        if (entity->name() == title)
            workspace.select(entity->id());
}

Desk::Filled Desk::fillWith(const QString &text)
{
    app::Workspace &workspace = window.workspace();
    core::Project &project = workspace.project();
    app::CodexOperations codex(workspace);
    Filled filled{app::DocumentOperations(workspace).add(core::DocumentKind::Prose, {}),
                  codex.addCategory({}, text),
                  {}};
    filled.entity = codex.addEntity(filled.category, text);
    for (const core::FieldType type :
         {core::FieldType::Text, core::FieldType::Number, core::FieldType::Boolean,
          core::FieldType::Date, core::FieldType::Reference, core::FieldType::Choice,
          core::FieldType::Url})
        codex.addField(filled.category, {{}, text, type, true, {text}, text});
    const core::ContentId picture = core::ContentId::create();
    auto media = std::make_unique<core::Media>(picture, QStringLiteral("image"), text);
    media->setCaption(text);
    project.add(std::move(media));

    auto &entity = *project.find<core::Entity>(filled.entity);
    for (const core::FieldDefinition &field : project.taxonomy().find(filled.category)->fields)
        entity.setValue(field.key, text);
    entity.setValue(QStringLiteral("former"), text);
    entity.setAliases({text});
    entity.setGallery({picture});
    entity.setTimedValues(
        {{project.taxonomy().find(filled.category)->fields.first().key, text, 0}});
    project.setPlotThreads({{text, text, filled.entity, {}}});
    project.setAudiences({text});
    auto &document = *project.find<core::Document>(filled.document);
    document.setTitle(text);
    document.setBody(text);
    document.setSynopsis(text);
    document.setStatus(text);
    document.setPointOfView(text);
    document.setPlotThreadIds({text});
    for (core::ContentObject *object : {static_cast<core::ContentObject *>(&entity),
                                        static_cast<core::ContentObject *>(&document)}) {
        object->setTags({text});
        object->setVisibleTo({text});
    }
    return filled;
}

QList<Surface> surfaces(const QString &text)
{
    QList<Surface> list;
    addWindows(list, text);
    addProjectDialogs(list, text);
    addCodexDialogs(list, text);
    addPrompts(list, text);
    return list;
}

} // namespace vl::test

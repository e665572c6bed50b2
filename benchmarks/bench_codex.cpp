#include "app/models/codexmodel.h"
#include "app/models/codexoperations.h"
#include "app/models/workspace.h"
#include "core/content/document.h"
#include "core/content/entity.h"
#include "desktop/shell/appearance.h"
#include "desktop/shell/mainwindow.h"
#include "desktop/widgets/programstyle.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QSortFilterProxyModel>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <random>

using namespace vl;
using core::ContentId;
using core::Entity;
using core::FieldType;

namespace {

constexpr int entities = 10000;
constexpr int documents = 10000;
constexpr int selections = 300;
const QString filterText = QStringLiteral("ma ro");

std::mt19937 randomNumbers(20260101);

int below(int limit)
{
    return int(randomNumbers() % quint32(limit));
}

QString word()
{
    static const char *const parts[] = {"ma", "ro", "kel", "tha", "ni", "vor", "sha", "el", "du"};
    QString text;
    for (int part = 2 + below(2); part > 0; --part)
        text += QLatin1String(parts[below(int(std::size(parts)))]);
    text[0] = text[0].toUpper();
    return text;
}

/// Five categories with a field of every type, and two subcategories in each; then documents.
void fill(core::Project &project)
{
    QList<ContentId> categories;
    for (int i = 0; i < 15; ++i) {
        core::Category category{ContentId::create(), word(), {}, {}};
        if (i % 3 != 0)
            category.parentId = categories[i - i % 3];
        else
            for (std::size_t type = 0; type < core::fieldTypeTexts.size(); ++type)
                category.fields.append({QStringLiteral("f%1").arg(type),
                                        word(),
                                        FieldType(type),
                                        false,
                                        {QStringLiteral("a"), QStringLiteral("b")},
                                        {}});
        categories.append(category.id);
        project.editTaxonomy().add(category);
    }
    QString other;
    for (int i = 0; i < entities; ++i) {
        auto entity = std::make_unique<Entity>(ContentId::create(), categories[below(15)],
                                               word() + u' ' + word());
        entity->setAliases({word()});
        entity->setTags({word()});
        entity->setValue(QStringLiteral("f0"), word() + QStringLiteral(" of the long text. "));
        entity->setValue(QStringLiteral("f4"), other);
        entity->setLifespan({qint64(i) * 1000, std::nullopt});
        other = entity->id().toString();
        project.add(std::move(entity));
    }
    ContentId parent;
    for (int i = 0; i < documents; ++i) {
        auto document = std::make_unique<core::Document>(
            ContentId::create(), core::DocumentKind::Prose, word() + u' ' + word());
        if (i % 50 == 0)
            parent = document->id();
        else
            document->setParentId(parent);
        document->setSortIndex(i);
        document->setBody(QStringLiteral("Some words of a scene. ").repeated(40));
        project.add(std::move(document));
    }
}

void print(const char *what, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    const auto at = [&](double part) {
        return times[std::size_t(double(times.size() - 1) * part)];
    };
    QTextStream out(stdout);
    out << qSetRealNumberPrecision(3) << what << ": median " << at(0.5) << " ms, 95 % " << at(0.95)
        << " ms, longest " << at(1) << " ms\n";
}

/// How long each run takes, until all that it asked for is painted.
template<typename Run>
std::vector<double> timed(int count, Run run)
{
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
        QElapsedTimer timer;
        timer.start();
        run(i);
        QCoreApplication::processEvents();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    return times;
}

/// The same tree as items of the toolkit, with its own filter.
void measurePeer(app::Workspace &workspace)
{
    QStandardItemModel items;
    QHash<ContentId, QStandardItem *> categories;
    for (const core::Taxonomy::Place &place : workspace.project().taxonomy().inTreeOrder()) {
        auto *item = new QStandardItem(place.category->name);
        QStandardItem *parent = categories.value(place.category->parentId);
        (parent ? parent : items.invisibleRootItem())->appendRow(item);
        categories.insert(place.category->id, item);
    }
    for (const Entity *entity : workspace.project().all<Entity>())
        categories.value(entity->categoryId())->appendRow(new QStandardItem(entity->name()));
    QSortFilterProxyModel filtered;
    filtered.setSourceModel(&items);
    filtered.setRecursiveFilteringEnabled(true);
    filtered.setFilterCaseSensitivity(Qt::CaseInsensitive);
    filtered.sort(0);
    QTreeView view;
    view.setUniformRowHeights(true);
    view.setModel(&filtered);
    view.resize(320, 600);
    view.show();
    QCoreApplication::processEvents();
    print("peer: expand all", timed(5, [&](int) {
              view.collapseAll();
              view.expandAll();
          }));
    print("peer: filter key", timed(int(2 * filterText.size()), [&](int i) {
              filtered.setFilterFixedString(filterText.left(i % (filterText.size() + 1)));
              view.expandAll();
          }));
    print("peer: select", timed(selections, [&](int) {
              const QModelIndex parent = filtered.index(below(filtered.rowCount()), 0);
              view.setCurrentIndex(filtered.index(below(filtered.rowCount(parent)), 0, parent));
          }));
}

void measureTree(desktop::MainWindow &window, const char *name, const char *panel)
{
    auto *tree = window.findChild<QTreeView *>(QLatin1String(name));
    auto *filter = tree->parentWidget()->parentWidget()->findChild<QLineEdit *>();
    print(qPrintable(QLatin1String(panel) + QLatin1String(": expand all")), timed(5, [&](int) {
              tree->collapseAll();
              tree->expandAll();
          }));
    print(qPrintable(QLatin1String(panel) + QLatin1String(": filter key")),
          timed(int(2 * filterText.size()),
                [&](int i) { filter->setText(filterText.left(i % (filterText.size() + 1))); }));
    filter->clear();
    QCoreApplication::processEvents();
}

} // namespace

/// Prints how long the codex, the manuscript tree and the inspector take with 10 000 entities and
/// 10 000 documents, beside a plain tree of items with the toolkit's filter.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setStyle(new desktop::ProgramStyle);
    const QTemporaryDir dir;
    app::Settings settings(dir.filePath(QStringLiteral("settings.ini")));
    desktop::Appearance::apply(settings);
    desktop::MainWindow window(settings);
    window.resize(1920, 1080);
    window.show();
    auto project = std::make_unique<app::OpenProject>();
    fill(project->project());
    window.workspace().replaceProject(std::move(project));
    QCoreApplication::processEvents();

    app::Workspace &workspace = window.workspace();
    measurePeer(workspace);
    measureTree(window, "codexTree", "codex");
    measureTree(window, "documentsTree", "documents");
    const auto people = workspace.project().all<Entity>();
    const auto scenes = workspace.project().all<core::Document>();
    print("select an entity, inspector painted", timed(selections, [&](int) {
              workspace.select(people[std::size_t(below(entities))]->id());
          }));
    print("select a document, editor and inspector painted", timed(selections, [&](int) {
              workspace.select(scenes[std::size_t(below(documents))]->id());
          }));
    app::CodexOperations codex(workspace);
    QList<ContentId> ids;
    for (const Entity *entity : people)
        ids.append(entity->id());
    const ContentId first = workspace.project().taxonomy().ids().front();
    print("move 10 000 entities, undo", timed(4, [&](int i) {
              if (i % 2 == 0)
                  codex.move(ids, first);
              else
                  workspace.undo();
          }));
    return 0;
}

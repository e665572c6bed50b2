#include "app/text/import/importcommands.h"

#include "core/commands/compositecommand.h"
#include "core/commands/objectcommands.h"
#include "core/commandstack.h"
#include "core/project.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace vl::app {

namespace {

struct Import
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::Import)
};

/// A document still to be added, and where.
struct Pending
{
    const ImportedDocument *document = nullptr;
    core::ContentId parent;
    qint32 sortIndex = 0;
};

qint32 nextSortIndex(const core::Project &project, const core::ContentId &parent)
{
    const auto siblings = project.documentTree().children(parent);
    if (siblings.empty())
        return 0;
    const qint32 last = siblings.back()->sortIndex();
    return last < std::numeric_limits<qint32>::max() ? last + 1 : last;
}

qint32 indexFrom(qint32 first, std::size_t offset)
{
    const qint64 index = qint64(first) + qint64(offset);
    return qint32(std::min<qint64>(index, std::numeric_limits<qint32>::max()));
}

struct Built
{
    std::unique_ptr<core::CompositeCommand> command;
    int count = 0;
};

Built build(core::Project &project, const ImportedManuscript &manuscript,
            const core::ContentId &parent)
{
    Built built{std::make_unique<core::CompositeCommand>(Import::tr("Import documents")), 0};
    std::vector<Pending> pending;
    const auto addBelow = [&](const std::vector<ImportedDocument> &documents,
                              const core::ContentId &above, qint32 firstIndex) {
        for (std::size_t i = documents.size(); i-- > 0;)
            pending.push_back({&documents[i], above, indexFrom(firstIndex, i)});
    };
    addBelow(manuscript.documents, parent, nextSortIndex(project, parent));
    while (!pending.empty()) {
        const Pending next = pending.back();
        pending.pop_back();
        auto document = std::make_unique<core::Document>(core::ContentId::create(),
                                                         next.document->kind, next.document->title);
        document->setBody(next.document->body);
        document->setParentId(next.parent);
        document->setSortIndex(next.sortIndex);
        addBelow(next.document->children, document->id(), 0);
        built.command->append(
            std::make_unique<core::AddObjectCommand>(project, std::move(document)));
        ++built.count;
    }
    return built;
}

} // namespace

std::unique_ptr<core::Command> importCommand(core::Project &project,
                                             const ImportedManuscript &manuscript,
                                             const core::ContentId &parent)
{
    Built built = build(project, manuscript, parent);
    return built.count > 0 ? std::move(built.command) : nullptr;
}

int importIntoProject(core::Project &project, core::CommandStack &history,
                      const ImportedManuscript &manuscript, const core::ContentId &parent)
{
    Built built = build(project, manuscript, parent);
    if (built.count > 0)
        history.push(std::move(built.command));
    return built.count;
}

} // namespace vl::app

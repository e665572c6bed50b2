#include "app/storage/projectwriter.h"
#include "core/commands/codexcommands.h"
#include "core/commands/documentcommands.h"
#include "core/commands/objectcommands.h"
#include "core/commands/projectcommands.h"
#include "core/commands/workcommands.h"
#include "core/commands/worldcommands.h"
#include "core/commandstack.h"
#include "tests/support/fingerprint.h"
#include "tests/support/randomvalues.h"
#include "tests/support/treetext.h"

#include <QtTest/QtTest>

using namespace vl::core;
using namespace vl::test;

namespace {

using Made = std::unique_ptr<Command>;

template<typename Object>
Object *anyOf(const Project &project, RandomValues &random)
{
    if constexpr (std::is_same_v<Object, ContentObject>) {
        if (project.size() == 0)
            return nullptr;
        auto object = project.objects().begin();
        std::advance(object, random.below(int(project.size())));
        return object->second.get();
    } else {
        const std::vector<Object *> all = project.all<Object>();
        return all.empty() ? nullptr : all[std::size_t(random.below(int(all.size())))];
    }
}

/// An id of the project's, or now and then one that it does not know, or the null id.
template<typename Object>
ContentId anyId(const Project &project, RandomValues &random)
{
    const Object *object = anyOf<Object>(project, random);
    return !object || random.oneIn(8) ? random.make<ContentId>() : object->id();
}

ContentId anyCategory(const Project &project, RandomValues &random)
{
    const std::vector<ContentId> ids = project.taxonomy().ids();
    return ids.empty() || random.oneIn(8) ? random.make<ContentId>()
                                          : ids[std::size_t(random.below(int(ids.size())))];
}

QString anyField(RandomValues &random)
{
    return QStringLiteral("field%1").arg(random.below(4));
}

/// A member of the family that sets one value: of an object, or of the project.
template<typename SetCommand>
Made makeSet(Project &project, RandomValues &random)
{
    using Value = typename SetCommand::Value;
    if constexpr (requires { typename SetCommand::Object; }) {
        auto *object = anyOf<typename SetCommand::Object>(project, random);
        return object ? std::make_unique<SetCommand>(*object, random.make<Value>()) : nullptr;
    } else {
        return std::make_unique<SetCommand>(project, random.make<Value>());
    }
}

/// A command with the target and one value given to its constructor.
template<typename OwnCommand, typename Object, typename... Values>
Made makeOn(Project &project, RandomValues &random)
{
    Object *object = anyOf<Object>(project, random);
    return object ? std::make_unique<OwnCommand>(*object, random.make<Values>()...) : nullptr;
}

Made makeAddObject(Project &project, RandomValues &random)
{
    if (random.oneIn(20))
        return std::make_unique<AddObjectCommand>(project, nullptr);
    if (const ContentObject *twin = anyOf<ContentObject>(project, random); twin && random.oneIn(8))
        return std::make_unique<AddObjectCommand>(
            project, std::make_unique<Timeline>(twin->id(), QStringLiteral("twin")));
    return std::make_unique<AddObjectCommand>(
        project, randomObject(random, ContentKind(random.below(int(contentKindTexts.size()))),
                              {anyId<Document>(project, random)}));
}

Made makeAddCategory(Project &project, RandomValues &random)
{
    auto category = random.make<Category>();
    // Now and then the id is taken, or one that some category names as its lost parent.
    category.id = random.oneIn(6) ? anyCategory(project, random) : random.newId();
    category.parentId = anyCategory(project, random);
    if (const Category *child = project.taxonomy().find(anyCategory(project, random));
        child && random.oneIn(4) && !child->parentId.isNull())
        category.id = child->parentId;
    return std::make_unique<AddCategoryCommand>(project, category);
}

Made makeAddField(Project &project, RandomValues &random)
{
    auto field = random.make<FieldDefinition>();
    field.key = anyField(random);
    return std::make_unique<AddFieldCommand>(project, anyCategory(project, random), field);
}

Made makeSetField(Project &project, RandomValues &random)
{
    auto field = random.make<FieldDefinition>();
    field.key = anyField(random);
    return std::make_unique<SetFieldCommand>(project, anyCategory(project, random), field);
}

Made makeSetCanvasCard(Project &project, RandomValues &random)
{
    Canvas *canvas = anyOf<Canvas>(project, random);
    if (!canvas)
        return nullptr;
    auto card = random.make<CanvasCard>();
    if (!canvas->cards().isEmpty() && random.oneIn(2))
        card.objectId = canvas->cards().constFirst().objectId;
    return std::make_unique<SetCanvasCardCommand>(*canvas, card);
}

Made makeRemoveCanvasCard(Project &project, RandomValues &random)
{
    Canvas *canvas = anyOf<Canvas>(project, random);
    if (!canvas)
        return nullptr;
    return std::make_unique<RemoveCanvasCardCommand>(
        *canvas, canvas->cards().isEmpty() ? random.newId() : canvas->cards().constLast().objectId);
}

Made makeRemoveConnection(Project &project, RandomValues &random)
{
    Canvas *canvas = anyOf<Canvas>(project, random);
    if (!canvas)
        return nullptr;
    return std::make_unique<RemoveCanvasConnectionCommand>(
        *canvas, canvas->connections().isEmpty() ? random.make<CanvasConnection>()
                                                 : canvas->connections().constLast());
}

Made makeSetBody(Project &project, RandomValues &random)
{
    Document *document = anyOf<Document>(project, random);
    if (!document)
        return nullptr;
    QString body = document->body();
    const qsizetype from = random.below(int(body.size()) + 1);
    body.replace(from, random.below(6), random.make<QString>());
    return std::make_unique<SetDocumentBodyCommand>(*document, body);
}

using Make = Made (*)(Project &, RandomValues &);

// Every command of the catalogue.
const Make catalogue[] = {
    makeAddObject,
    [](Project &p, RandomValues &r) -> Made {
        return std::make_unique<RemoveObjectCommand>(p, anyId<ContentObject>(p, r));
    },
    makeSet<SetAiExclusionCommand>,
    makeSet<SetObjectTagsCommand>,
    makeSet<SetObjectVisibilityCommand>,
    [](Project &p, RandomValues &r) -> Made {
        return std::make_unique<SetPinnedCommand>(p, anyId<ContentObject>(p, r), r.oneIn(2));
    },
    makeSet<SetDocumentTitleCommand>,
    makeSetBody,
    makeSet<SetDocumentKindCommand>,
    makeSet<SetDocumentSynopsisCommand>,
    makeSet<SetDocumentStatusCommand>,
    makeSet<SetDocumentPointOfViewCommand>,
    makeSet<SetDocumentTensionLevelCommand>,
    makeSet<SetDocumentSceneInstantCommand>,
    makeSet<SetDocumentTargetCommand>,
    makeSet<SetDocumentSourcesCommand>,
    makeSet<SetDocumentPlotThreadsCommand>,
    makeSet<SetDocumentRevisionBaselineCommand>,
    makeSet<SetDocumentVersionsCommand>,
    makeSet<SetDocumentVariantsCommand>,
    makeSet<SetDocumentFootnotesCommand>,
    [](Project &p, RandomValues &r) -> Made {
        return std::make_unique<MoveDocumentCommand>(
            p, anyId<Document>(p, r), r.oneIn(3) ? ContentId() : anyId<Document>(p, r),
            r.below(6) - 1);
    },
    makeAddCategory,
    [](Project &p, RandomValues &r) -> Made {
        return std::make_unique<RemoveCategoryCommand>(p, anyCategory(p, r));
    },
    [](Project &p, RandomValues &r) -> Made {
        return std::make_unique<RenameCategoryCommand>(p, anyCategory(p, r), r.make<QString>());
    },
    [](Project &p, RandomValues &r) -> Made {
        return std::make_unique<MoveCategoryCommand>(p, anyCategory(p, r), anyCategory(p, r));
    },
    makeAddField,
    [](Project &p, RandomValues &r) -> Made {
        return std::make_unique<RemoveFieldCommand>(p, anyCategory(p, r), anyField(r));
    },
    [](Project &p, RandomValues &r) -> Made {
        return std::make_unique<MoveFieldCommand>(p, anyCategory(p, r), anyField(r),
                                                  r.below(6) - 1);
    },
    makeSetField,
    makeSet<SetEntityNameCommand>,
    makeSet<SetEntityCategoryCommand>,
    makeOn<SetFieldValueCommand, Entity, QString, QString>,
    makeSet<SetEntityAliasesCommand>,
    makeSet<SetEntityGalleryCommand>,
    makeSet<SetEntityLifespanCommand>,
    makeSet<SetEntityTimedValuesCommand>,
    makeSet<SetEntityTemplatesCommand>,
    makeSet<SetSavedSearchesCommand>,
    makeSet<SetAudiencesCommand>,
    makeSet<SetPlotThreadsCommand>,
    makeSet<SetContinuityRulesCommand>,
    makeSet<SetCalendarCommand>,
    makeSet<SetReckoningsCommand>,
    makeSet<SetTimelineErasCommand>,
    makeSet<SetTimelineMarkersCommand>,
    makeSet<SetTimelineBookmarksCommand>,
    makeSet<SetTimelineViewSettingsCommand>,
    makeSet<SetTimelineViewPresetsCommand>,
    makeSet<SetBeatSheetCommand>,
    makeSet<SetWritingGoalCommand>,
    makeSet<SetLibraryMountsCommand>,
    makeSet<SetTimelineTitleCommand>,
    makeSet<SetTimelineEventCommand>,
    makeSet<SetCanvasTitleCommand>,
    makeSetCanvasCard,
    makeRemoveCanvasCard,
    makeOn<AddCanvasConnectionCommand, Canvas, CanvasConnection>,
    makeRemoveConnection,
    makeSet<SetChartCommand>,
    makeSet<SetCommentCommand>,
    makeSet<SetCommentTargetCommand>,
    makeSet<SetLanguageCommand>,
    makeSet<SetMediaCaptionCommand>,
    makeSet<SetMediaCropCommand>,
    makeOn<AddMediaAnnotationCommand, Media, MediaAnnotation>,
    [](Project &p, RandomValues &r) -> Made {
        Media *media = anyOf<Media>(p, r);
        return media ? std::make_unique<RemoveMediaAnnotationCommand>(*media, r.below(4) - 1)
                     : nullptr;
    },
    makeSet<SetMapTitleCommand>,
    makeSet<SetMapImageCommand>,
    makeSet<SetMapPinsCommand>,
    makeSet<SetMapRegionsCommand>,
    makeSet<SetMapRoutesCommand>,
    makeSet<SetMapTokensCommand>,
    makeSet<SetMapGridCommand>,
    makeSet<SetMapTravelSettingsCommand>,
    makeSet<SetRandomTableCommand>,
    makeSet<SetSourceCommand>,
    makeSet<SetStatBlockCommand>,
    makeSet<SetSpreadsheetTitleCommand>,
    makeOn<SetSpreadsheetCellCommand, Spreadsheet, CellPosition, QString>,
    makeSet<SetSpreadsheetGridCommand>,
    makeSet<SetSpreadsheetSizesCommand>,
    makeSet<SetSpreadsheetLinkedCategoryCommand>,
    makeOn<SetCellFormatsCommand, Spreadsheet, CellFormats, QString>,
    makeSet<SetTaskTitleCommand>,
    makeSet<SetTaskDescriptionCommand>,
    makeOn<SetTaskDoneCommand, Task, bool>,
    makeSet<SetTaskDueDateCommand>,
    makeSet<SetTaskPriorityCommand>,
    makeSet<SetTaskStatusCommand>,
    makeSet<SetTaskBoardCommand>,
    makeSet<SetTaskSubmissionCommand>,
    makeSet<SetTaskTargetCommand>,
    [](Project &p, RandomValues &r) -> Made {
        return std::make_unique<MoveTaskCommand>(p, anyId<Task>(p, r), r.below(6) - 1);
    },
};

/// What differs between two states and is not named by the changes; empty when all is named, and
/// named rightly: what is new as added, what is gone as removed.
QString unnamed(const ProjectPrint &before, const ProjectPrint &after, const ChangeSet &changes)
{
    using Change = ChangeSet::Change;
    const auto compare = [](const std::map<ContentId, QString> &old,
                            const std::map<ContentId, QString> &now,
                            const ChangeSet::Changes &named) -> QString {
        for (const auto &[id, print] : now) {
            const auto was = old.find(id);
            const auto name = named.find(id);
            if (was == old.end() && (name == named.end() || name->second != Change::Added))
                return QStringLiteral("new: ") + id.toString();
            if (was != old.end() && was->second != print
                && (name == named.end() || name->second != Change::Changed))
                return QStringLiteral("changed: ") + id.toString();
        }
        for (const auto &[id, print] : old) {
            const auto name = named.find(id);
            if (!now.contains(id) && (name == named.end() || name->second != Change::Removed))
                return QStringLiteral("gone: ") + id.toString();
        }
        return {};
    };
    if (const QString fault = compare(before.objects, after.objects, changes.objects());
        !fault.isEmpty())
        return QStringLiteral("object ") + fault;
    if (const QString fault = compare(before.categories, after.categories, changes.categories());
        !fault.isEmpty())
        return QStringLiteral("category ") + fault;
    for (const auto &[record, print] : after.records)
        if (before.records.at(record) != print && !changes.touches(record))
            return QStringLiteral("record %1").arg(int(record));
    return {};
}

/// The files of the project, one behind the other.
QByteArray bytesOf(const Project &project)
{
    QByteArray all;
    vl::app::serializeProject(project, [&all](const QString &path, const QByteArray &bytes) {
        all += path.toUtf8() + '\n' + bytes;
    });
    return all;
}

/// One random walk through a history that starts empty.
class Walk
{
public:
    Walk(Project &project, RandomValues &random, std::vector<int> &uses)
        : m_project(project)
        , m_random(random)
        , m_uses(uses)
    {
        m_stack.setListener([this](const ChangeSet &changes) {
            m_heard.append(changes);
            m_sinceCheck.append(changes);
        });
    }

    CommandStack &stack() { return m_stack; }
    const ChangeSet &heard() const { return m_heard; }
    ChangeSet takeSinceCheck() { return std::exchange(m_sinceCheck, ChangeSet()); }

    void step()
    {
        switch (m_random.below(20)) {
        case 0:
        case 1:
        case 2:
            m_stack.undo();
            break;
        case 3:
        case 4:
            m_stack.redo();
            break;
        case 5:
            if (m_depth < 3) {
                m_stack.beginMacro(QStringLiteral("group"));
                ++m_depth;
            }
            break;
        case 6:
        case 7:
            m_stack.endMacro();
            m_depth = std::max(0, m_depth - 1);
            break;
        case 8:
            // As a save does: in the middle of a group there is nothing to save.
            if (!m_stack.isGroupOpen()) {
                m_stack.setClean();
                m_saved = fingerprint(m_project);
            }
            break;
        case 9:
            if (m_random.oneIn(10))
                m_stack.markUnrecoverablyDirty();
            break;
        default:
            push();
        }
    }
    void closeGroups()
    {
        while (m_stack.isGroupOpen())
            m_stack.endMacro();
    }
    /// The clean mark never tells of a state that is not the saved one.
    bool isCleanMarkTrue() const
    {
        return m_stack.isDirty() || m_stack.isGroupOpen() || !m_saved
               || *m_saved == fingerprint(m_project);
    }

private:
    void push()
    {
        const auto which = std::size_t(m_random.below(int(std::size(catalogue))));
        Made command = catalogue[which](m_project, m_random);
        if (command)
            ++m_uses[which];
        m_stack.push(std::move(command));
    }

    Project &m_project;
    RandomValues &m_random;
    std::vector<int> &m_uses;
    CommandStack m_stack;
    ChangeSet m_heard;
    ChangeSet m_sinceCheck;
    std::optional<ProjectPrint> m_saved;
    int m_depth = 0;
};

} // namespace

class TestHistoryLaws : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomWalks();
};

void TestHistoryLaws::randomWalks()
{
    constexpr int projects = 200;
    constexpr int walksOfEach = 50;
    std::vector<int> uses(std::size(catalogue));
    for (int seed = 0; seed < projects; ++seed) {
        RandomValues random{quint64(seed)};
        Project project;
        fillRandomly(project, random);
        for (int round = 0; round < walksOfEach; ++round) {
            const QByteArray where = QByteArray::number(seed) + " / " + QByteArray::number(round);
            const ProjectPrint first = fingerprint(project);
            const QString firstTree = treeText(project);
            const bool withBytes = round % 4 == 0; // the prints say the same, and quicker
            const QByteArray firstBytes = withBytes ? bytesOf(project) : QByteArray();
            Walk walk(project, random, uses);
            // Every tenth walk is looked at after each step.
            const bool closely = round % 10 == 0;
            ProjectPrint before = first;
            const int steps = 5 + random.below(40);
            for (int i = 0; i < steps; ++i) {
                walk.step();
                if (!closely)
                    continue;
                const ProjectPrint now = fingerprint(project);
                const QString missed = unnamed(before, now, walk.takeSinceCheck());
                QVERIFY2(missed.isEmpty(), where + ": " + missed.toUtf8());
                QVERIFY2(walk.isCleanMarkTrue(), where);
                before = now;
            }
            walk.closeGroups();
            CommandStack &stack = walk.stack();
            while (stack.canRedo())
                stack.redo();
            const ProjectPrint last = fingerprint(project);
            const QString lastTree = treeText(project);
            const QByteArray lastBytes = withBytes ? bytesOf(project) : QByteArray();
            const QString missed = unnamed(first, last, walk.heard());
            QVERIFY2(missed.isEmpty(), where + ": " + missed.toUtf8());
            QVERIFY2(walk.isCleanMarkTrue(), where);
            while (stack.canUndo())
                stack.undo();
            QVERIFY2(fingerprint(project) == first, where);
            QVERIFY2(treeText(project) == firstTree, where);
            QVERIFY2(!withBytes || bytesOf(project) == firstBytes, where);
            while (stack.canRedo())
                stack.redo();
            QVERIFY2(fingerprint(project) == last, where);
            QVERIFY2(treeText(project) == lastTree, where);
            QVERIFY2(!withBytes || bytesOf(project) == lastBytes, where);
            // Half of the walks go on from the state that the last one left.
            while (round % 2 == 0 && stack.canUndo())
                stack.undo();
        }
    }
    for (std::size_t i = 0; i < uses.size(); ++i)
        QVERIFY2(uses[i] > 100, "a command is hardly ever run: " + QByteArray::number(int(i)));
}

QTEST_GUILESS_MAIN(TestHistoryLaws)
#include "tst_historylaws.moc"

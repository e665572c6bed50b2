#include "benchmarks/support/generatedproject.h"

#include "core/content/comment.h"
#include "core/content/document.h"
#include "core/content/entity.h"
#include "core/content/task.h"
#include "core/content/timeline.h"

#include <iterator>
#include <random>

namespace vl::bench {

using namespace core;

namespace {

class Generator
{
public:
    std::unique_ptr<Project> project(int objects);

private:
    int below(int limit) { return int(m_random() % quint32(limit)); }
    ContentId newId()
    {
        const auto part = [this] { return uchar(below(256)); };
        return ContentId(QUuid(m_random(), ushort(below(0x10000)), ushort(0x4000 | below(0x1000)),
                               uchar(0x80 | below(0x40)), part(), part(), part(), part(), part(),
                               part(), part()));
    }
    ContentId oneOf(const std::vector<ContentId> &ids)
    {
        return ids.empty() ? ContentId() : ids[size_t(below(int(ids.size())))];
    }
    QString words(int count);
    QString body(int characters);

    void addCategories();
    void addDocument(int number);
    void addEntity();
    void addEvent();
    void addComment();
    void addTask(int number);

    std::mt19937 m_random{20260101};
    std::unique_ptr<Project> m_project;
    std::vector<ContentId> m_categories;
    std::vector<ContentId> m_chapters;
    std::vector<ContentId> m_documents;
    std::vector<ContentId> m_entities;
    ContentId m_timelineId;
};

QString Generator::words(int count)
{
    static const QString list[] = {
        QStringLiteral("the"),      QStringLiteral("lamp"),    QStringLiteral("turned"),
        QStringLiteral("slowly"),   QStringLiteral("and"),     QStringLiteral("harbour"),
        QStringLiteral("waited"),   QStringLiteral("for"),     QStringLiteral("a"),
        QStringLiteral("ship"),     QStringLiteral("that"),    QStringLiteral("never"),
        QStringLiteral("came"),     QStringLiteral("Mara"),    QStringLiteral("said"),
        QStringLiteral("nothing"),  QStringLiteral("of"),      QStringLiteral("it"),
        QStringLiteral("again"),    QStringLiteral("winter"),  QStringLiteral("café"),
        QStringLiteral("keeper’s"), QStringLiteral("letters"), QStringLiteral("under"),
    };
    QString text;
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            text += QLatin1Char(' ');
        text += list[below(int(std::size(list)))];
    }
    return text;
}

QString Generator::body(int characters)
{
    QString text;
    text.reserve(characters + 200);
    while (text.size() < characters) {
        for (int sentences = 2 + below(5); sentences > 0; --sentences) {
            const QString sentence = words(6 + below(18));
            if (below(5) == 0)
                text += QStringLiteral("“%1,” she said. ").arg(sentence);
            else
                text += sentence + QStringLiteral(". ");
        }
        text += QStringLiteral("\n\n");
    }
    text.squeeze();
    return text;
}

void Generator::addCategories()
{
    for (const char *name : {"Characters", "Places", "Items", "Factions"}) {
        Category category{newId(), QString::fromLatin1(name), {}, {}};
        for (int i = 0; i < 6; ++i)
            category.fields.append(
                {QStringLiteral("field%1").arg(i), words(2), FieldType::Text, false, {}, words(6)});
        m_categories.push_back(category.id);
        m_project->editTaxonomy().add(category);
    }
}

void Generator::addDocument(int number)
{
    auto document = std::make_unique<Document>(newId(), DocumentKind::Prose, words(4));
    const bool isChapter = number % 20 == 0;
    document->setSortIndex(number);
    document->setStatus(QStringLiteral("Draft"));
    document->setSynopsis(words(20));
    document->setBody(body(isChapter ? 200 : 1000 + below(1300)));
    document->setPlotThreadIds({words(2)});
    if (!isChapter) {
        document->setParentId(m_chapters.back());
        document->setPointOfView(words(1));
        document->setSceneInstant(qint64(number) * 1440);
        document->setFootnotes({{QStringLiteral("1"), words(8), false}});
    } else {
        m_chapters.push_back(document->id());
    }
    m_documents.push_back(document->id());
    m_project->add(std::move(document));
}

void Generator::addEntity()
{
    auto entity = std::make_unique<Entity>(newId(), oneOf(m_categories), words(2));
    FieldValues values;
    for (int i = 0; i < 6; ++i)
        values[QStringLiteral("field%1").arg(i)] = words(8 + below(30));
    entity->setValues(values);
    entity->setAliases({words(1), words(2)});
    entity->setLifespan({qint64(below(1000000)), std::nullopt});
    m_entities.push_back(entity->id());
    m_project->add(std::move(entity));
}

void Generator::addEvent()
{
    TimelineEventData data;
    data.timelineId = m_timelineId;
    data.title = words(5);
    data.startMinute = below(100000000);
    data.durationMinutes = below(10000);
    data.participants = {oneOf(m_entities), oneOf(m_entities), oneOf(m_entities)};
    data.locationId = oneOf(m_entities);
    data.sceneIds = {oneOf(m_documents)};
    data.description = words(40);
    m_project->add(std::make_unique<TimelineEvent>(newId(), data));
}

void Generator::addComment()
{
    auto comment = std::make_unique<Comment>(newId(), oneOf(m_documents));
    const QDateTime created(QDate(2026, 1, 1).addDays(below(300)), QTime(12, 0), Qt::UTC);
    comment->setData({{}, words(3), QStringLiteral("Ana"), words(30), created, created, false});
    m_project->add(std::move(comment));
}

void Generator::addTask(int number)
{
    auto task = std::make_unique<Task>(newId(), words(5));
    task->setDescription(words(25));
    task->setDueDate(QDate(2026, 1, 1).addDays(below(300)));
    task->setSortIndex(number);
    m_project->add(std::move(task));
}

std::unique_ptr<Project> Generator::project(int objects)
{
    m_project = std::make_unique<Project>();
    addCategories();
    auto timeline = std::make_unique<Timeline>(newId(), QStringLiteral("History"));
    m_timelineId = timeline->id();
    if (objects > 0)
        m_project->add(std::move(timeline));
    for (int i = 0, documents = 0; m_project->size() < objects; ++i) {
        switch (i % 12) {
        case 1:
        case 7:
            addEntity();
            break;
        case 4:
            addEvent();
            break;
        case 10:
            i % 24 == 10 ? addComment() : addTask(i);
            break;
        default:
            addDocument(documents++);
        }
    }
    return std::move(m_project);
}

} // namespace

std::unique_ptr<Project> generateProject(int objects)
{
    return Generator().project(objects);
}

} // namespace vl::bench

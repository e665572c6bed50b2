#include "app/story/templatebuilder.h"

#include "core/content/randomtable.h"
#include "core/content/task.h"

namespace vl::app {

using namespace core;

ContentId TemplateBuilder::addCategory(const QString &name, const QList<FieldDefinition> &fields,
                                       const ContentId &parent)
{
    const Category category{ContentId::create(), name, parent, fields};
    m_project.editTaxonomy().add(category);
    return category.id;
}

Document &TemplateBuilder::addDocument(DocumentKind kind, const QString &title,
                                       const ContentId &parent, const QString &synopsis)
{
    auto document = std::make_unique<Document>(ContentId::create(), kind, title);
    document->setParentId(parent);
    document->setSortIndex(m_children[parent]++);
    document->setSynopsis(synopsis);
    Document &added = *document;
    m_project.add(std::move(document));
    return added;
}

Document &TemplateBuilder::addNote(const QString &title, const QString &body,
                                   const ContentId &parent)
{
    Document &note = addDocument(DocumentKind::Note, title, parent);
    note.setBody(body);
    return note;
}

void TemplateBuilder::addTask(const QString &board, const QString &title,
                              const QString &description)
{
    auto task = std::make_unique<Task>(ContentId::create(), title);
    task->setBoard(board);
    task->setDescription(description);
    task->setSortIndex(m_tasks++);
    m_project.add(std::move(task));
}

void TemplateBuilder::addTable(const QString &title, const QStringList &entries)
{
    RandomTableData data;
    data.title = title;
    for (const QString &entry : entries)
        data.entries.append({entry, 1});
    m_project.add(std::make_unique<RandomTable>(ContentId::create(), data));
}

void TemplateBuilder::addThread(const QString &name, const QString &description,
                                const QString &color)
{
    QList<PlotThread> threads = m_project.plotThreads();
    threads.append({name, description, {}, color});
    m_project.setPlotThreads(threads);
}

void TemplateBuilder::addEntityTemplate(const QString &name, const ContentId &category,
                                        const std::map<QString, QString> &values)
{
    QList<EntityTemplate> templates = m_project.entityTemplates();
    templates.append({name, category, values});
    m_project.setEntityTemplates(templates);
}

void TemplateBuilder::useBeatSheet(const QString &templateId)
{
    m_project.setBeatSheet({templateId, {}});
}

void TemplateBuilder::assign(const Document &document, const QString &beat)
{
    BeatSheet sheet = m_project.beatSheet();
    sheet.assignments.append({document.id(), beat});
    m_project.setBeatSheet(sheet);
}

FieldDefinition TemplateBuilder::field(const QString &key, const QString &label, FieldType type,
                                       const QString &description)
{
    return {key, label, type, false, {}, description};
}

FieldDefinition TemplateBuilder::choice(const QString &key, const QString &label,
                                        const QStringList &options)
{
    return {key, label, FieldType::Choice, false, options, {}};
}

} // namespace vl::app

#pragma once

#include "core/content/document.h"
#include "core/project.h"

#include <QtCore/QHash>

namespace vl::app {

/// Fills a project with the pieces of a template. Everything is new, so there is no history.
class TemplateBuilder
{
public:
    explicit TemplateBuilder(core::Project &project)
        : m_project(project)
    {
    }

    core::Project &project() { return m_project; }

    /// Adds a category of the codex, under another one if there is one given.
    core::ContentId addCategory(const QString &name, const QList<core::FieldDefinition> &fields,
                                const core::ContentId &parent = {});
    /// Adds a document as the last one under another, or of the top level.
    core::Document &addDocument(core::DocumentKind kind, const QString &title,
                                const core::ContentId &parent = {}, const QString &synopsis = {});
    /// Adds a note with a text to be written over.
    core::Document &addNote(const QString &title, const QString &body,
                            const core::ContentId &parent = {});
    void addTask(const QString &board, const QString &title, const QString &description = {});
    void addTable(const QString &title, const QStringList &entries);
    void addThread(const QString &name, const QString &description, const QString &color);
    /// What a new entity of a category starts with.
    void addEntityTemplate(const QString &name, const core::ContentId &category,
                           const std::map<QString, QString> &values);
    /// Chooses a story structure; documents are put on its beats by assign().
    void useBeatSheet(const QString &templateId);
    void assign(const core::Document &document, const QString &beat);

    static core::FieldDefinition field(const QString &key, const QString &label,
                                       core::FieldType type = core::FieldType::Text,
                                       const QString &description = {});
    static core::FieldDefinition choice(const QString &key, const QString &label,
                                        const QStringList &options);

private:
    core::Project &m_project;
    QHash<core::ContentId, int> m_children; ///< how many documents stand under each
    int m_tasks = 0;
};

} // namespace vl::app

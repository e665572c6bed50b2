#pragma once

#include "core/commands/command.h"
#include "core/project.h"

#include <memory>
#include <optional>
#include <vector>

namespace vl::core {

/// Contents of a project that take the place of what it holds under the same ids.
struct NewContents
{
    std::vector<std::unique_ptr<ContentObject>> objects;
    std::vector<ContentId> goneObjects; ///< ids of objects that are to be taken out
    std::vector<Category> categories;
    std::vector<ContentId> goneCategories;
    std::unique_ptr<Project> records; ///< its project-level records are taken over; null for none

    bool isEmpty() const
    {
        return objects.empty() && goneObjects.empty() && categories.empty()
               && goneCategories.empty() && !records;
    }
};

/// Puts whole objects, categories and records in place of those in the project, as one step. It
/// owns what it took out, so that earlier steps find the very objects they changed once it is
/// undone.
class ReplaceContentsCommand final : public Command
{
public:
    ReplaceContentsCommand(Project &project, NewContents contents, QString text);
    ~ReplaceContentsCommand() override;

    void redo() override;
    void undo() override;
    QString text() const override { return m_text; }

private:
    struct ObjectSlot
    {
        ContentId id;
        std::unique_ptr<ContentObject> other; ///< the one that is not in the project now
    };
    struct CategorySlot
    {
        ContentId id;
        std::optional<Category> other;
    };

    void swapObject(ObjectSlot &slot, ChangeSet &changes);
    void swapCategory(CategorySlot &slot, ChangeSet &changes);
    void swapRecords(ChangeSet &changes);

    Project &m_project;
    std::vector<ObjectSlot> m_objects;
    std::vector<CategorySlot> m_categories;
    std::unique_ptr<Project> m_records; ///< holds the records that are not in the project now
    QString m_text;
};

} // namespace vl::core

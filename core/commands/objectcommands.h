#pragma once

#include "core/commands/setmember.h"

#include <memory>

namespace vl::core {

// The getters are those of the common base, so these serve every kind of object.
using SetAiExclusionCommand = SetMember<&ContentObject::isAiExcluded, &ContentObject::setAiExcluded,
                                        QT_TRANSLATE_NOOP("vl::core::Command", "Set AI exclusion")>;
using SetObjectTagsCommand = SetMember<&ContentObject::tags, &ContentObject::setTags,
                                       QT_TRANSLATE_NOOP("vl::core::Command", "Set tags")>;
using SetObjectVisibilityCommand =
    SetMember<&ContentObject::visibleTo, &ContentObject::setVisibleTo,
              QT_TRANSLATE_NOOP("vl::core::Command", "Set visibility")>;

/// Adds a new content object, which the command owns while it is undone.
class AddObjectCommand final : public Command
{
public:
    AddObjectCommand(Project &project, std::unique_ptr<ContentObject> object);
    ~AddObjectCommand() override;

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Project &m_project;
    ContentId m_id; ///< null for a null object
    std::unique_ptr<ContentObject> m_object;
};

/// Takes a content object out; what refers to it stays as it is.
class RemoveObjectCommand final : public Command
{
public:
    RemoveObjectCommand(Project &project, const ContentId &id);
    ~RemoveObjectCommand() override;

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Project &m_project;
    ContentId m_id;
    std::unique_ptr<ContentObject> m_object;
};

/// Pins an object, or takes its pin away.
class SetPinnedCommand final : public Command
{
public:
    SetPinnedCommand(Project &project, const ContentId &id, bool pinned);

    void redo() override;
    void undo() override;
    QString text() const override;

private:
    Project &m_project;
    ContentId m_id;
    bool m_pinned;
    bool m_wasPinned = false;
};

} // namespace vl::core

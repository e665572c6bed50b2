#pragma once

#include "core/commands/command.h"
#include "core/content/contentobject.h"
#include "core/project.h"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace vl::core {

/// The text of a command as a template argument, in the source language.
template<std::size_t N>
struct CommandLabel
{
    // NOLINTNEXTLINE(google-explicit-constructor): a string literal stands for it
    constexpr CommandLabel(const char (&label)[N])
    {
        for (std::size_t i = 0; i < N; ++i)
            text[i] = label[i];
    }
    char text[N] = {};
};

template<typename Member>
struct GetterTraits;
template<typename Object, typename Value>
struct GetterTraits<Value (Object::*)() const>
{
    using ObjectType = Object;
    using ValueType = std::remove_cvref_t<Value>;
};

/// Sets one field, or one whole list or record, of a content object. A command of this family is
/// one line: the getter, the setter and the text.
template<auto Getter, auto Setter, CommandLabel Label>
class SetMember final : public Command
{
    using Class = typename GetterTraits<decltype(Getter)>::ObjectType;

public:
    using Object = Class;
    using Value = typename GetterTraits<decltype(Getter)>::ValueType;

    SetMember(Object &object, Value value)
        : m_object(object)
        , m_new(std::move(value))
    {
        touchObject(object.id());
    }

    void redo() override
    {
        m_old = (m_object.*Getter)();
        (m_object.*Setter)(m_new);
    }
    void undo() override { (m_object.*Setter)(m_old); }
    QString text() const override { return tr(Label.text); }

private:
    Object &m_object;
    Value m_new;
    Value m_old{};
};

/// Sets one of the records that belong to the project as a whole.
template<ProjectRecord Record, auto Getter, auto Setter, CommandLabel Label>
class SetRecord final : public Command
{
public:
    using Value = typename GetterTraits<decltype(Getter)>::ValueType;

    SetRecord(Project &project, Value value)
        : m_project(project)
        , m_new(std::move(value))
    {
        m_changes.touch(Record);
    }

    void redo() override
    {
        m_old = (m_project.*Getter)();
        (m_project.*Setter)(m_new);
    }
    void undo() override { (m_project.*Setter)(m_old); }
    QString text() const override { return tr(Label.text); }

private:
    Project &m_project;
    Value m_new;
    Value m_old{};
};

} // namespace vl::core

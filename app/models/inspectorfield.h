#pragma once

#include "core/commands/command.h"
#include "core/content/contentobject.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>
#include <memory>

namespace vl::app {

/// How a field of the inspector is edited, and what its value is.
enum class FieldEditing
{
    Line,       ///< a text on one line
    Text,       ///< a text of any length
    Number,     ///< a number as it is typed
    YesNo,      ///< "yes", "no" or empty
    Check,      ///< a bool
    Date,       ///< a date as it is typed, kept also when it is none
    Instant,    ///< a date of the project's calendar, empty for none; all else is refused
    Reference,  ///< the name of an object, empty for none; names that nothing has are refused
    Choice,     ///< the value of one of the options
    OpenChoice, ///< a text, with suggestions
    Url,        ///< a web address as it is typed
    Tokens,     ///< a list of texts (QStringList)
    Level,      ///< 0 to 10, 0 for unset (int)
    Target,     ///< words, 0 for none (int)
    TimedValues,
    Pictures,
    FieldList, ///< the fields that a category defines
    Note,      ///< a text that is only shown
};

struct FieldOption
{
    QString value;
    QString label;

    bool operator==(const FieldOption &) const = default;
};

/// One field of the form that the inspector shows.
struct InspectorField
{
    QString key; ///< unique within the form
    QString label;
    FieldEditing editing = FieldEditing::Line;
    QString help;
    QList<FieldOption> options;
    bool isRequired = false;
    QString group; ///< a heading stands before the first field of a group, if it has a name

    bool operator==(const InspectorField &) const = default;
};

/// A field with the way to read it from an object and to write it. What is written is a command;
/// `before` is what all objects together had, which tells a token that went from one that only
/// some have.
struct InspectorAccess
{
    using Read = std::function<QVariant(const core::ContentObject &)>;
    using Write = std::function<std::unique_ptr<core::Command>(
        core::ContentObject &, const QVariant &value, const QVariant &before)>;

    InspectorField field;
    Read read;
    Write write; ///< none for what is edited by other means
};

} // namespace vl::app

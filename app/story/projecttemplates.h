#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

namespace vl::core {
class Project;
}

namespace vl::app {

/// A kind of work that a new project can be prepared for.
struct ProjectTemplate
{
    QString id;
    QString name;        ///< in the interface language
    QString description; ///< what it brings, in one or two sentences
};

/// The built-in templates in their fixed order, the empty one first; in the interface language of
/// the moment.
QList<ProjectTemplate> projectTemplates();

/// Puts what the template brings into an empty project: categories with their fields, documents,
/// notes, plot threads, tasks and so on, in the interface language. False, and nothing is done, for
/// an id that there is not.
bool fillFromTemplate(const QString &id, core::Project &project);

} // namespace vl::app

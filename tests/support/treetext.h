#pragma once

#include "core/commandstack.h"
#include "core/project.h"

#include <QtCore/QStringList>

#include <functional>

namespace vl::test {

/// The documents of a project as they are shown, one title a line, indented by one blank a level.
QString treeText(const core::Project &project);

/// Fills a project with documents from such a text; every title stands once.
void buildTree(core::Project &project, const QString &text);

/// The document with this title; null when there is none.
core::Document *documentTitled(const core::Project &project, const QString &title);

/// Walks the history back to its start and forth to its end, twice, and compares what `print` says
/// at each stop with the states, the first of which is the one before the first step. Gives the
/// first difference, or the empty text when there is none.
QString walkHistory(core::CommandStack &stack, const QStringList &states,
                    const std::function<QString()> &print);

} // namespace vl::test

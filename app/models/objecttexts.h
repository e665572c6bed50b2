#pragma once

#include "core/content/contentobject.h"
#include "core/contentkind.h"

#include <QtCore/QString>

namespace vl::core {
class Project;
}

namespace vl::app {

/// What an object is called: the title, name or caption of its kind; empty when it has none.
QString titleOf(const core::ContentObject &object);

/// The kind in the interface language, as it begins a sentence: "Timeline event".
QString kindText(core::ContentKind kind);

/// A name as it fits in a row: on one line and at most 200 characters of it.
QString rowText(const QString &name);

/// A tool tip that shows the text letter for letter, also where it looks like markup.
QString plainToolTip(const QString &text);

/// The text in lower case and without accents, so that "cafe" is found in "Café".
QString searchText(const QString &text);

/// The category with those above it: “People › The Drowned”.
QString categoryPathText(const core::Project &project, const core::ContentId &id);

} // namespace vl::app

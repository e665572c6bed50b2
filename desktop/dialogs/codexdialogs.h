#pragma once

#include "core/content/entity.h"
#include "core/projectrecords.h"

#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtCore/QStringList>

#include <optional>

class QWidget;

namespace vl::app {
struct MergeConflict;
}

namespace vl::desktop {

/// Which of two values each field keeps, shown side by side: the keys that are taken over from the
/// entity that goes; nothing when it is called off.
std::optional<QSet<QString>> askMerge(const QString &source, const QString &target,
                                      const QList<app::MergeConflict> &conflicts, QWidget *parent);

/// What a part of an entity is called and what it takes along.
struct SplitChoice
{
    QString name;
    QSet<QString> keys;
    QStringList aliases;
};

/// `values` are the fields that may go, as key and text.
std::optional<SplitChoice> askSplit(const QString &entity,
                                    const QList<std::pair<QString, QString>> &values,
                                    const QStringList &aliases, QWidget *parent);

/// The templates after some were renamed, moved or removed; nothing when it is called off.
std::optional<QList<core::EntityTemplate>>
askTemplates(const QList<core::EntityTemplate> &templates, QWidget *parent);

} // namespace vl::desktop

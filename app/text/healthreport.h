#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace vl::core {
class Project;
}

namespace vl::app {

/// One piece of the manuscript as the health report reads it.
struct HealthDocument
{
    QString title;
    QString text; ///< Markdown; a piece without a word counts as no scene
    QString pointOfView;
    QString status;
};

/// One entity of the world that the manuscript may mention.
struct HealthEntity
{
    QString name;
    QStringList aliases;
    QString category;
};

/// Everything that the health report is made from.
struct HealthInput
{
    QString title;                   ///< of the work; may be empty
    QList<HealthDocument> documents; ///< in the order of reading
    QList<HealthEntity> entities;    ///< those of one category together
};

/// Tells an editor how a manuscript stands: length, dialogue, readability, points of view, style
/// and which parts of the world occur. All functions are pure and may run on any thread.
class HealthReport
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::HealthReport)

public:
    /// The report as Markdown; user text in it is escaped. Linear in the length of the texts.
    static QString toMarkdown(const HealthInput &input);
    /// The same report as one HTML page that needs no other file.
    static QString toHtml(const HealthInput &input);
    /// The section on style alone, over the texts of these documents.
    static QString styleSection(const QList<HealthDocument> &documents);
};

/// The manuscript (its shown variants, no notes) and the world of a project. Entities stand in the
/// order of the category tree and by name; those of a lost category come last.
HealthInput readHealthInput(const core::Project &project, const QString &title);

} // namespace vl::app

#pragma once

#include "app/storage/outsidescan.h"
#include "app/storage/reconcile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <vector>

namespace vl::app {

/// What the user is told, and may decide, about changes that others made to the project's files.
struct OutsideOffer
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::OutsideOffer)

public:
    enum class Kind
    {
        None,
        Notice,       ///< files changed, and nothing here is unsaved
        Merge,        ///< files changed, and there are unsaved edits to bring them together with
        WholeProject, ///< the project was replaced as a whole, and nothing here is unsaved
        Vanished,     ///< no file of the project is left
        Unreadable,   ///< files that hold nothing whole, for longer than a write takes
    };

    Kind kind = Kind::None;
    int files = 0;
    int conflicts = 0; ///< files that the user has to look at before a merge
    int deletions = 0; ///< files that are gone on disk
    QString text;
    QString advice;

    bool operator==(const OutsideOffer &) const = default;

    /// The offer for what a look found. `entries` is its reconcile with all that could be settled
    /// without asking, `isDirty` whether there are unsaved edits, `path` where the project is kept.
    static OutsideOffer of(const OutsideState &state, const std::vector<ReconcileEntry> &entries,
                           bool isDirty, const QString &path);

    /// For a project of which nothing is left at its path.
    static QString goneText(const QString &path);
    static QString loadedText();
    static QString keptText();
    static QString nothingText();
    static QString mergedText();
    /// For so many media files that changed on disk.
    static QString mediaText(int files);
    static QString mediaReloadedText();
};

} // namespace vl::app

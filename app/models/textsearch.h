#pragma once

#include "app/models/projectsearchpattern.h"

#include <QtCore/QString>

#include <atomic>
#include <vector>

namespace vl::app {

/// What to look for in a text, and where.
struct SearchTerms
{
    SearchOptions options;
    qsizetype from = 0; ///< UTF-16 units
    qsizetype to = -1;  ///< to the end of the text while negative
};

struct SearchHit
{
    qsizetype position = 0; ///< UTF-16 units
    qsizetype length = 0;

    bool operator==(const SearchHit &) const = default;
};

struct SearchResult
{
    std::vector<SearchHit> hits; ///< in order, without overlap, none empty
    bool isCut = false;          ///< there are more than are kept
    QString error;               ///< for the user; what was found before it came stands in hits
};

/// The most hits that a search keeps.
inline constexpr size_t mostSearchHits = 200'000;

/// Finds all places that the terms allow. Reads nothing but its arguments, so it may run on any
/// thread; it gives up when `isCancelled` becomes true.
SearchResult findAll(const QString &text, const SearchTerms &terms,
                     const std::atomic_bool *isCancelled = nullptr);

/// The text with the hits replaced; `replacement` is as replacementFor() has it.
QString replacedHits(const QString &text, const std::vector<SearchHit> &hits,
                     const SearchOptions &options, const QString &replacement, bool keepsCase);
/// What takes the place of one hit.
QString replacementOf(const QString &text, const SearchHit &hit, const SearchOptions &options,
                      const QString &replacement, bool keepsCase);

/// Where a place of the text lies when the hits are replaced; one within a hit goes to its end.
qsizetype placeAfterReplacing(qsizetype place, const QString &text,
                              const std::vector<SearchHit> &hits, const SearchOptions &options,
                              const QString &replacement, bool keepsCase);

/// The hits as they stand after an edit of the text; those that it touches are gone.
void moveHits(std::vector<SearchHit> &hits, qsizetype position, qsizetype removed, qsizetype added);

/// The number of the first hit at or behind a place, that of the first when none is; -1 without
/// any.
qsizetype hitFrom(const std::vector<SearchHit> &hits, qsizetype position);
/// The number of the last hit before a place, that of the last when none is; -1 without any.
qsizetype hitBefore(const std::vector<SearchHit> &hits, qsizetype position);

} // namespace vl::app

#pragma once

#include "app/models/projectsearchpattern.h"
#include "app/models/projectsearchtexts.h"

#include <QtCore/QPromise>

#include <memory>
#include <optional>
#include <vector>

namespace vl::app {

/// What a search found in some of its texts.
struct SearchBatch
{
    struct Finding
    {
        std::size_t text = 0; ///< which of the texts searched
        SearchMatch match;
        QString before; ///< what stands before it on its line, shortened
        QString matched;
        QString after;
    };
    std::vector<Finding> findings;
    bool isCut = false;               ///< there was more than is wanted
    std::optional<size_t> tooComplex; ///< the text on which an expression was given up
};

/// Searches the texts for at most so many places, for another thread to run: hands batches on as it
/// goes, tells how many texts are done, and ends when it is cancelled.
void runSearch(QPromise<SearchBatch> &promise, const std::vector<SearchText> &texts,
               const SearchPattern &pattern, int maximumPlaces);

/// A stretch of a text as one line: line ends as a sign, other white space and control characters
/// as blanks.
QString onOneLine(QStringView text);

} // namespace vl::app

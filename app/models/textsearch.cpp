#include "app/models/textsearch.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace vl::app {

namespace {

struct TextSearch
{
    Q_DECLARE_TR_FUNCTIONS(vl::app::TextSearch)
};

bool isBefore(const SearchHit &hit, qsizetype place)
{
    return hit.position < place;
}

} // namespace

SearchResult findAll(const QString &text, const SearchTerms &terms,
                     const std::atomic_bool *isCancelled)
{
    SearchResult result;
    if (terms.options.pattern.isEmpty())
        return result;
    const Result<SearchPattern> pattern = SearchPattern::compile(terms.options);
    if (!pattern) {
        result.error = pattern.message();
        return result;
    }
    const qsizetype to = terms.to < 0 ? text.size() : std::min(terms.to, text.size());
    const auto receive = [&](const SearchMatch &match) {
        if (match.position + match.length > to)
            return false;
        if (match.position < terms.from)
            return true;
        result.isCut = result.hits.size() >= mostSearchHits;
        if (!result.isCut)
            result.hits.push_back({match.position, match.length});
        return !result.isCut;
    };
    const auto stops = [isCancelled] { return isCancelled && isCancelled->load(); };
    if (pattern->find(text, receive, stops) == SearchPattern::Outcome::TooComplex)
        result.error = TextSearch::tr("The expression takes too many steps.");
    return result;
}

QString replacedHits(const QString &text, const std::vector<SearchHit> &hits,
                     const SearchOptions &options, const QString &replacement, bool keepsCase)
{
    const Result<SearchPattern> pattern = SearchPattern::compile(options);
    if (!pattern || hits.empty())
        return text;
    QString result;
    result.reserve(text.size());
    qsizetype copied = 0;
    size_t next = 0;
    // Found once more, for the groups, which would be much to keep for every hit.
    (void)pattern->find(text, [&](const SearchMatch &match) {
        while (next < hits.size() && hits[next].position < match.position)
            ++next;
        if (next == hits.size())
            return false;
        if (hits[next] != SearchHit{match.position, match.length})
            return true;
        result += QStringView(text).sliced(copied, match.position - copied);
        result += replacementFor(match, text.mid(match.position, match.length), replacement,
                                 options.isExpression, keepsCase);
        copied = match.position + match.length;
        return ++next < hits.size();
    });
    return result + QStringView(text).sliced(copied).toString();
}

QString replacementOf(const QString &text, const SearchHit &hit, const SearchOptions &options,
                      const QString &replacement, bool keepsCase)
{
    const qsizetype tail = text.size() - hit.position - hit.length;
    const QString replaced = replacedHits(text, {hit}, options, replacement, keepsCase);
    return replaced.sliced(hit.position, replaced.size() - tail - hit.position);
}

qsizetype placeAfterReplacing(qsizetype place, const QString &text,
                              const std::vector<SearchHit> &hits, const SearchOptions &options,
                              const QString &replacement, bool keepsCase)
{
    const auto next = std::lower_bound(hits.begin(), hits.end(), place, isBefore);
    if (next == hits.begin())
        return place;
    const std::vector<SearchHit> before(hits.begin(), next);
    const qsizetype from = std::max(place, before.back().position + before.back().length);
    return from + replacedHits(text, before, options, replacement, keepsCase).size() - text.size();
}

void moveHits(std::vector<SearchHit> &hits, qsizetype position, qsizetype removed, qsizetype added)
{
    const auto first = std::lower_bound(
        hits.begin(), hits.end(), position,
        [](const SearchHit &hit, qsizetype place) { return hit.position + hit.length <= place; });
    auto last = first;
    while (last != hits.end() && last->position < position + std::max<qsizetype>(removed, 1))
        ++last;
    const auto rest = hits.erase(first, last);
    for (auto hit = rest; hit != hits.end(); ++hit)
        hit->position += added - removed;
}

qsizetype hitFrom(const std::vector<SearchHit> &hits, qsizetype position)
{
    if (hits.empty())
        return -1;
    const auto found = std::lower_bound(hits.begin(), hits.end(), position, isBefore);
    return found == hits.end() ? 0 : found - hits.begin();
}

qsizetype hitBefore(const std::vector<SearchHit> &hits, qsizetype position)
{
    if (hits.empty())
        return -1;
    const auto found = std::lower_bound(hits.begin(), hits.end(), position, isBefore);
    return found == hits.begin() ? qsizetype(hits.size()) - 1 : found - hits.begin() - 1;
}

} // namespace vl::app

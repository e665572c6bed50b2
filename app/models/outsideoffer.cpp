#include "app/models/outsideoffer.h"

#include <QtCore/QDir>

#include <algorithm>

namespace vl::app {

namespace {

/// Whether so much is another that it is the project, rather than files of it, that changed.
bool isWholeProject(const OutsideState &state)
{
    constexpr qsizetype fewFiles = 10;
    return state.bundle
           || (state.knownFiles >= fewFiles
               && qsizetype(state.files.size()) * 2 > state.knownFiles);
}

} // namespace

OutsideOffer OutsideOffer::of(const OutsideState &state, const std::vector<ReconcileEntry> &entries,
                              bool isDirty, const QString &path)
{
    OutsideOffer offer;
    if (state.hasVanished()) {
        offer.kind = Kind::Vanished;
        offer.text = goneText(path);
        offer.advice =
            tr("Nothing is removed here. If the disk or the sync folder comes back, all "
               "goes on as before; otherwise save to write everything there again, but for "
               "pictures and other media, which were only there.");
        return offer;
    }
    offer.files = int(state.files.size());
    offer.deletions = int(state.goneFiles);
    offer.conflicts =
        int(std::count_if(entries.begin(), entries.end(),
                          [](const ReconcileEntry &entry) { return isConflict(entry.state); }));
    if (state.place == OutsideState::Place::Unreadable
        || (state.files.empty() && !state.unsettled.isEmpty())) {
        offer.kind = Kind::Unreadable;
        offer.text = state.unsettled.isEmpty()
                         ? state.message
                         : tr("%n project file(s) changed outside Ivorel and cannot be read.",
                              nullptr, int(state.unsettled.size()));
        offer.advice = tr("Nothing of it is loaded. What you have here is whole, and saving "
                          "keeps it.");
        return offer;
    }
    if (state.files.empty())
        return offer;
    if (isDirty) {
        offer.kind = Kind::Merge;
        offer.text =
            tr("%n file(s) changed outside Ivorel and can be merged with your unsaved "
               "edits here. Merge and reload now? Your current project is backed up first.",
               nullptr, offer.files);
    } else if (isWholeProject(state)) {
        offer.kind = Kind::WholeProject;
        offer.text = tr("The project changed outside Ivorel since you opened it.");
    } else {
        offer.kind = Kind::Notice;
        offer.text = tr("%n project file(s) changed outside Ivorel since you opened it.", nullptr,
                        offer.files);
        offer.advice = tr("Reopen the project to load the on-disk version, or save to keep yours. "
                          "(This is a read-only heads-up so a sync client or co-author's changes "
                          "don't surprise you.)");
    }
    return offer;
}

QString OutsideOffer::goneText(const QString &path)
{
    return tr("The project's files are gone from the disk: %1").arg(QDir::toNativeSeparators(path));
}

QString OutsideOffer::loadedText()
{
    return tr("Loaded the on-disk version of the project.");
}

QString OutsideOffer::keptText()
{
    return tr("Keeping your version — your next save will overwrite the on-disk changes.");
}

QString OutsideOffer::nothingText()
{
    return tr("No external changes — the project on disk matches what you have open.");
}

QString OutsideOffer::mergedText()
{
    return tr("Merged the on-disk changes with yours.");
}

QString OutsideOffer::mediaText(int files)
{
    return tr("%n media file(s) in the project changed on disk (added, replaced, or removed by a "
              "co-author or sync client). Save or reopen the project to use the updated assets.",
              nullptr, files);
}

QString OutsideOffer::mediaReloadedText()
{
    return tr("Reloaded the project with the updated media files.");
}

} // namespace vl::app

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

namespace vl::app {

/// One turn of a story structure.
struct Beat
{
    QString name; ///< also the key under which a project stores its assignments: never translated
    QString description;
    double position = 0; ///< target place in the story, in percent of the way through, 0 to 100

    bool operator==(const Beat &) const = default;
};

/// A named story structure that a beat sheet lays over the manuscript.
struct BeatSheetTemplate
{
    QString id; ///< what the project stores
    QString name;
    QString description; ///< one sentence
    QList<Beat> beats;   ///< in rising position; no two names alike

    bool operator==(const BeatSheetTemplate &) const = default;
};

/// The built-in structures in their fixed order. Made on first use, by any thread; never changes.
const QList<BeatSheetTemplate> &beatSheetTemplates();

/// The structure with exactly this id, or null when there is none, as for the empty id of a project
/// that has chosen no structure.
const BeatSheetTemplate *findBeatSheetTemplate(const QString &id);

} // namespace vl::app

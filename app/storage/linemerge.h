#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QStringView>

namespace vl::app {

/// What a three-way merge gave: the merged text, with markers around each conflict.
template<typename Text>
struct MergedText
{
    Text text;
    int conflicts = 0; ///< hunks that both sides changed differently
};

/// Merges two texts that were made from one, line by line. Hunks that one side changed become that
/// side's, hunks that both changed alike are taken once, and hunks that both changed differently
/// are conflicts, written as the line "<<<<<<< local", the local lines, "=======", the remote lines
/// and
/// ">>>>>>> remote".
///
/// A line ends at "\n" alone and keeps its "\r". Changes of neighbouring lines merge. Two different
/// insertions at one place conflict. An insertion just before or after lines that the other side
/// changed merges, for its place is certain, unless both sides have the same line where they meet:
/// then both may have put in the same lines, and taking them twice would be wrong.
/// Whether the text ends with "\n" is merged as a property of its own: a last line without one
/// stays so when it is the last line of the result, and gets one when another line or a marker
/// follows it.
///
/// Swapping the sides swaps the bodies of the conflicts and nothing else.
MergedText<QString> mergeLines(QStringView base, QStringView local, QStringView remote);

/// The same over bytes in any encoding in which the byte 10 is a line's end.
MergedText<QByteArray> mergeLines(QByteArrayView base, QByteArrayView local, QByteArrayView remote);

} // namespace vl::app

#include "app/text/export/manuscriptrtfentries.h"

#include "app/text/footnotetext.h"

#include <QtCore/QStringList>
#include <QtCore/QStringView>

#include <algorithm>

namespace vl::app {

namespace {

/// Whether a trimmed line stands for a break between scenes: "#", or three or more of one of "-",
/// "*", "_" and "#", with or without blanks between them.
bool isSceneBreak(QStringView line)
{
    if (line.isEmpty() || !QStringView(u"-*_#").contains(line.first(1)))
        return false;
    const QChar mark = line.front();
    const bool isOneMark = std::all_of(line.cbegin(), line.cend(), [mark](QChar c) {
        return c == mark || c == QLatin1Char(' ') || c == QLatin1Char('\t');
    });
    return isOneMark && (mark == QLatin1Char('#') || line.count(mark) >= 3);
}

/// The scenes that a text holds, parted by its breaks: one line a paragraph, paragraphs parted by
/// one empty line. A text of white space and breaks alone gives none.
QStringList scenesOf(const QString &text)
{
    QStringList scenes;
    QString scene;
    bool isParagraphOpen = false;
    const auto finishScene = [&] {
        if (!scene.isEmpty())
            scenes.append(scene);
        scene.clear();
        isParagraphOpen = false;
    };
    for (const QStringView untrimmed : QStringView(text).split(QLatin1Char('\n'))) {
        const QStringView line = untrimmed.trimmed();
        if (line.isEmpty()) {
            isParagraphOpen = false;
        } else if (isSceneBreak(line)) {
            finishScene();
        } else {
            if (isParagraphOpen)
                scene += QLatin1Char(' ');
            else if (!scene.isEmpty())
                scene += QLatin1String("\n\n");
            scene += line;
            isParagraphOpen = true;
        }
    }
    finishScene();
    return scenes;
}

} // namespace

QList<ManuscriptEntry> manuscriptRtfEntries(const Manuscript &manuscript)
{
    QList<ManuscriptEntry> entries;
    for (const ManuscriptEntry &whole : manuscript.entries) {
        QStringList scenes = scenesOf(withoutFootnoteDefinitions(whole.text));
        const bool isHeading = whole.level <= 1;
        ManuscriptEntry entry = whole;
        if (isHeading && scenes.size() > 1) {
            entry.text.clear();
            entries.append(entry);
            entry.level = 2;
        } else {
            entry.text = scenes.isEmpty() ? QString() : scenes.takeFirst();
            entries.append(entry);
        }
        for (const QString &scene : scenes) {
            entry.text = scene;
            entries.append(entry);
        }
    }
    return entries;
}

} // namespace vl::app

#include "app/models/objecttexts.h"

#include "core/content/canvas.h"
#include "core/content/chart.h"
#include "core/content/comment.h"
#include "core/content/document.h"
#include "core/content/entity.h"
#include "core/content/language.h"
#include "core/content/map.h"
#include "core/content/media.h"
#include "core/content/randomtable.h"
#include "core/content/source.h"
#include "core/content/spreadsheet.h"
#include "core/content/statblock.h"
#include "core/content/task.h"
#include "core/content/timeline.h"
#include "core/project.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSet>

#include <algorithm>

namespace vl::app {

using core::ContentKind;
using core::ContentObject;

namespace {

constexpr int longestRow = 200;

template<typename T>
const T &as(const ContentObject &object)
{
    return static_cast<const T &>(object);
}

} // namespace

QString titleOf(const ContentObject &object)
{
    switch (object.kind()) {
    case ContentKind::Document:
        return as<core::Document>(object).title();
    case ContentKind::Entity:
        return as<core::Entity>(object).name();
    case ContentKind::Spreadsheet:
        return as<core::Spreadsheet>(object).title();
    case ContentKind::Chart:
        return as<core::Chart>(object).data().title;
    case ContentKind::Map:
        return as<core::Map>(object).title();
    case ContentKind::Timeline:
        return as<core::Timeline>(object).title();
    case ContentKind::TimelineEvent:
        return as<core::TimelineEvent>(object).data().title;
    case ContentKind::Media:
        return as<core::Media>(object).caption();
    case ContentKind::Source:
        return as<core::Source>(object).data().title;
    case ContentKind::Task:
        return as<core::Task>(object).title();
    case ContentKind::Canvas:
        return as<core::Canvas>(object).title();
    case ContentKind::Comment:
        return as<core::Comment>(object).data().body;
    case ContentKind::Language:
        return as<core::Language>(object).data().name;
    case ContentKind::RandomTable:
        return as<core::RandomTable>(object).data().title;
    case ContentKind::StatBlock:
        return as<core::StatBlock>(object).data().title;
    }
    return {};
}

QString kindText(ContentKind kind)
{
    static const char *const names[] = {
        QT_TRANSLATE_NOOP("ContentKinds", "Document"),
        QT_TRANSLATE_NOOP("ContentKinds", "Entity"),
        QT_TRANSLATE_NOOP("ContentKinds", "Spreadsheet"),
        QT_TRANSLATE_NOOP("ContentKinds", "Chart"),
        QT_TRANSLATE_NOOP("ContentKinds", "Map"),
        QT_TRANSLATE_NOOP("ContentKinds", "Timeline"),
        QT_TRANSLATE_NOOP("ContentKinds", "Timeline event"),
        QT_TRANSLATE_NOOP("ContentKinds", "Media"),
        QT_TRANSLATE_NOOP("ContentKinds", "Source"),
        QT_TRANSLATE_NOOP("ContentKinds", "Task"),
        QT_TRANSLATE_NOOP("ContentKinds", "Canvas"),
        QT_TRANSLATE_NOOP("ContentKinds", "Comment"),
        QT_TRANSLATE_NOOP("ContentKinds", "Language"),
        QT_TRANSLATE_NOOP("ContentKinds", "Random table"),
        QT_TRANSLATE_NOOP("ContentKinds", "Stat block"),
    };
    return QCoreApplication::translate("ContentKinds", names[std::size_t(kind)]);
}

QString rowText(const QString &name)
{
    const bool fits = name.size() <= longestRow;
    const bool isLine = std::none_of(name.cbegin(), name.cend(), [](QChar c) {
        return c == u'\n' || c == u'\r' || c == u'\t' || c == QChar::LineSeparator
               || c == QChar::ParagraphSeparator;
    });
    if (fits && isLine)
        return name;
    qsizetype length = std::min<qsizetype>(name.size(), longestRow);
    if (length > 0 && name.at(length - 1).isHighSurrogate())
        --length;
    return name.left(length).simplified() + (fits ? QString() : QStringLiteral("…"));
}

QString plainToolTip(const QString &text)
{
    // Escaped alone it would not be taken for markup, and show its escapes.
    return text.isEmpty() ? QString()
                          : QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>")
                                .arg(text.toHtmlEscaped());
}

QString searchText(const QString &text)
{
    const bool isPlain =
        std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x80; });
    if (isPlain)
        return text.toLower();
    QString folded = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    folded.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
    return folded;
}

QString categoryPathText(const core::Project &project, const core::ContentId &id)
{
    QStringList names;
    QSet<core::ContentId> seen;
    for (const core::Category *category = project.taxonomy().find(id);
         category && !seen.contains(category->id);
         category = project.taxonomy().find(category->parentId)) {
        names.prepend(rowText(category->name));
        seen.insert(category->id);
    }
    return names.join(QStringLiteral(" › "));
}

} // namespace vl::app

#include "cli/batchops.h"

#include "app/story/beatsheettemplates.h"
#include "app/text/export/manuscriptrtf.h"
#include "app/text/markdownrenderer.h"
#include "app/text/markdowntext.h"
#include "app/text/stylechecker.h"
#include "cli/stylejson.h"

namespace vl::cli {

namespace {

/// The operations that turn one text into another.
template<auto convert>
app::Result<QJsonValue> convertText(BatchMembers &request)
{
    const QString text = request.text("text");
    if (request.hasFailed())
        return request.failure();
    return QJsonValue(convert(text));
}

app::Result<QJsonValue> checkStyle(BatchMembers &request)
{
    const QString text = request.text("text");
    if (request.hasFailed())
        return request.failure();
    static const app::StyleChecker checker;
    return QJsonValue(toJson(checker.check(text)));
}

app::Result<QJsonValue> makeRtf(BatchMembers &request)
{
    BatchMembers given = request.members("options");
    app::ManuscriptRtfOptions options;
    options.title = given.optionalText("title");
    options.author = given.optionalText("author");
    options.contact = given.optionalText("contact");
    options.penName = given.optionalText("penName");
    const QJsonArray list = request.array("entries");
    QList<app::ManuscriptEntry> entries;
    for (qsizetype i = 0; i < list.size() && !request.hasFailed(); ++i) {
        BatchMembers each = request.element("entries", list, i);
        app::ManuscriptEntry entry;
        entry.level = each.integer32("level");
        entry.title = each.text("title");
        entry.text = each.text("text");
        entries.append(entry);
    }
    if (request.hasFailed())
        return request.failure();
    return QJsonValue(app::exportManuscriptRtf(options, entries));
}

app::Result<QJsonValue> listBeatSheets(BatchMembers &)
{
    QJsonArray sheets;
    for (const app::BeatSheetTemplate &sheet : app::beatSheetTemplates()) {
        QJsonArray beats;
        for (const app::Beat &beat : sheet.beats)
            beats.append(QJsonObject{{QStringLiteral("name"), beat.name},
                                     {QStringLiteral("description"), beat.description},
                                     {QStringLiteral("position"), beat.position}});
        sheets.append(QJsonObject{{QStringLiteral("id"), sheet.id},
                                  {QStringLiteral("name"), sheet.name},
                                  {QStringLiteral("beats"), beats}});
    }
    return QJsonValue(sheets);
}

const BatchOp rows[] = {
    {"markdown.toHtml", convertText<app::MarkdownRenderer::toHtml>},
    {"markdown.escapeInline", convertText<app::escapeMarkdownInline>},
    {"markdown.escapeLine", convertText<app::escapeMarkdownLine>},
    {"style.check", checkStyle},
    {"rtf.manuscript", makeRtf},
    {"rtf.escape", convertText<app::rtfEscape>},
    {"rtf.inline", convertText<app::markdownInlineToRtf>},
    {"rtf.paragraphs", convertText<app::markdownToRtfParagraphs>},
    {"beats.templates", listBeatSheets},
};

} // namespace

std::span<const BatchOp> batchTextOps()
{
    return rows;
}

} // namespace vl::cli

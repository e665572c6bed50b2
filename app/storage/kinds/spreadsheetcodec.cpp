#include "app/storage/kinds/kinds.h"
#include "app/storage/kinds/objectfields.h"
#include "core/content/spreadsheet.h"

namespace vl::app {

using core::CellAlignment;
using core::CellFormat;
using core::CellNumberFormat;
using core::CellPosition;
using core::Spreadsheet;
using core::SpreadsheetGrid;
using core::SpreadsheetSizes;

namespace {

struct CellEntry : CellPosition
{
    QString text;
};

struct FormatEntry : CellPosition, CellFormat
{
};

struct SizeEntry
{
    qint32 index = 0;
    qint32 size = 0;
};

} // namespace

template<>
struct JsonEnum<CellAlignment>
{
    static constexpr const auto &texts = core::cellAlignmentTexts;
};

template<>
struct JsonEnum<CellNumberFormat>
{
    static constexpr const auto &texts = core::cellNumberFormatTexts;
};

template<>
struct JsonRecord<CellEntry>
{
    static constexpr auto fields = sortedFields<CellEntry>({
        member<CellEntry, &CellPosition::column>("column"),
        member<CellEntry, &CellPosition::row>("row"),
        member<CellEntry, &CellEntry::text>("text"),
    });
};

template<>
struct JsonRecord<FormatEntry>
{
    static constexpr auto fields = sortedFields<FormatEntry>({
        member<FormatEntry, &CellFormat::alignment>("alignment"),
        member<FormatEntry, &CellFormat::backgroundColor>("backgroundColor"),
        member<FormatEntry, &CellFormat::bold>("bold"),
        member<FormatEntry, &CellPosition::column>("column"),
        member<FormatEntry, &CellFormat::decimalPlaces>("decimalPlaces"),
        member<FormatEntry, &CellFormat::fontFamily>("fontFamily"),
        member<FormatEntry, &CellFormat::fontPointSize>("fontPointSize"),
        member<FormatEntry, &CellFormat::italic>("italic"),
        member<FormatEntry, &CellFormat::numberFormat>("numberFormat"),
        member<FormatEntry, &CellPosition::row>("row"),
        member<FormatEntry, &CellFormat::strikeOut>("strikeOut"),
        member<FormatEntry, &CellFormat::textColor>("textColor"),
        member<FormatEntry, &CellFormat::underline>("underline"),
    });
};

template<>
struct JsonRecord<SizeEntry>
{
    static constexpr auto fields = sortedFields<SizeEntry>({
        member<SizeEntry, &SizeEntry::index>("index"),
        member<SizeEntry, &SizeEntry::size>("size"),
    });
};

/// No sheet has a cell there.
static bool isOutside(const CellPosition &position)
{
    return position.row < 0 || position.column < 0;
}

/// Cells in the order of rows, then columns.
static void toJson(JsonWriter &json, const std::map<CellPosition, QString> &cells)
{
    json.beginArray();
    for (const auto &[position, text] : cells)
        toJson(json, CellEntry{position, text});
    json.endArray();
}
static void fromJson(const JsonValue &json, std::map<CellPosition, QString> &cells)
{
    for (const JsonValue element : json.elements()) {
        CellEntry entry;
        fromJson(element, entry);
        if (!isOutside(entry) && element.isObject())
            cells.insert_or_assign(cells.end(), CellPosition(entry), entry.text);
    }
}

static void toJson(JsonWriter &json, const core::CellFormats &formats)
{
    json.beginArray();
    for (const auto &[position, format] : formats)
        toJson(json, FormatEntry{position, format});
    json.endArray();
}
static void fromJson(const JsonValue &json, core::CellFormats &formats)
{
    for (const JsonValue element : json.elements()) {
        FormatEntry entry;
        fromJson(element, entry);
        if (!isOutside(entry) && element.isObject())
            formats.insert_or_assign(formats.end(), CellPosition(entry), CellFormat(entry));
    }
}

static void toJson(JsonWriter &json, const std::map<qint32, qint32> &sizes)
{
    json.beginArray();
    for (const auto &[index, size] : sizes)
        toJson(json, SizeEntry{index, size});
    json.endArray();
}
static void fromJson(const JsonValue &json, std::map<qint32, qint32> &sizes)
{
    for (const JsonValue element : json.elements()) {
        SizeEntry entry;
        fromJson(element, entry);
        if (entry.index >= 0 && element.isObject())
            sizes.insert_or_assign(sizes.end(), entry.index, entry.size);
    }
}

static constexpr auto fields = sortedFields<Spreadsheet>({
    part<Spreadsheet, &Spreadsheet::grid, &Spreadsheet::setGrid, &SpreadsheetGrid::cells>("cells"),
    part<Spreadsheet, &Spreadsheet::grid, &Spreadsheet::setGrid, &SpreadsheetGrid::columnCount>(
        "columnCount"),
    part<Spreadsheet, &Spreadsheet::sizes, &Spreadsheet::setSizes, &SpreadsheetSizes::columnWidths>(
        "columnWidths"),
    field<Spreadsheet, &Spreadsheet::formats, &Spreadsheet::setFormats>("formats"),
    field<Spreadsheet, &Spreadsheet::linkedCategoryId, &Spreadsheet::setLinkedCategoryId>(
        "linkedCategoryId"),
    part<Spreadsheet, &Spreadsheet::grid, &Spreadsheet::setGrid, &SpreadsheetGrid::rowCount>(
        "rowCount"),
    part<Spreadsheet, &Spreadsheet::sizes, &Spreadsheet::setSizes, &SpreadsheetSizes::rowHeights>(
        "rowHeights"),
    field<Spreadsheet, &Spreadsheet::title, &Spreadsheet::setTitle>("title"),
});

std::unique_ptr<core::ContentObject> readSpreadsheet(const core::ContentId &id,
                                                     const JsonValue &json)
{
    auto object = std::make_unique<Spreadsheet>(id, QString());
    readFields<Spreadsheet>(json, fields, *object);
    return object;
}

bool writeSpreadsheet(JsonWriter &json, const core::ContentObject &object)
{
    return writeAs<Spreadsheet>(json, object, fields);
}

} // namespace vl::app

#pragma once

#include "core/content/contentobject.h"

#include <compare>
#include <map>
#include <optional>

namespace vl::core {

/// A cell's place, from 0; ordered by row, then by column.
struct CellPosition
{
    qint32 row = 0;
    qint32 column = 0;

    auto operator<=>(const CellPosition &) const = default;
};

enum class CellAlignment
{
    Default,
    Left,
    Center,
    Right
};
inline constexpr auto cellAlignmentTexts =
    makeEnumTexts<CellAlignment>("default", "left", "center", "right");

enum class CellNumberFormat
{
    General,
    Number,
    Currency,
    Percent,
    Scientific
};
inline constexpr auto cellNumberFormatTexts =
    makeEnumTexts<CellNumberFormat>("general", "number", "currency", "percent", "scientific");

/// How a cell looks; an empty text or a zero stands for the sheet's own.
struct CellFormat
{
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    QString fontFamily;
    qint32 fontPointSize = 0;
    QString textColor;
    QString backgroundColor;
    CellAlignment alignment = CellAlignment::Default;
    CellNumberFormat numberFormat = CellNumberFormat::General;
    qint32 decimalPlaces = 0;

    bool operator==(const CellFormat &) const = default;
};

using CellFormats = std::map<CellPosition, CellFormat>;

/// The size of a sheet and the texts of its cells; a cell without an entry is empty.
struct SpreadsheetGrid
{
    qint32 rowCount = 0;
    qint32 columnCount = 0;
    std::map<CellPosition, QString> cells;

    bool operator==(const SpreadsheetGrid &) const = default;
};

/// Widths and heights in pixels by index, where they are not the usual ones.
struct SpreadsheetSizes
{
    std::map<qint32, qint32> columnWidths;
    std::map<qint32, qint32> rowHeights;

    bool operator==(const SpreadsheetSizes &) const = default;
};

/// A sheet of cells with texts, numbers and formulas.
class Spreadsheet final : public ContentObject
{
public:
    static constexpr ContentKind staticKind = ContentKind::Spreadsheet;

    Spreadsheet(const ContentId &id, const QString &title)
        : ContentObject(id, staticKind)
        , m_title(title)
    {
    }

    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

    const SpreadsheetGrid &grid() const { return m_grid; }
    void setGrid(const SpreadsheetGrid &grid) { m_grid = grid; }
    /// The text of one cell, or nothing for a cell without an entry.
    std::optional<QString> cell(const CellPosition &position) const;
    /// Sets the text of one cell, or takes its entry away when there is none.
    void setCell(const CellPosition &position, const std::optional<QString> &text);

    const CellFormats &formats() const { return m_formats; }
    void setFormats(const CellFormats &formats) { m_formats = formats; }

    const SpreadsheetSizes &sizes() const { return m_sizes; }
    void setSizes(const SpreadsheetSizes &sizes) { m_sizes = sizes; }

    /// The category whose entities are the rows; null for a sheet of its own.
    const ContentId &linkedCategoryId() const { return m_linkedCategoryId; }
    void setLinkedCategoryId(const ContentId &id) { m_linkedCategoryId = id; }

private:
    QString m_title;
    SpreadsheetGrid m_grid;
    CellFormats m_formats;
    SpreadsheetSizes m_sizes;
    ContentId m_linkedCategoryId;
};

} // namespace vl::core

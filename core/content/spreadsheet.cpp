#include "core/content/spreadsheet.h"

namespace vl::core {

std::optional<QString> Spreadsheet::cell(const CellPosition &position) const
{
    const auto found = m_grid.cells.find(position);
    return found == m_grid.cells.end() ? std::nullopt : std::optional(found->second);
}

void Spreadsheet::setCell(const CellPosition &position, const std::optional<QString> &text)
{
    if (text)
        m_grid.cells[position] = *text;
    else
        m_grid.cells.erase(position);
}

} // namespace vl::core

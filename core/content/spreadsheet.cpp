#include "core/content/spreadsheet.h"

namespace vl::core {

QString Spreadsheet::cell(const CellPosition &position) const
{
    const auto found = m_grid.cells.find(position);
    return found == m_grid.cells.end() ? QString() : found->second;
}

void Spreadsheet::setCell(const CellPosition &position, const QString &text)
{
    if (text.isEmpty())
        m_grid.cells.erase(position);
    else
        m_grid.cells[position] = text;
}

} // namespace vl::core

#include "win32/pipe_list.h"

#include "win32/gdi.h"

#include <windows.h>
#include <commctrl.h>

#include <algorithm>

namespace pipebench {

static int AlignmentOf(std::size_t column)
{
    return kResultColumns[column].number ? LVCFMT_RIGHT : LVCFMT_LEFT;
}

void PipeList::Create(HWND parent, int id)
{
    m_window = ::CreateWindowExA(
        0, WC_LISTVIEWA, "",
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS, 0, 0,
        0, 0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
        ::GetModuleHandleA(nullptr), nullptr);
    ::SendMessageA(m_window, WM_SETFONT, reinterpret_cast<WPARAM>(MessageFont()), FALSE);
    const DWORD style = LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES;
    ::SendMessageA(m_window, LVM_SETEXTENDEDLISTVIEWSTYLE, style, style);
    for (std::size_t i = 0; i < kResultColumns.size(); ++i) {
        LVCOLUMNA column{};
        column.mask = LVCF_FMT | LVCF_SUBITEM;
        column.fmt = AlignmentOf(i);
        column.iSubItem = static_cast<int>(i);
        ::SendMessageA(m_window, LVM_INSERTCOLUMNA, i, reinterpret_cast<LPARAM>(&column));
    }
}

void PipeList::ShowHeaders(const ResultRow& headers)
{
    for (std::size_t i = 0; i < headers.size(); ++i) {
        std::string text = headers[i];
        LVCOLUMNA column{};
        column.mask = LVCF_TEXT | LVCF_FMT;
        column.fmt = AlignmentOf(i);
        column.pszText = text.data();
        ::SendMessageA(m_window, LVM_SETCOLUMNA, i, reinterpret_cast<LPARAM>(&column));
    }
}

void PipeList::AddRow(ResultRow cells)
{
    LVITEMA item{};
    item.mask = LVIF_TEXT;
    item.iItem = ::SendMessageA(m_window, LVM_GETITEMCOUNT, 0, 0) & INT_MAX;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (kResultColumns[i].number)
            cells[i] += ' ';  // keeps the last digit off the line between the columns
        item.iSubItem = static_cast<int>(i);
        item.pszText = cells[i].data();
        ::SendMessageA(m_window, i == 0 ? LVM_INSERTITEMA : LVM_SETITEMA, 0,
                       reinterpret_cast<LPARAM>(&item));
    }
}

// As wide as its widest text, the header among them.
void PipeList::FitColumn(std::size_t index)
{
    char text[128] = "";
    LVCOLUMNA header{};
    header.mask = LVCF_TEXT;
    header.pszText = text;
    header.cchTextMax = sizeof text;
    ::SendMessageA(m_window, LVM_GETCOLUMNA, index, reinterpret_cast<LPARAM>(&header));
    int width = TextWidth(m_window, text);
    LVITEMA cell{};
    cell.iSubItem = static_cast<int>(index);
    cell.pszText = text;
    cell.cchTextMax = sizeof text;
    const auto rows = static_cast<WPARAM>(::SendMessageA(m_window, LVM_GETITEMCOUNT, 0, 0));
    for (WPARAM row = 0; row < rows; ++row) {
        ::SendMessageA(m_window, LVM_GETITEMTEXTA, row, reinterpret_cast<LPARAM>(&cell));
        width = std::max(width, TextWidth(m_window, text));
    }
    ::SendMessageA(m_window, LVM_SETCOLUMNWIDTH, index, std::max(width + Scaled(24), Scaled(72)));
}

void PipeList::Show(const CLanguage& language, const std::vector<Pipe>& pipes,
                    const Settings& settings)
{
    const auto selected = Selected();
    ::SendMessageA(m_window, WM_SETREDRAW, FALSE, 0);
    ::SendMessageA(m_window, LVM_DELETEALLITEMS, 0, 0);
    ShowHeaders(ResultHeaders(language, settings.units));
    for (const Pipe& pipe : pipes)
        AddRow(ResultCells(language, pipe, settings));
    for (std::size_t i = 0; i < kResultColumns.size(); ++i)
        FitColumn(i);
    ::SendMessageA(m_window, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(m_window, nullptr, TRUE);
    if (selected && !pipes.empty())
        Select(std::min(*selected, pipes.size() - 1));
}

std::optional<std::size_t> PipeList::Selected() const
{
    const auto row =
        ::SendMessageA(m_window, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    if (row < 0)
        return {};
    return static_cast<std::size_t>(row);
}

void PipeList::Select(std::size_t row)
{
    LVITEMA item{};
    item.stateMask = item.state = LVIS_SELECTED | LVIS_FOCUSED;
    ::SendMessageA(m_window, LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
    ::SendMessageA(m_window, LVM_ENSUREVISIBLE, row, FALSE);
}

}  // namespace pipebench

#include "win32/pipe_list.h"

#include "core/texts.h"
#include "win32/gdi.h"

#include <windows.h>
#include <commctrl.h>

#include <algorithm>

namespace pipebench {

struct Column {
    const char* wording;
    int alignment;
    Quantity quantity = Quantity::Number;
};
static constexpr Column kColumns[] = {
    {"Name", LVCFMT_LEFT},
    {"Material", LVCFMT_LEFT},
    {"Length", LVCFMT_RIGHT, Quantity::Length},
    {"Diameter", LVCFMT_RIGHT, Quantity::Size},
    {"Content", LVCFMT_RIGHT, Quantity::Volume},
    {"Price", LVCFMT_RIGHT},
};

static std::string HeaderText(const CLanguage& language, const Column& column, DT_UNITS units)
{
    return column.quantity == Quantity::Number
               ? Wording(language, column.wording)
               : WithUnit(language, column.wording, column.quantity, units);
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
    for (int i = 0; i < static_cast<int>(std::size(kColumns)); ++i) {
        LVCOLUMNA column{};
        column.mask = LVCF_FMT | LVCF_SUBITEM;
        column.fmt = kColumns[i].alignment;
        column.iSubItem = i;
        ::SendMessageA(m_window, LVM_INSERTCOLUMNA, static_cast<WPARAM>(i),
                       reinterpret_cast<LPARAM>(&column));
    }
}

void PipeList::ShowHeaders(const CLanguage& language, DT_UNITS units)
{
    for (std::size_t i = 0; i < std::size(kColumns); ++i) {
        std::string text = HeaderText(language, kColumns[i], units);
        LVCOLUMNA column{};
        column.mask = LVCF_TEXT | LVCF_FMT;
        column.fmt = kColumns[i].alignment;
        column.pszText = text.data();
        ::SendMessageA(m_window, LVM_SETCOLUMNA, i, reinterpret_cast<LPARAM>(&column));
    }
}

void PipeList::AddRow(const CLanguage& language, const Pipe& pipe, DT_UNITS units, int decimals)
{
    std::string cells[] = {pipe.name,
                           Wording(language, kMaterials[pipe.material]),
                           ValueText(language, Quantity::Length, pipe.length, units, decimals),
                           DiameterText(language, pipe.diameter, units, decimals),
                           ValueText(language, Quantity::Volume, Content(pipe), units, decimals),
                           MoneyText(language, Price(pipe), true)};
    LVITEMA item{};
    item.mask = LVIF_TEXT;
    item.iItem = ::SendMessageA(m_window, LVM_GETITEMCOUNT, 0, 0) & INT_MAX;
    for (std::string& cell : cells) {
        if (kColumns[item.iSubItem].alignment == LVCFMT_RIGHT)
            cell += ' ';  // keeps the last digit off the line between the columns
        item.pszText = cell.data();
        ::SendMessageA(m_window, item.iSubItem == 0 ? LVM_INSERTITEMA : LVM_SETITEMA, 0,
                       reinterpret_cast<LPARAM>(&item));
        ++item.iSubItem;
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
    ::SendMessageA(m_window, LVM_SETCOLUMNWIDTH, index, std::max(width + Scaled(28), Scaled(96)));
}

void PipeList::Show(const CLanguage& language, const std::vector<Pipe>& pipes, DT_UNITS units,
                    int decimals)
{
    const auto selected = Selected();
    ::SendMessageA(m_window, WM_SETREDRAW, FALSE, 0);
    ::SendMessageA(m_window, LVM_DELETEALLITEMS, 0, 0);
    ShowHeaders(language, units);
    for (const Pipe& pipe : pipes)
        AddRow(language, pipe, units, decimals);
    for (std::size_t i = 0; i < std::size(kColumns); ++i)
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

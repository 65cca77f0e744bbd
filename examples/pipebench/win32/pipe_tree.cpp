#include "win32/pipe_tree.h"

#include "core/texts.h"
#include "win32/gdi.h"

#include <algorithm>

namespace pipebench {

void PipeTree::Create(HWND parent, int id)
{
    m_window = ::CreateWindowExA(
        0, WC_TREEVIEWA, "",
        WS_CHILD | WS_TABSTOP | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS,
        0, 0, 0, 0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
        ::GetModuleHandleA(nullptr), nullptr);
    ::SendMessageA(m_window, WM_SETFONT, reinterpret_cast<WPARAM>(MessageFont()), FALSE);
}

HTREEITEM PipeTree::Insert(HTREEITEM parent, const std::string& text, std::size_t number)
{
    std::string label = text;
    TVINSERTSTRUCTA insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM;
    insert.item.pszText = label.data();
    insert.item.lParam = static_cast<LPARAM>(number);
    return reinterpret_cast<HTREEITEM>(
        ::SendMessageA(m_window, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
}

void PipeTree::Show(const CLanguage& language, const std::vector<Pipe>& pipes)
{
    ::SendMessageA(m_window, WM_SETREDRAW, FALSE, 0);
    ::SendMessageA(m_window, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    m_items.assign(pipes.size(), nullptr);
    for (const Branch& branch : ByMaterial(pipes)) {
        const HTREEITEM parent =
            Insert(TVI_ROOT, Wording(language, kMaterials[branch.material]), pipes.size());
        for (const std::size_t pipe : branch.pipes)
            m_items[pipe] = Insert(parent, pipes[pipe].name, pipe);
        ::SendMessageA(m_window, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(parent));
    }
    ::SendMessageA(m_window, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(m_window, nullptr, TRUE);
}

std::optional<std::size_t> PipeTree::Selected() const
{
    TVITEMA item{};
    item.mask = TVIF_PARAM | TVIF_HANDLE;
    item.hItem =
        reinterpret_cast<HTREEITEM>(::SendMessageA(m_window, TVM_GETNEXTITEM, TVGN_CARET, 0));
    if (!item.hItem || !::SendMessageA(m_window, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item)))
        return {};
    const auto pipe = static_cast<std::size_t>(item.lParam);
    if (pipe >= m_items.size())
        return {};
    return pipe;
}

void PipeTree::Select(std::size_t pipe)
{
    ::SendMessageA(m_window, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(m_items[pipe]));
}

}  // namespace pipebench

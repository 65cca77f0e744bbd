// Translation of menus, dialogs and controls; the list of languages.
#include "config/label.h"
#include "config/list_items.h"

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>

#include <windows.h>

#include <algorithm>

namespace {

// The longest texts that are looked at, terminators included.
constexpr int kMenuText = 270;
constexpr int kControlText = 255;
constexpr int kClassName = 256;

// Of a text that does not fit, not every system ends what it copies.
std::string MenuText(HMENU menu, UINT position)
{
    char text[kMenuText];
    const int length = ::GetMenuStringA(menu, position, text, sizeof text, MF_BYPOSITION);
    return std::string(text, static_cast<std::size_t>(std::max(length, 0)));
}

// Changes the text alone: submenu, identifier, check mark, enabling and bitmaps stay. (ModifyMenu
// would replace the item and take its submenu and state away.)
void SetMenuText(HMENU menu, UINT position, const std::string& text)
{
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STRING;
    item.dwTypeData = const_cast<char*>(text.c_str());
    ::SetMenuItemInfoA(menu, position, TRUE, &item);
}

std::string WindowText(HWND window)
{
    char text[kControlText] = "";
    ::GetWindowTextA(window, text, sizeof text);
    return text;
}

BOOL CALLBACK TranslateChild(HWND child, LPARAM language)
{
    char className[kClassName] = "";
    ::GetClassNameA(child, className, sizeof className);
    if (qx::ShowsLabel(className))
        reinterpret_cast<const CLanguage*>(language)->Control(child);
    return TRUE;
}

}  // namespace

void CLanguage::Menu(HMENU menu, DWORD lcid) const
{
    if (!menu || !m_table || (lcid == 0 && IsEnglish(0)))
        return;
    qx::MenuLevel level(*this, lcid);
    const int count = ::GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) {
        const auto position = static_cast<UINT>(i);
        const std::string text = MenuText(menu, position);
        if (::GetMenuItemID(menu, i) == 0 || text.empty())
            continue;
        SetMenuText(menu, position, level.Translate(text));
        Menu(::GetSubMenu(menu, i), lcid);
    }
}

bool CLanguage::Control(HWND control) const
{
    if (!control || !m_table || IsEnglish(0))
        return false;
    const std::string text = WindowText(control);
    if (text.empty())
        return false;
    ::SetWindowTextA(control, qx::TranslateControl(*this, text).c_str());
    return true;
}

void CLanguage::Dialog(HWND dialog) const
{
    if (!dialog || !m_table || IsEnglish(0))
        return;
    ::SetWindowTextA(dialog, qx::TranslateCaption(*this, WindowText(dialog)).c_str());
    ::EnumChildWindows(dialog, TranslateChild, reinterpret_cast<LPARAM>(this));
}

int CLanguage::LanguageList(HWND comboBox) const
{
    if (!m_table)
        return 0;
    for (const qx::ListedLanguage& listed : qx::ListLanguages(*m_table->m_table, m_code)) {
        const LRESULT row = ::SendMessageA(comboBox, CB_ADDSTRING, 0,
                                           reinterpret_cast<LPARAM>(listed.name.c_str()));
        const auto index = static_cast<WPARAM>(row);
        ::SendMessageA(comboBox, CB_SETITEMDATA, index, static_cast<LPARAM>(listed.lcid));
        if (listed.current)
            ::SendMessageA(comboBox, CB_SETCURSEL, index, 0);
    }
    return m_table->m_table->Cells().ColumnCount();
}

#include "ui/win32/browse_entry.h"

#include "win32/gdi.h"

#include <qxutility/core/text.h>

#include <shellapi.h>

namespace qx::win32 {

namespace {

bool IsDescribed(const CBrowseEntry& entry)
{
    return entry.description[0] != '\0';
}

int IconHeight(const CBrowseEntry& entry)
{
    return ::GetSystemMetrics(IsDescribed(entry) ? SM_CYICON : SM_CYSMICON);
}

// Asking the shell takes long, so that only icons that are seen are asked for.
HICON IconOf(CBrowseEntry& entry, const std::string& folder)
{
    if (!entry.icon) {
        SHFILEINFOA info{};
        const UINT size = IsDescribed(entry) ? SHGFI_LARGEICON : SHGFI_SMALLICON;
        ::SHGetFileInfoA(JoinPath(folder, entry.name).c_str(), 0, &info, sizeof info,
                         SHGFI_ICON | size);
        entry.icon = info.hIcon;
    }
    return entry.icon;
}

void DrawPart(HDC dc, std::string_view text, RECT area, UINT format)
{
    ::DrawTextA(dc, text.data(), static_cast<int>(text.size()), &area, format | DT_NOPREFIX);
}

void DrawTexts(HDC dc, const CBrowseEntry& entry, const EntryLayout& layout)
{
    constexpr UINT kLine = DT_SINGLELINE | DT_VCENTER;
    DrawPart(dc, entry.name, layout.name, kLine | DT_PATH_ELLIPSIS);
    DrawPart(dc, entry.date, layout.date, kLine | DT_END_ELLIPSIS);
    const auto [description, detail] = SplitDescription(entry.description);
    DrawPart(dc, description, layout.description, kLine | DT_WORD_ELLIPSIS);
    DrawPart(dc, detail, layout.detail, kLine | DT_END_ELLIPSIS);
}

void Clear(HDC dc, const RECT& area, int color)
{
    ::FillRect(dc, &area, ::GetSysColorBrush(color));
}

}  // namespace

void FillEntries(HWND list, const std::vector<ListedFile>& files)
{
    ::SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    ::SendMessageA(list, LB_RESETCONTENT, 0, 0);
    ::SendMessageA(list, LB_INITSTORAGE, files.size(), 0);
    for (const ListedFile& file : files) {
        auto* const entry = new CBrowseEntry{};
        rstrncpy(entry->name, file.name.c_str(), sizeof entry->name);
        rstrncpy(entry->description, file.description.c_str(), sizeof entry->description);
        rstrncpy(entry->date, file.date.c_str(), sizeof entry->date);
        // Behind the last one: they are in order, so that the box need not look for the place.
        const LRESULT index = ::SendMessageA(list, LB_INSERTSTRING, static_cast<WPARAM>(-1),
                                             reinterpret_cast<LPARAM>(entry));
        if (index < 0)
            delete entry;
    }
    ::SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(list, nullptr, TRUE);
}

const CBrowseEntry* EntryAt(HWND list, int index)
{
    if (index < 0)
        return nullptr;
    const LRESULT data = ::SendMessageA(list, LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
    return data == LB_ERR ? nullptr : reinterpret_cast<const CBrowseEntry*>(data);
}

void DeleteEntry(ULONG_PTR itemData)
{
    auto* const entry = reinterpret_cast<CBrowseEntry*>(itemData);
    if (entry && entry->icon)
        ::DestroyIcon(entry->icon);
    delete entry;
}

int EntryHeight(const CBrowseEntry& entry)
{
    constexpr int kMargins = 4;
    return IconHeight(entry) + kMargins;
}

void DrawEntry(const DRAWITEMSTRUCT& item, const std::string& folder)
{
    auto* const entry = reinterpret_cast<CBrowseEntry*>(item.itemData);
    if (!entry)
        return;
    constexpr double kUsualDpi = 96;
    const bool selected = item.itemState & ODS_SELECTED;
    const int size = IconHeight(*entry);
    const EntryLayout layout =
        LayOutEntry(item.rcItem, ::GetSystemMetrics(SM_CXICON), size, IsDescribed(*entry),
                    ::GetDeviceCaps(item.hDC, LOGPIXELSX) / kUsualDpi);
    Clear(item.hDC, item.rcItem, COLOR_WINDOW);
    Clear(item.hDC, layout.text, selected ? COLOR_HIGHLIGHT : COLOR_WINDOW);
    ::DrawIconEx(item.hDC, layout.icon.x, layout.icon.y, IconOf(*entry, folder), size, size, 0,
                 nullptr, DI_NORMAL);
    ::SetTextColor(item.hDC, ::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    ::SetBkMode(item.hDC, TRANSPARENT);
    DrawTexts(item.hDC, *entry, layout);
    if (item.itemState & ODS_FOCUS)
        ::DrawFocusRect(item.hDC, &layout.text);
}

}  // namespace qx::win32

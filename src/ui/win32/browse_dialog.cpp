#include "ui/win32/browse_dialog.h"

#include "config/process.h"
#include "core/folded_name.h"
#include "platform/files.h"
#include "ui/placement.h"
#include "ui/win32/browse_entry.h"
#include "win32/grow.h"
#include "win32/window_text.h"

#include <qxutility/ui/dialog_fields.h>

#include <cstring>

namespace qx::win32 {

namespace {

enum Resource {
    kDialog = 107,
    kDescription = 1000,
    kName = 1001,
    kAnchor = 1003,
    kPicture = 1008,
    kHelp = 1129,
    kFolder = 2505,
    kFolderButton = 2515,
};

// The file whose date is being asked for: to open each of a folder's files takes several times as
// long as to list them, and the folder has told this already.
struct DatedFile {
    const char* path;
    FILETIME written;
};
const DatedFile* beingDated = nullptr;

bool AskForDate(CBrowseBox& box, const char* path, std::uint64_t written, char* date)
{
    const DatedFile file{path, {static_cast<DWORD>(written), static_cast<DWORD>(written >> 32)}};
    beingDated = &file;
    const bool dated = box.GetDate(path, date);
    beingDated = nullptr;
    return dated;
}

// The files of a folder that match a pattern, as the system matches it.
std::vector<FoundFile> FindFiles(const std::string& folder, const char* pattern)
{
    std::vector<FoundFile> files;
    WIN32_FIND_DATAA data;
    const FindHandle search(::FindFirstFileA(JoinPath(folder, pattern).c_str(), &data));
    for (bool more = bool{search}; more; more = ::FindNextFileA(search.get(), &data)) {
        const FILETIME& written = data.ftLastWriteTime;
        if (!(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            files.push_back({data.cFileName,
                             std::uint64_t{written.dwHighDateTime} << 32 | written.dwLowDateTime});
    }
    return files;
}

std::string Search(const char* folder, const std::string& name, const char* extension)
{
    return GrowingText([&](char* buffer, DWORD size) {
        return ::SearchPathA(folder, name.c_str(), extension, size, buffer, nullptr);
    });
}

// The file that a typed name stands for in a folder, or the folder; empty for neither.
std::string FindTyped(const char* folder, const std::string& name, const std::string& extension)
{
    if (name.empty())
        return {};
    const std::string found = Search(folder, name, extension.empty() ? nullptr : extension.c_str());
    if (!found.empty())
        return found;
    const std::string bare = Search(folder, name, nullptr);
    return platform::DirectoryExists(bare.c_str()) ? bare : "";
}

// Negative, zero or positive as entry `a` stands before, with or behind entry `b`.
int CompareEntries(ULONG_PTR a, ULONG_PTR b)
{
    const char* const nameOfA = reinterpret_cast<const CBrowseEntry*>(a)->name;
    const char* const nameOfB = reinterpret_cast<const CBrowseEntry*>(b)->name;
    return NameBefore(nameOfB, nameOfA) - NameBefore(nameOfA, nameOfB);
}

RECT PlaceOf(HWND child)
{
    RECT area{};
    ::GetWindowRect(child, &area);
    ::MapWindowPoints(nullptr, ::GetParent(child), reinterpret_cast<POINT*>(&area), 2);
    return area;
}

}  // namespace

int BrowseDialog::Run(HWND parent)
{
    return ShowDialogBox(Process().module, parent, Procedure, kDialog,
                         reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK BrowseDialog::Procedure(HWND dialog, UINT message, WPARAM wParam,
                                         LPARAM lParam) noexcept
{
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrA(dialog, DWLP_USER, lParam);
        reinterpret_cast<BrowseDialog*>(lParam)->m_dialog = dialog;
    }
    auto* const self = reinterpret_cast<BrowseDialog*>(::GetWindowLongPtrA(dialog, DWLP_USER));
    return self ? self->Handle(message, wParam, lParam) : FALSE;
}

INT_PTR BrowseDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_INITDIALOG:
            return Start(), FALSE;  // the focus is set
        case WM_COMMAND:
            OnCommand(LOWORD(wParam), HIWORD(wParam));
            return PassOn(message, wParam, lParam), TRUE;
        case WM_MOUSEWHEEL:
            return PassOn(message, wParam, lParam), TRUE;
        case WM_CHARTOITEM:
            return OnKey(static_cast<char>(LOWORD(wParam))) ? -2 : -1;
        case WM_COMPAREITEM: {
            const auto& items = *reinterpret_cast<const COMPAREITEMSTRUCT*>(lParam);
            return CompareEntries(items.itemData1, items.itemData2);
        }
        case WM_MEASUREITEM:
            return Measure(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)), TRUE;
        case WM_DRAWITEM:
            return Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)), TRUE;
        case WM_DELETEITEM:
            return DeleteEntry(reinterpret_cast<const DELETEITEMSTRUCT*>(lParam)->itemData), TRUE;
        case WM_DESTROY:
            return End(), TRUE;
        default:
            return FALSE;
    }
}

void BrowseDialog::Start()
{
    CenterWindow(m_dialog, ::GetParent(m_dialog));
    ShowTexts();
    m_box.ChangeDirectory(m_dialog, nullptr);
    ShowPicture();
    if (m_box.HelpVisible())
        ::ShowWindow(Item(kHelp), SW_SHOW);
    ::SendMessageA(Item(kName), EM_LIMITTEXT, MAX_PATH - 1, 0);
    ::SetFocus(Item(kName));
    PlaceButtons();
    Translate();
}

void BrowseDialog::ShowTexts()
{
    ::SetWindowTextA(m_dialog, m_box.m_caption);
    ::SetDlgItemTextA(m_dialog, kDescription, m_box.m_description);
    ::SetDlgItemTextA(m_dialog, IDOK, m_box.m_okay);
    ::SetDlgItemTextA(m_dialog, IDCANCEL, m_box.m_cancel);
}

void BrowseDialog::ShowPicture()
{
    const int size = ::GetSystemMetrics(SM_CXSMICON);
    m_picture = BitmapHandle(
        static_cast<HBITMAP>(::LoadImageA(Process().module, MAKEINTRESOURCEA(kPicture),
                                          IMAGE_BITMAP, size, size, LR_LOADMAP3DCOLORS)));
    ::SendMessageA(Item(kFolderButton), BM_SETIMAGE, IMAGE_BITMAP,
                   reinterpret_cast<LPARAM>(m_picture.get()));
}

void BrowseDialog::PlaceButtons()
{
    std::vector<HWND> buttons = {Item(IDCANCEL), Item(IDOK)};
    if (m_box.HelpVisible())
        buttons.insert(buttons.begin(), Item(kHelp));
    std::vector<int> widths;
    for (const HWND button : buttons) {
        const RECT place = PlaceOf(button);
        widths.push_back(place.right - place.left);
    }
    RECT area{};
    ::GetClientRect(m_dialog, &area);
    const RECT anchor = PlaceOf(Item(kAnchor));
    const auto lefts = FromTheRight(anchor.right, (area.right - anchor.right) / 2, widths);
    for (std::size_t i = 0; i < buttons.size(); ++i)
        ::MoveWindow(buttons[i], lefts[i], anchor.top, widths[i], anchor.bottom - anchor.top, TRUE);
}

// A folder's path is no wording, and its '&' are its own.
void BrowseDialog::Translate()
{
    Process().language.Dialog(m_dialog);
    ::SetDlgItemTextA(m_dialog, kFolder, m_box.m_folder);
}

void BrowseDialog::End()
{
    ::SendMessageA(Item(kList), LB_RESETCONTENT, 0, 0);
    m_picture = BitmapHandle();
}

void BrowseDialog::Refresh(HWND dialog, CBrowseBox& box)
{
    const HWND list = ::GetDlgItem(dialog, kList);
    ::SetDlgItemTextA(dialog, kFolder, box.m_folder);
    ::SetDlgItemTextA(dialog, kName, "");
    const FileQuestions ask{
        [&](const char* path, char* description) { return box.ApproveFile(path, description); },
        [&](const char* path, std::uint64_t written, char* date) {
            return AskForDate(box, path, written, date);
        }};
    FillEntries(list, ListFiles(box.m_folder, FindFiles(box.m_folder, box.m_pattern), ask));
}

const FILETIME* BrowseDialog::WriteTimeOf(const char* path)
{
    return beingDated && std::strcmp(beingDated->path, path) == 0 ? &beingDated->written : nullptr;
}

void BrowseDialog::OnCommand(int id, int code)
{
    if (id == IDOK)
        OnOkay();
    else if (id == IDCANCEL)
        ::EndDialog(m_dialog, IDCANCEL);
    else if (id == kHelp)
        m_box.Help();
    else if (id == kFolderButton)
        m_box.ChangePath(m_dialog);
    else if (id == kName && code == EN_UPDATE)
        OnTyping();
    else if (id == kList && code == LBN_SELCHANGE)
        OnSelection();
    else if (id == kList && code == LBN_DBLCLK)
        ::PostMessageA(m_dialog, WM_COMMAND, IDOK, 0);
}

void BrowseDialog::OnSelection()
{
    const HWND list = Item(kList);
    const auto index = static_cast<int>(::SendMessageA(list, LB_GETCURSEL, 0, 0));
    const CBrowseEntry* const entry = EntryAt(list, index);
    if (!entry)
        return;
    m_box.Select(*entry);
    ::SetDlgItemTextA(m_dialog, kName, entry->name);
    ::EnableWindow(Item(IDOK), TRUE);
}

void BrowseDialog::OnTyping()
{
    const HWND name = Item(kName);
    const std::string text = WindowText(name);
    if (::GetFocus() == name) {
        ::SendMessageA(Item(kList), LB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        ::EnableWindow(Item(IDOK), !text.empty());
    }
    m_box.Select(text.c_str());
}

void BrowseDialog::OnOkay()
{
    const std::string found =
        FindTyped(m_box.m_folder, WindowText(Item(kName)), ExtensionOf(m_box.m_pattern));
    const Choice choice = DecideChoice(found, platform::DirectoryExists(found.c_str()));
    if (choice.kind == Choice::Folder)
        m_box.ChangeDirectories(m_dialog, choice.folder.c_str());
    else if (Accept(choice))
        ::EndDialog(m_dialog, IDOK);
}

bool BrowseDialog::Accept(const Choice& choice)
{
    if (choice.kind == Choice::NotFound)
        return m_box.VerifyOkay(m_dialog, m_box.m_selection);
    if (!SameName(choice.folder, m_box.m_folder))
        m_box.ChangeDirectory(m_dialog, choice.folder.c_str());
    m_box.Select(choice.name.c_str());
    return m_box.VerifyOkay(m_dialog, JoinPath(m_box.m_folder, m_box.m_selection).c_str());
}

bool BrowseDialog::OnKey(char key)
{
    const HWND list = Item(kList);
    const auto count = static_cast<int>(::SendMessageA(list, LB_GETCOUNT, 0, 0));
    const auto current = static_cast<int>(::SendMessageA(list, LB_GETCURSEL, 0, 0));
    const auto nameAt = [&](int i) {
        const CBrowseEntry* const entry = EntryAt(list, i);
        return entry ? entry->name : "";
    };
    const int found = FindByKey(count, current, key, nameAt);
    if (found >= 0) {
        ::SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(found), 0);
        OnSelection();
    }
    return true;
}

// The list may hand a message that it does not want back to the dialog, as to any parent.
void BrowseDialog::PassOn(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_passingOn)
        return;
    m_passingOn = true;
    ::SendMessageA(Item(kList), message, wParam, lParam);
    m_passingOn = false;
}

void BrowseDialog::Measure(MEASUREITEMSTRUCT& item) const
{
    if (const auto* entry = reinterpret_cast<const CBrowseEntry*>(item.itemData))
        item.itemHeight = static_cast<UINT>(EntryHeight(*entry));
}

void BrowseDialog::Draw(const DRAWITEMSTRUCT& item) const
{
    if (item.CtlID == kList)
        DrawEntry(item, m_box.m_folder);
}

}  // namespace qx::win32

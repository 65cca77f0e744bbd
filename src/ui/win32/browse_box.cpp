// CBrowseBox: its texts, its folder, its choice.
#include "config/process.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "ui/win32/browse_dialog.h"
#include "win32/handle.h"
#include "win32/window_text.h"

#include <qxutility/config/startup.h>
#include <qxutility/core/text.h>
#include <qxutility/ui/browse_box.h>

#include <cstring>

namespace {

enum String {
    kCaptionText = 6,
    kDescriptionText = 8,
    kOkayText = 9,
    kCancelText = 10,
    kNotFound = 1011,
    kNoSuchFolder = 1110,
};
constexpr std::size_t kLongestText = 59;

template <std::size_t kSize>
void Copy(char (&to)[kSize], const std::string& text)
{
    rstrncpy(to, text.c_str(), kSize);
}

std::string LibraryText(String id)
{
    return qx::Process().language.String(nullptr, id).substr(0, kLongestText);
}

bool IsFile(const std::string& path)
{
    return qx::platform::FileExists(path.c_str()) && !qx::platform::DirectoryExists(path.c_str());
}

bool GetWriteTime(const char* path, FILETIME& time)
{
    if (const FILETIME* known = qx::win32::BrowseDialog::WriteTimeOf(path)) {
        time = *known;
        return true;
    }
    const qx::win32::FileHandle file(::CreateFileA(path, FILE_READ_ATTRIBUTES, FILE_SHARE_READ,
                                                   nullptr, OPEN_EXISTING, 0, nullptr));
    return file && ::GetFileTime(file.get(), nullptr, nullptr, &time);
}

void Tell(HWND dialog, String id, const std::string& about)
{
    ErrorMessage(nullptr, qx::win32::WindowText(dialog), dialog, id, MB_ICONHAND, about.c_str());
}

}  // namespace

CBrowseBox::CBrowseBox(const char* folder, const char* pattern) : m_help(false), m_selection()
{
    Copy(m_folder, qx::WithoutFinalSeparator(std::string(folder).substr(0, MAX_PATH - 1)));
    Copy(m_pattern, pattern);
    Copy(m_caption, LibraryText(kCaptionText));
    Copy(m_description, LibraryText(kDescriptionText));
    Copy(m_okay, LibraryText(kOkayText));
    Copy(m_cancel, LibraryText(kCancelText));
}

CBrowseBox::CBrowseBox(const CBrowseBox&) = default;
CBrowseBox& CBrowseBox::operator=(const CBrowseBox&) = default;
CBrowseBox::~CBrowseBox() = default;

bool CBrowseBox::ApproveFile(const char*, char* description)
{
    *description = '\0';
    return true;
}

void CBrowseBox::Help() {}

bool CBrowseBox::VerifyOkay(HWND dialog, const char* path)
{
    char description[MAX_PATH] = "";
    const bool isBare = qx::platform::FolderPart(path).empty();
    const std::string full = isBare ? qx::JoinPath(m_folder, path) : path;
    if (IsFile(full) && ApproveFile(full.c_str(), description))
        return true;
    Tell(dialog, kNotFound, qx::WithoutFinalSeparator(qx::platform::FolderPart(full)));
    return false;
}

bool CBrowseBox::GetDate(const char* path, char* text)
{
    FILETIME written;
    SYSTEMTIME time;
    if (!GetWriteTime(path, written) || !::FileTimeToSystemTime(&written, &time))
        return false;
    rstrncpy(text, qx::FileDate(time.wMonth, time.wDay, time.wYear).c_str(),
             sizeof CBrowseEntry::date);
    return true;
}

void CBrowseBox::ChangePath(HWND dialog)
{
    char folder[MAX_PATH];
    Copy(folder, m_folder);
    if (BrowseFolder(dialog, folder) && *folder)
        ChangeDirectories(dialog, folder);
    ::SetFocus(::GetDlgItem(dialog, qx::win32::BrowseDialog::kList));
}

void CBrowseBox::SetCaption(const char* text)
{
    Copy(m_caption, text);
}

void CBrowseBox::SetDescription(const char* text)
{
    Copy(m_description, text);
}

void CBrowseBox::SetOkay(const char* text)
{
    Copy(m_okay, text);
}

void CBrowseBox::SetCancel(const char* text)
{
    Copy(m_cancel, text);
}

void CBrowseBox::AddHelpButton()
{
    m_help = true;
}

bool CBrowseBox::HelpVisible() const
{
    return m_help;
}

int CBrowseBox::Display(HWND parent)
{
    return qx::win32::BrowseDialog(*this).Run(parent);
}

void CBrowseBox::GetFile(char* text) const
{
    std::strcpy(text, m_selection + qx::platform::FolderPart(m_selection).size());
}

void CBrowseBox::GetPath(char* text) const
{
    const std::string_view folder = qx::platform::FolderPart(m_selection);
    const std::string path = folder.empty() ? qx::JoinPath(m_folder, "") : std::string(folder);
    rstrncpy(text, path.c_str(), MAX_PATH);
}

bool CBrowseBox::ChangeDirectory(HWND dialog, const char* folder)
{
    if (folder) {
        const std::string path = qx::WithoutFinalSeparator(folder);
        if (path.empty() || path.size() >= sizeof m_folder ||
            !qx::platform::DirectoryExists(qx::JoinPath(path, "").c_str())) {
            Tell(dialog, kNoSuchFolder, folder);
            return false;
        }
        Copy(m_folder, path);
    }
    qx::win32::BrowseDialog::Refresh(dialog, *this);
    return false;
}

void CBrowseBox::ChangeDirectories(HWND dialog, const char* folder)
{
    if (ChangeDirectory(dialog, folder))
        ::EndDialog(dialog, IDOK);
}

void CBrowseBox::Select(const char* name)
{
    Copy(m_selection, qx::SelectedName(name, m_pattern));
}

void CBrowseBox::Select(const CBrowseEntry& entry)
{
    Select(entry.name);
}

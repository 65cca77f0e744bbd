#include "win32/file_boxes.h"

#include "core/line_file.h"
#include "core/texts.h"
#include "ids.h"
#include "win32/files.h"
#include "win32/help.h"

#include <qxutility/config/startup.h>
#include <qxutility/ui/browse_box.h>

#include <windows.h>
#include <commdlg.h>

#include <array>
#include <cstring>

namespace pipebench {

namespace {

// What a file holds, in the user's form; nothing for one that cannot be opened.
using Describe = std::optional<std::string> (*)(const Localisation&, const Settings&,
                                                const std::string& path);

class FileBox : public CBrowseBox {
  public:
    FileBox(const std::string& folder, const char* pattern, const Localisation& localisation,
            HTML_HELP& help, const Settings& settings, Describe describe)
        : CBrowseBox(folder.c_str(), pattern),
          m_localisation(localisation),
          m_help(help),
          m_settings(settings),
          m_describe(describe)
    {
        AddHelpButton();
    }

    bool ApproveFile(const char* path, char* description) override;
    bool GetDate(const char* path, char* text) override;
    void Help() override { m_help.Open(kDialogHelp, IDH_FILES); }
    std::optional<std::string> Run(HWND owner, const char* caption, const char* aboveFolder);

  private:
    const Localisation& m_localisation;
    HTML_HELP& m_help;
    const Settings& m_settings;
    Describe m_describe;
};

bool FileBox::ApproveFile(const char* path, char* description)
{
    const auto text = m_describe(m_localisation, m_settings, path);
    std::strncpy(description, text.value_or("").c_str(), MAX_PATH - 1);
    description[MAX_PATH - 1] = '\0';
    return text.has_value();
}

// The day in the user's form and time zone.
bool FileBox::GetDate(const char* path, char* text)
{
    WIN32_FILE_ATTRIBUTE_DATA file{};
    FILETIME local{};
    SYSTEMTIME day{};
    const DWORD language = m_localisation.Language().GetLanguage();
    return ::GetFileAttributesExA(path, GetFileExInfoStandard, &file) &&
           ::FileTimeToLocalFileTime(&file.ftLastWriteTime, &local) &&
           ::FileTimeToSystemTime(&local, &day) &&
           ::GetDateFormatA(language, DATE_SHORTDATE, &day, nullptr, text, 20) != 0;
}

std::optional<std::string> FileBox::Run(HWND owner, const char* caption, const char* aboveFolder)
{
    SetCaption(Wording(m_localisation.Language(), caption).c_str());
    SetDescription(Wording(m_localisation.Language(), aboveFolder).c_str());
    if (Display(owner) != IDOK)
        return {};
    std::array<char, MAX_PATH> folder{}, file{};
    GetPath(folder.data());
    GetFile(file.data());
    return std::string(folder.data()) + file.data();
}

}  // namespace

std::optional<std::string> ChooseLine(HWND owner, const Localisation& localisation, HTML_HELP& help,
                                      const Settings& settings)
{
    FileBox box(WorkDirectoryOf(DIR_PROJECTS), kLineFiles, localisation, help, settings,
                LineDescription);
    return box.Run(owner, "Open a line", "Lines in this folder");
}

std::optional<std::string> ChooseCurve(HWND owner, const Localisation& localisation,
                                       HTML_HELP& help, const Settings& settings)
{
    FileBox box(WorkDirectoryOf(DIR_CURVES), kCurveFiles, localisation, help, settings,
                CurveDescription);
    return box.Run(owner, "Choose a pump curve", "Pump curves in this folder");
}

std::optional<std::string> ChooseToSave(HWND owner, const Localisation& localisation,
                                        const FileKind& kind, const std::string& path)
{
    std::array<char, 255> filter{};
    std::array<char, MAX_PATH> file{};
    path.copy(file.data(), file.size() - 1);
    const std::string folder = WorkDirectoryOf(DIR_PROJECTS);
    OPENFILENAMEA dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = LoadFileFilter(localisation.Module(), filter.data(), kind.filter);
    dialog.lpstrFile = file.data();
    dialog.nMaxFile = file.size();
    dialog.lpstrInitialDir = folder.c_str();
    dialog.lpstrDefExt = kind.extension;
    dialog.Flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST;
    if (!::GetSaveFileNameA(&dialog))
        return {};
    return file.data();
}

}  // namespace pipebench

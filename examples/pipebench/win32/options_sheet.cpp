// The options: a property sheet of two pages.
#include "core/texts.h"
#include "ids.h"
#include "win32/dialog_items.h"
#include "win32/dialogs.h"
#include "win32/files.h"
#include "win32/help.h"
#include "win32/options_page.h"

#include <qxutility/ui/browse_box.h>
#include <qxutility/ui/dialog_fields.h>

namespace pipebench {

namespace {

// Language, units and the form of numbers.
class GeneralPage : public OptionsPage {
  public:
    GeneralPage(const Localisation& localisation, ProgramOptions& options)
        : OptionsPage(localisation, IDD_GENERAL, "General"), m_options(options)
    {
    }

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;
    bool Take() override;
    DWORD ChosenLanguage() const;
    void ShowPreview() const;

    ProgramOptions& m_options;
};

void GeneralPage::OnInit()
{
    Language().LanguageList(::GetDlgItem(Window(), IDC_LANGUAGE));
    FillUnits(Window(), Local(), m_options.settings.units);
    SetDlgItemLimit(Window(), IDC_DECIMALS, 8);
    SetItemText(Window(), IDC_DECIMALS, std::to_string(m_options.settings.decimals));
    ShowPreview();
}

void GeneralPage::OnCommand(int id, int notification)
{
    if ((id == IDC_LANGUAGE && notification == CBN_SELCHANGE) ||
        (id == IDC_DECIMALS && notification == EN_CHANGE))
        ShowPreview();
}

bool GeneralPage::Take()
{
    const auto decimals = CheckDecimals(TextOfItem(Window(), IDC_DECIMALS));
    if (const auto* fault = std::get_if<Fault>(&decimals))
        return Refuse(*fault, IDC_DECIMALS);
    m_options.settings.decimals = std::get<int>(decimals);
    m_options.settings.units = ChosenUnits(Window());
    m_options.lcid = ChosenLanguage();
    return true;
}

DWORD GeneralPage::ChosenLanguage() const
{
    const HWND combo = ::GetDlgItem(Window(), IDC_LANGUAGE);
    const LRESULT row = ::SendMessageA(combo, CB_GETCURSEL, 0, 0);
    return static_cast<DWORD>(::SendMessageA(combo, CB_GETITEMDATA, static_cast<WPARAM>(row), 0));
}

// How numbers, money and dates look in the language that is chosen in the box.
void GeneralPage::ShowPreview() const
{
    CLanguage language = Language();
    language.SetLanguage(ChosenLanguage());
    const auto typed = CheckDecimals(TextOfItem(Window(), IDC_DECIMALS));
    const auto* decimals = std::get_if<int>(&typed);
    SetItemText(Window(), IDC_PREVIEW_NUMBER,
                decimals ? NumberText(language, 1234.5, *decimals) : "");
    SetItemText(Window(), IDC_PREVIEW_MONEY, MoneyText(language, 1234.5, true));
    SetItemText(Window(), IDC_PREVIEW_DATE, DateText(language, DATE_LONGDATE));
}

// The work directories, in the order of kWorkDirectories.
class FoldersPage : public OptionsPage {
  public:
    FoldersPage(const Localisation& localisation, DirectoryPaths& paths)
        : OptionsPage(localisation, IDD_FOLDERS, "Directories"), m_paths(paths)
    {
    }

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;
    bool Take() override;

    DirectoryPaths& m_paths;
};

void FoldersPage::OnInit()
{
    for (std::size_t i = 0; i < m_paths.size(); ++i) {
        const int id = IDC_DIRECTORIES + static_cast<int>(i);
        SetDlgItemLimit(Window(), id, kLongestDirectory);
        SetItemText(Window(), id, m_paths[i]);
    }
}

// The button beside a field lets the user choose a folder.
void FoldersPage::OnCommand(int id, int notification)
{
    const int field = id - IDC_DIRECTORY_BUTTONS + IDC_DIRECTORIES;
    if (notification != BN_CLICKED || id < IDC_DIRECTORY_BUTTONS ||
        id >= IDC_DIRECTORY_BUTTONS + static_cast<int>(m_paths.size()))
        return;
    char path[MAX_PATH] = "";
    ::GetDlgItemTextA(Window(), field, path, sizeof path);
    if (BrowseFolder(Window(), path))
        SetItemText(Window(), field, path);
}

bool FoldersPage::Take()
{
    for (std::size_t i = 0; i < m_paths.size(); ++i) {
        const int id = IDC_DIRECTORIES + static_cast<int>(i);
        const std::string path = TextOfItem(Window(), id);
        if (!MakeDirectory(path))
            return Refuse({IDS_BAD_DIRECTORY, path}, id);
        m_paths[i] = path;
    }
    return true;
}

int CALLBACK OnSheet(HWND sheet, UINT message, LPARAM param)
{
    const int result = PropSheetProc(sheet, message, param);
    if (message == PSCB_INITIALIZED)
        CenterWindow(sheet, ::GetParent(sheet));
    return result;
}

}  // namespace

bool EditOptions(HWND owner, const Localisation& localisation, HTML_HELP& help,
                 ProgramOptions& options)
{
    ProgramOptions edited = options;
    GeneralPage general(localisation, edited);
    FoldersPage folders(localisation, edited.directories);
    const std::string caption = Wording(localisation.Language(), "Program options");
    HPROPSHEETPAGE pages[] = {general.Handle([&help] { help.Open(kDialogHelp, IDH_OPTIONS); }),
                              folders.Handle([&help] { help.Open(kDialogHelp, IDH_FOLDERS); })};
    PROPSHEETHEADERA sheet{};
    sheet.dwSize = sizeof sheet;
    sheet.dwFlags = PSH_NOAPPLYNOW | PSH_USECALLBACK;
    sheet.hwndParent = owner;
    sheet.pszCaption = caption.c_str();
    sheet.nPages = std::size(pages);
    sheet.phpage = pages;
    sheet.pfnCallback = OnSheet;
    ::PropertySheetA(&sheet);
    if (!general.Accepted())  // the first page is always shown
        return false;
    options = edited;
    return true;
}

}  // namespace pipebench

#include "core/texts.h"
#include "ids.h"
#include "win32/dialog_items.h"
#include "win32/dialogs.h"
#include "win32/files.h"
#include "win32/modal_dialog.h"

namespace pipebench {

namespace {

class OptionsDialog : public ModalDialog {
  public:
    OptionsDialog(const Localisation& localisation, ProgramOptions& options)
        : ModalDialog(localisation), m_options(options)
    {
    }

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;
    void OnOk();

    bool TakeDecimals();
    bool TakeDirectories();
    DWORD ChosenLanguage() const;
    void ShowPreview() const;
    bool Refuse(const Fault& fault, int id) const;

    ProgramOptions& m_options;
};

void OptionsDialog::OnInit()
{
    Language().LanguageList(::GetDlgItem(Window(), IDC_LANGUAGE));
    FillUnits(Window(), Local(), m_options.settings.units);
    SetItemText(Window(), IDC_DECIMALS, std::to_string(m_options.settings.decimals));
    for (std::size_t i = 0; i < m_options.directories.size(); ++i) {
        const int id = IDC_DIRECTORIES + static_cast<int>(i);
        ::SendDlgItemMessageA(Window(), id, EM_LIMITTEXT, kLongestDirectory, 0);
        SetItemText(Window(), id, m_options.directories[i]);
    }
    ShowPreview();
}

void OptionsDialog::OnCommand(int id, int notification)
{
    if (id == IDOK)
        OnOk();
    if ((id == IDC_LANGUAGE && notification == CBN_SELCHANGE) ||
        (id == IDC_DECIMALS && notification == EN_CHANGE))
        ShowPreview();
}

void OptionsDialog::OnOk()
{
    if (!TakeDecimals() || !TakeDirectories())
        return;
    m_options.lcid = ChosenLanguage();
    m_options.settings.units = ChosenUnits(Window());
    Close(IDOK);
}

bool OptionsDialog::TakeDecimals()
{
    const auto decimals = CheckDecimals(TextOfItem(Window(), IDC_DECIMALS));
    if (const auto* fault = std::get_if<Fault>(&decimals))
        return Refuse(*fault, IDC_DECIMALS);
    m_options.settings.decimals = std::get<int>(decimals);
    return true;
}

bool OptionsDialog::TakeDirectories()
{
    for (std::size_t i = 0; i < m_options.directories.size(); ++i) {
        const int id = IDC_DIRECTORIES + static_cast<int>(i);
        const std::string path = TextOfItem(Window(), id);
        if (!MakeDirectory(path))
            return Refuse({IDS_BAD_DIRECTORY, path}, id);
        m_options.directories[i] = path;
    }
    return true;
}

bool OptionsDialog::Refuse(const Fault& fault, int id) const
{
    ShowFault(Window(), Local(), fault);
    FocusItem(Window(), id);
    return false;
}

DWORD OptionsDialog::ChosenLanguage() const
{
    const HWND combo = ::GetDlgItem(Window(), IDC_LANGUAGE);
    const LRESULT row = ::SendMessageA(combo, CB_GETCURSEL, 0, 0);
    return static_cast<DWORD>(::SendMessageA(combo, CB_GETITEMDATA, static_cast<WPARAM>(row), 0));
}

// How numbers, money and dates look in the language that is chosen in the box.
void OptionsDialog::ShowPreview() const
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

}  // namespace

bool EditOptions(HWND owner, const Localisation& localisation, ProgramOptions& options)
{
    ProgramOptions edited = options;
    if (!OptionsDialog(localisation, edited).Run(owner, IDD_OPTIONS))
        return false;
    options = edited;
    return true;
}

}  // namespace pipebench

#include "core/texts.h"
#include "ids.h"
#include "win32/dialog_items.h"
#include "win32/dialogs.h"

namespace pipebench {

namespace {

class PipeDialog {
  public:
    PipeDialog(const Localisation& localisation, const Pipe& pipe, const std::vector<Pipe>& others)
        : m_localisation(localisation), m_pipe(pipe), m_others(others)
    {
    }
    std::optional<Pipe> Run(HWND owner);

  private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    void OnInit();
    void OnOk();
    void FillMaterials() const;
    PipeEntry Entry() const;
    void Refuse(const BadEntry& bad) const;

    const Localisation& m_localisation;
    Pipe m_pipe;
    const std::vector<Pipe>& m_others;
    HWND m_dialog = nullptr;
};

int ControlOf(Field field)
{
    switch (field) {
        case Field::Name:
            return IDC_NAME;
        case Field::Length:
            return IDC_LENGTH;
        case Field::Diameter:
            return IDC_DIAMETER;
        case Field::Price:
            return IDC_PRICE;
    }
    return IDC_NAME;
}

std::optional<Pipe> PipeDialog::Run(HWND owner)
{
    const INT_PTR result = ::DialogBoxParamA(m_localisation.Module(), MAKEINTRESOURCEA(IDD_PIPE),
                                             owner, Procedure, reinterpret_cast<LPARAM>(this));
    if (result != IDOK)
        return {};
    return m_pipe;
}

INT_PTR CALLBACK PipeDialog::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrA(dialog, GWLP_USERDATA, lParam);
        reinterpret_cast<PipeDialog*>(lParam)->m_dialog = dialog;
        return reinterpret_cast<PipeDialog*>(lParam)->OnInit(), TRUE;
    }
    auto* self = reinterpret_cast<PipeDialog*>(::GetWindowLongPtrA(dialog, GWLP_USERDATA));
    if (message != WM_COMMAND || !self)
        return FALSE;
    switch (LOWORD(wParam)) {
        case IDOK:
            return self->OnOk(), TRUE;
        case IDCANCEL:
            return ::EndDialog(dialog, IDCANCEL);
        default:
            return FALSE;
    }
}

void PipeDialog::OnInit()
{
    const CLanguage& language = m_localisation.Language();
    language.Dialog(m_dialog);
    FillMaterials();
    const PipeEntry entry = ToEntry(language, m_pipe);
    SetItemText(m_dialog, IDC_NAME, entry.name);
    SetItemText(m_dialog, IDC_LENGTH, entry.length);
    SetItemText(m_dialog, IDC_DIAMETER, entry.diameter);
    SetItemText(m_dialog, IDC_PRICE, entry.price);
    ::SendDlgItemMessageA(m_dialog, IDC_MATERIAL, CB_SETCURSEL, entry.material, 0);
}

void PipeDialog::FillMaterials() const
{
    for (const char* material : kMaterials) {
        const std::string text = Wording(m_localisation.Language(), material);
        ::SendDlgItemMessageA(m_dialog, IDC_MATERIAL, CB_ADDSTRING, 0,
                              reinterpret_cast<LPARAM>(text.c_str()));
    }
}

PipeEntry PipeDialog::Entry() const
{
    const LRESULT material = ::SendDlgItemMessageA(m_dialog, IDC_MATERIAL, CB_GETCURSEL, 0, 0);
    return {.name = TextOfItem(m_dialog, IDC_NAME),
            .length = TextOfItem(m_dialog, IDC_LENGTH),
            .diameter = TextOfItem(m_dialog, IDC_DIAMETER),
            .price = TextOfItem(m_dialog, IDC_PRICE),
            .material = static_cast<std::size_t>(material)};
}

void PipeDialog::OnOk()
{
    const auto checked = CheckEntry(Entry(), m_others);
    if (const auto* bad = std::get_if<BadEntry>(&checked))
        return Refuse(*bad);
    m_pipe = std::get<Pipe>(checked);
    ::EndDialog(m_dialog, IDOK);
}

void PipeDialog::Refuse(const BadEntry& bad) const
{
    ShowFault(m_dialog, m_localisation, bad.fault);
    FocusItem(m_dialog, ControlOf(bad.field));
}

}  // namespace

std::optional<Pipe> EditPipe(HWND owner, const Localisation& localisation, const Pipe& pipe,
                             const std::vector<Pipe>& others)
{
    return PipeDialog(localisation, pipe, others).Run(owner);
}

}  // namespace pipebench

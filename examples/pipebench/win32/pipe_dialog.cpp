#include "core/texts.h"
#include "ids.h"
#include "win32/dialog_items.h"
#include "win32/dialogs.h"
#include "win32/modal_dialog.h"

namespace pipebench {

namespace {

class PipeDialog : public ModalDialog {
  public:
    PipeDialog(const Localisation& localisation, DT_UNITS units, const Pipe& pipe,
               const std::vector<Pipe>& others)
        : ModalDialog(localisation), m_units(units), m_pipe(pipe), m_others(others)
    {
    }
    const Pipe& Edited() const { return m_pipe; }

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;
    void OnOk();
    void FillMaterials() const;
    PipeEntry Entry() const;
    void Refuse(const BadEntry& bad) const;

    DT_UNITS m_units;
    Pipe m_pipe;
    const std::vector<Pipe>& m_others;
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

void PipeDialog::OnInit()
{
    FillMaterials();
    const PipeEntry entry = ToEntry(Language(), m_pipe, m_units);
    SetItemText(Window(), IDC_NAME, entry.name);
    SetItemText(Window(), IDC_LENGTH, entry.length);
    SetItemText(Window(), IDC_DIAMETER, entry.diameter);
    SetItemText(Window(), IDC_PRICE, entry.price);
    SetItemText(Window(), IDC_LENGTH_UNIT, UnitName(Quantity::Length, m_units));
    SetItemText(Window(), IDC_DIAMETER_UNIT, UnitName(Quantity::Size, m_units));
    SetItemText(Window(), IDC_PRICE_UNIT, UnitName(Quantity::PricePerLength, m_units));
    ::SendDlgItemMessageA(Window(), IDC_MATERIAL, CB_SETCURSEL, entry.material, 0);
}

void PipeDialog::OnCommand(int id, int)
{
    if (id == IDOK)
        OnOk();
}

void PipeDialog::FillMaterials() const
{
    for (const char* material : kMaterials) {
        const std::string text = Wording(Language(), material);
        ::SendDlgItemMessageA(Window(), IDC_MATERIAL, CB_ADDSTRING, 0,
                              reinterpret_cast<LPARAM>(text.c_str()));
    }
}

PipeEntry PipeDialog::Entry() const
{
    const LRESULT material = ::SendDlgItemMessageA(Window(), IDC_MATERIAL, CB_GETCURSEL, 0, 0);
    return {.name = TextOfItem(Window(), IDC_NAME),
            .length = TextOfItem(Window(), IDC_LENGTH),
            .diameter = TextOfItem(Window(), IDC_DIAMETER),
            .price = TextOfItem(Window(), IDC_PRICE),
            .material = static_cast<std::size_t>(material)};
}

void PipeDialog::OnOk()
{
    const auto checked = CheckEntry(Language(), Entry(), m_units, m_pipe, m_others);
    if (const auto* bad = std::get_if<BadEntry>(&checked))
        return Refuse(*bad);
    m_pipe = std::get<Pipe>(checked);
    Close(IDOK);
}

void PipeDialog::Refuse(const BadEntry& bad) const
{
    ShowFault(Window(), Local(), bad.fault);
    FocusItem(Window(), ControlOf(bad.field));
}

}  // namespace

std::optional<Pipe> EditPipe(HWND owner, const Localisation& localisation, DT_UNITS units,
                             const Pipe& pipe, const std::vector<Pipe>& others)
{
    PipeDialog dialog(localisation, units, pipe, others);
    if (!dialog.Run(owner, IDD_PIPE))
        return {};
    return dialog.Edited();
}

}  // namespace pipebench

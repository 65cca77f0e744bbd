#include "core/flow/curve_plot.h"
#include "core/flow/flow_entry.h"
#include "core/flow/flow_report.h"
#include "core/flow/pump_curve.h"
#include "ids.h"
#include "win32/curve_view.h"
#include "win32/dialog_items.h"
#include "win32/dialogs.h"
#include "win32/files.h"

namespace pipebench {

namespace {

class FlowDialog {
  public:
    FlowDialog(const Localisation& localisation, const FlowCase& flowCase)
        : m_localisation(localisation), m_case(flowCase)
    {
    }
    void Run(HWND owner);

  private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    void OnInit(HWND dialog);
    void OnCommand(int id, int notification);
    void OnUnitsChosen();
    void OnBrowse();
    void OnCalculate();

    FlowEntry Entry() const;
    bool TakeEntry();
    bool TakeCurve();
    void ShowUnits();
    void ShowEntry(const FlowEntry& entry);
    void ShowResults();
    void ClearResults();
    const CLanguage& Language() const { return m_localisation.Language(); }

    const Localisation& m_localisation;
    FlowCase m_case;
    DT_UNITS m_units = DT_METRIC;
    std::optional<PumpCurve> m_curve;
    std::optional<CurvePlot> m_plot;
    bool m_filling = false;  // the program changes the fields, not the user
    HWND m_dialog = nullptr;
};

void FlowDialog::Run(HWND owner)
{
    ::DialogBoxParamA(m_localisation.Module(), MAKEINTRESOURCEA(IDD_FLOW), owner, Procedure,
                      reinterpret_cast<LPARAM>(this));
}

INT_PTR CALLBACK FlowDialog::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrA(dialog, GWLP_USERDATA, lParam);
        return reinterpret_cast<FlowDialog*>(lParam)->OnInit(dialog), TRUE;
    }
    auto* self = reinterpret_cast<FlowDialog*>(::GetWindowLongPtrA(dialog, GWLP_USERDATA));
    switch (self ? message : WM_NULL) {
        case WM_COMMAND:
            return self->OnCommand(LOWORD(wParam), HIWORD(wParam)), TRUE;
        case WM_DRAWITEM:
            return DrawCurves(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam), self->Language(),
                              self->m_units, self->m_plot),
                   TRUE;
        default:
            return FALSE;
    }
}

void FlowDialog::OnInit(HWND dialog)
{
    m_dialog = dialog;
    Language().Dialog(dialog);
    for (const int id : {IDS_METRIC_UNITS, IDS_US_UNITS}) {
        const std::string name = m_localisation.String(static_cast<unsigned>(id));
        ::SendDlgItemMessageA(dialog, IDC_UNITS, CB_ADDSTRING, 0,
                              reinterpret_cast<LPARAM>(name.c_str()));
    }
    SetItemText(dialog, IDC_CURVE_FILE, kSampleCurve);
    ShowUnits();
    ShowEntry(ToFlowEntry(Language(), m_case, m_units));
    TakeCurve();
    ShowResults();
}

void FlowDialog::OnCommand(int id, int notification)
{
    switch (id) {
        case IDC_UNITS:
            if (notification == CBN_SELCHANGE)
                OnUnitsChosen();
            return;
        case IDC_BROWSE:
            return OnBrowse();
        case IDOK:
            return OnCalculate();
        case IDCANCEL:
            ::EndDialog(m_dialog, IDCANCEL);
            return;
        default:
            if (notification == EN_CHANGE && !m_filling)
                ClearResults();
    }
}

// The list is in the order of the metric and the US units.
void FlowDialog::OnUnitsChosen()
{
    const LRESULT row = ::SendDlgItemMessageA(m_dialog, IDC_UNITS, CB_GETCURSEL, 0, 0);
    const DT_UNITS previous = m_units;
    m_units = row == 0 ? DT_METRIC : DT_ENGLISH;
    ShowUnits();
    ShowEntry(ConvertEntry(Language(), Entry(), previous, m_units, m_case));
    const auto checked = CheckFlowEntry(Language(), Entry(), m_units, m_case);
    if (std::holds_alternative<FlowCase>(checked))
        ShowResults();
    else
        ClearResults();
}

void FlowDialog::OnBrowse()
{
    if (const auto file = ChooseCurveFile(m_dialog, m_localisation))
        SetItemText(m_dialog, IDC_CURVE_FILE, *file);
}

void FlowDialog::OnCalculate()
{
    if (TakeEntry() && TakeCurve())
        ShowResults();
}

FlowEntry FlowDialog::Entry() const
{
    FlowEntry entry;
    for (std::size_t i = 0; i < entry.size(); ++i)
        entry[i] = TextOfItem(m_dialog, IDC_FLOW_FIELDS + static_cast<int>(i));
    return entry;
}

// The user reads why the entry cannot be taken and finds the field selected; false then.
bool FlowDialog::TakeEntry()
{
    const auto checked = CheckFlowEntry(Language(), Entry(), m_units, m_case);
    if (const auto* bad = std::get_if<BadFlowEntry>(&checked)) {
        ShowFault(m_dialog, m_localisation, bad->fault);
        FocusItem(m_dialog, IDC_FLOW_FIELDS + static_cast<int>(bad->field));
        return false;
    }
    m_case = std::get<FlowCase>(checked);
    return true;
}

bool FlowDialog::TakeCurve()
{
    m_curve.reset();
    const std::string file = TextOfItem(m_dialog, IDC_CURVE_FILE);
    if (file.empty())
        return true;  // no pump
    auto curve = ReadPumpCurve(CurvePath(file));
    if (const auto* fault = std::get_if<Fault>(&curve)) {
        ShowFault(m_dialog, m_localisation, *fault);
        FocusItem(m_dialog, IDC_CURVE_FILE);
        return false;
    }
    m_curve = std::get<PumpCurve>(std::move(curve));
    return true;
}

void FlowDialog::ShowUnits()
{
    ::SendDlgItemMessageA(m_dialog, IDC_UNITS, CB_SETCURSEL, m_units == DT_METRIC ? 0 : 1, 0);
    for (std::size_t i = 0; i < kFlowFields.size(); ++i)
        SetItemText(m_dialog, IDC_FLOW_UNITS + static_cast<int>(i),
                    UnitName(kFlowFields[i].quantity, m_units));
}

void FlowDialog::ShowEntry(const FlowEntry& entry)
{
    m_filling = true;
    for (std::size_t i = 0; i < entry.size(); ++i)
        SetItemText(m_dialog, IDC_FLOW_FIELDS + static_cast<int>(i), entry[i]);
    m_filling = false;
}

void FlowDialog::ShowResults()
{
    const auto results = ResultTexts(Language(), ComputeFlow(m_case), m_units);
    for (std::size_t i = 0; i < results.size(); ++i)
        SetItemText(m_dialog, IDC_FLOW_RESULTS + static_cast<int>(i), results[i]);
    m_plot.reset();
    std::string operatingPoint;
    if (m_curve) {
        m_plot = MakePlot(*m_curve, m_case, m_units);
        operatingPoint = OperatingPointText(m_localisation.Module(), Language(),
                                            OperatingPoint(*m_curve, m_case), m_units);
    }
    SetItemText(m_dialog, IDC_OPERATING_POINT, operatingPoint);
    ::InvalidateRect(::GetDlgItem(m_dialog, IDC_CURVE), nullptr, TRUE);
}

// What was computed from an earlier entry must not stand beside a new one.
void FlowDialog::ClearResults()
{
    for (std::size_t i = 0; i < kResults.size(); ++i)
        SetItemText(m_dialog, IDC_FLOW_RESULTS + static_cast<int>(i), "");
    SetItemText(m_dialog, IDC_OPERATING_POINT, "");
    m_plot.reset();
    ::InvalidateRect(::GetDlgItem(m_dialog, IDC_CURVE), nullptr, TRUE);
}

}  // namespace

void ShowPipeFlow(HWND owner, const Localisation& localisation, const Pipe& pipe)
{
    FlowDialog(localisation, ProposeFlow(pipe)).Run(owner);
}

}  // namespace pipebench

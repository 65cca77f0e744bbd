#include "core/flow/curve_plot.h"
#include "core/flow/flow_entry.h"
#include "core/flow/flow_report.h"
#include "core/flow/pump_curve.h"
#include "ids.h"
#include "win32/curve_view.h"
#include "win32/dialog_items.h"
#include "win32/dialogs.h"
#include "win32/file_boxes.h"
#include "win32/files.h"
#include "win32/modal_dialog.h"

namespace pipebench {

namespace {

class FlowDialog : public ModalDialog {
  public:
    FlowDialog(const Localisation& localisation, HTML_HELP& help, const Pipe& pipe,
               Settings& settings)
        : ModalDialog(localisation),
          m_help(help),
          m_settings(settings),
          m_case(ProposeFlow(settings.flow, pipe)),
          m_units(settings.units)
    {
    }

  private:
    void OnInit() override;
    void OnCommand(int id, int notification) override;
    void OnDraw(const DRAWITEMSTRUCT& item) override;
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

    HTML_HELP& m_help;
    Settings& m_settings;
    FlowCase m_case;  // what the fields show, but for what was typed since
    DT_UNITS m_units;
    std::optional<PumpCurve> m_curve;
    std::optional<CurvePlot> m_plot;
    bool m_filling = false;  // the program changes the fields, not the user
};

void FlowDialog::OnInit()
{
    FillUnits(Window(), Local(), m_units);
    SetItemText(Window(), IDC_CURVE_FILE, m_settings.curveFile);
    ShowUnits();
    ShowEntry(ToFlowEntry(Language(), m_case, m_units));
    // What may be wrong is told when the page is on the screen.
    ::PostMessageA(Window(), WM_COMMAND, IDOK, 0);
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
        default:
            if (notification == EN_CHANGE && !m_filling)
                ClearResults();
    }
}

void FlowDialog::OnDraw(const DRAWITEMSTRUCT& item)
{
    DrawCurves(item, Language(), m_units, m_plot);
}

void FlowDialog::OnUnitsChosen()
{
    const DT_UNITS previous = m_units;
    m_units = ChosenUnits(Window());
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
    Settings shown = m_settings;
    shown.units = m_units;
    if (const auto file = ChooseCurve(Window(), Local(), m_help, shown))
        SetItemText(Window(), IDC_CURVE_FILE, *file);
}

void FlowDialog::OnCalculate()
{
    if (!TakeEntry() || !TakeCurve())
        return;
    ShowResults();
    m_settings.flow = m_case;
    m_settings.units = m_units;
    m_settings.curveFile = TextOfItem(Window(), IDC_CURVE_FILE);
}

FlowEntry FlowDialog::Entry() const
{
    FlowEntry entry;
    for (std::size_t i = 0; i < entry.size(); ++i)
        entry[i] = TextOfItem(Window(), IDC_FLOW_FIELDS + static_cast<int>(i));
    return entry;
}

// The user reads why the entry cannot be taken and finds the field selected; false then.
bool FlowDialog::TakeEntry()
{
    const auto checked = CheckFlowEntry(Language(), Entry(), m_units, m_case);
    if (const auto* bad = std::get_if<BadFlowEntry>(&checked)) {
        ShowFault(Window(), Local(), bad->fault);
        FocusItem(Window(), IDC_FLOW_FIELDS + static_cast<int>(bad->field));
        return false;
    }
    m_case = std::get<FlowCase>(checked);
    return true;
}

bool FlowDialog::TakeCurve()
{
    m_curve.reset();
    const std::string file = TextOfItem(Window(), IDC_CURVE_FILE);
    if (file.empty())
        return true;  // no pump
    auto curve = ReadPumpCurve(CurvePath(file));
    if (const auto* fault = std::get_if<Fault>(&curve)) {
        ShowFault(Window(), Local(), *fault);
        FocusItem(Window(), IDC_CURVE_FILE);
        return false;
    }
    m_curve = std::get<PumpCurve>(std::move(curve));
    return true;
}

void FlowDialog::ShowUnits()
{
    for (std::size_t i = 0; i < kFlowFields.size(); ++i)
        SetItemText(Window(), IDC_FLOW_UNITS + static_cast<int>(i),
                    UnitName(kFlowFields[i].quantity, m_units));
}

void FlowDialog::ShowEntry(const FlowEntry& entry)
{
    m_filling = true;
    for (std::size_t i = 0; i < entry.size(); ++i)
        SetItemText(Window(), IDC_FLOW_FIELDS + static_cast<int>(i), entry[i]);
    m_filling = false;
}

void FlowDialog::ShowResults()
{
    const auto results = ResultTexts(Language(), ComputeFlow(m_case), m_units);
    for (std::size_t i = 0; i < results.size(); ++i)
        SetItemText(Window(), IDC_FLOW_RESULTS + static_cast<int>(i), results[i]);
    m_plot.reset();
    std::string operatingPoint;
    if (m_curve) {
        m_plot = MakePlot(*m_curve, m_case, m_units);
        operatingPoint = OperatingPointText(Local().Module(), Language(),
                                            OperatingPoint(*m_curve, m_case), m_units);
    }
    SetItemText(Window(), IDC_OPERATING_POINT, operatingPoint);
    ::InvalidateRect(::GetDlgItem(Window(), IDC_CURVE), nullptr, TRUE);
}

// What was computed from an earlier entry must not stand beside a new one.
void FlowDialog::ClearResults()
{
    for (std::size_t i = 0; i < kResults.size(); ++i)
        SetItemText(Window(), IDC_FLOW_RESULTS + static_cast<int>(i), "");
    SetItemText(Window(), IDC_OPERATING_POINT, "");
    m_plot.reset();
    ::InvalidateRect(::GetDlgItem(Window(), IDC_CURVE), nullptr, TRUE);
}

}  // namespace

void ShowPipeFlow(HWND owner, const Localisation& localisation, HTML_HELP& help, const Pipe& pipe,
                  Settings& settings)
{
    FlowDialog(localisation, help, pipe, settings).Run(owner, IDD_FLOW);
}

}  // namespace pipebench

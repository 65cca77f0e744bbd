#include "core/report.h"

#include "core/checks.h"
#include "core/flow/flow_report.h"
#include "core/results.h"
#include "core/texts.h"
#include "ids.h"

#include <algorithm>

namespace pipebench {

namespace {

class ReportMaker {
  public:
    ReportMaker(const Localisation& localisation, const ReportSubject& subject)
        : m_local(localisation), m_language(localisation.Language()), m_subject(subject)
    {
    }
    Report Make() const;

  private:
    std::string With(int id, const std::string& value) const
    {
        return Sentence(m_local.Module(), id, value);
    }
    std::vector<std::string> Facts() const;
    std::vector<std::string> Fluid() const;
    ReportTable Pipes() const;
    ReportTable Flow() const;
    ReportChart Velocities() const;
    FlowResult FlowIn(const Pipe& pipe) const
    {
        return ComputeFlow(ProposeFlow(m_subject.settings.flow, pipe));
    }
    void AddPump(Report& report) const;
    std::vector<std::string> Warnings() const;

    const Localisation& m_local;
    const CLanguage& m_language;
    const ReportSubject& m_subject;
};

std::vector<std::string> ReportMaker::Facts() const
{
    const Settings& settings = m_subject.settings;
    const Totals totals = Sum(m_subject.pipes);
    const auto value = [&](Quantity quantity, double metric) {
        return ValueWithUnit(m_language, quantity, metric, settings);
    };
    return {With(IDS_REPORT_LINE, m_subject.name),
            With(IDS_REPORT_DATE, DateText(m_language, DATE_LONGDATE)),
            With(IDS_PIPE_COUNT, std::to_string(m_subject.pipes.size())),
            With(IDS_TOTAL_LENGTH, value(Quantity::Length, totals.length)),
            With(IDS_TOTAL_CONTENT, value(Quantity::Volume, totals.content)),
            With(IDS_TOTAL_PRICE, MoneyText(m_language, totals.price, true))};
}

std::string WithoutKey(std::string label)
{
    std::erase(label, '&');
    return label;
}

// What the user has entered about the flow; pipes bring the rest.
std::vector<std::string> ReportMaker::Fluid() const
{
    const DT_UNITS units = m_subject.settings.units;
    const FlowEntry entry = ToFlowEntry(m_language, m_subject.settings.flow, units);
    std::vector<std::string> facts;
    for (std::size_t i = 0; i < kFlowFields.size(); ++i) {
        const FlowField& field = kFlowFields[i];
        if (field.key)
            facts.push_back(WithoutKey(Wording(m_language, field.wording)) + ' ' + entry[i] + ' ' +
                            UnitName(field.quantity, units));
    }
    return facts;
}

// The columns of the table of results that do not depend on the flow.
ReportTable ReportMaker::Pipes() const
{
    struct Shown {
        std::size_t column;  // of kResultColumns
        int width;
    };
    static constexpr Shown kShown[] = {{0, 190}, {1, 270}, {2, 130}, {3, 130}, {4, 120}, {7, 160}};
    const Settings& settings = m_subject.settings;
    ReportTable table{.title = m_local.String(IDS_REPORT_PIPES)};
    for (const auto& [index, width] : kShown) {
        const ResultColumn& column = kResultColumns[index];
        const std::string unit = UnitName(column.quantity, settings.units);
        table.columns.push_back({Wording(m_language, column.wording), unit, width, column.number});
    }
    for (const Pipe& pipe : m_subject.pipes) {
        const ResultRow cells = ResultCells(m_language, pipe, settings);
        std::vector<std::string> row;
        for (const auto& [index, width] : kShown)
            row.push_back(cells[index]);
        table.rows.push_back(row);
    }
    const Totals totals = Sum(m_subject.pipes);
    const auto text = [&](Quantity quantity, double metric) {
        return ValueText(m_language, quantity, metric, settings.units, settings.decimals);
    };
    table.total = {
        m_local.String(IDS_REPORT_TOTAL),       "",
        text(Quantity::Length, totals.length),  "",
        text(Quantity::Volume, totals.content), MoneyText(m_language, totals.price, true)};
    return table;
}

ReportTable ReportMaker::Flow() const
{
    static constexpr Quantity kQuantities[kResults.size()] = {Quantity::Velocity, Quantity::Number,
                                                              Quantity::Number, Quantity::Pressure,
                                                              Quantity::Length};
    const Settings& settings = m_subject.settings;
    ReportTable table{.title = m_local.String(IDS_REPORT_FLOW)};
    table.columns.push_back({Wording(m_language, "Name"), "", 190, false});
    for (std::size_t i = 0; i < kResults.size(); ++i) {
        std::string name = WithoutKey(Wording(m_language, kResults[i]));
        name.erase(name.find_last_not_of(": \240") + 1);
        table.columns.push_back({name, UnitName(kQuantities[i], settings.units), 162, true});
    }
    for (const Pipe& pipe : m_subject.pipes) {
        const FlowResult flow = FlowIn(pipe);
        const auto text = [&](std::size_t column, double value, int decimals) {
            return ValueText(m_language, kQuantities[column], value, settings.units, decimals);
        };
        table.rows.push_back({pipe.name, text(0, flow.velocity, settings.decimals),
                              text(1, flow.reynolds, 0), text(2, flow.friction, 4),
                              text(3, flow.pressureDrop, settings.decimals),
                              text(4, flow.headLoss, settings.decimals)});
    }
    return table;
}

ReportChart ReportMaker::Velocities() const
{
    ReportChart chart{.title = m_local.String(IDS_REPORT_VELOCITIES)};
    double most = kFastest;
    for (const Pipe& pipe : m_subject.pipes)
        most = std::max(most, FlowIn(pipe).velocity);
    const auto text = [&](double velocity) {
        return ValueWithUnit(m_language, Quantity::Velocity, velocity, m_subject.settings);
    };
    for (const Pipe& pipe : m_subject.pipes) {
        const double velocity = FlowIn(pipe).velocity;
        chart.bars.push_back({pipe.name, text(velocity), velocity / most,
                              velocity < kSlowest || velocity > kFastest});
    }
    for (const double limit : {kSlowest, kFastest})
        chart.limits.push_back({limit / most, text(limit)});
    return chart;
}

void ReportMaker::AddPump(Report& report) const
{
    const auto* const curve = std::get_if<PumpCurve>(&m_subject.curve);
    if (!curve || m_subject.pipes.empty())
        return;
    // The pipe that asks most of the pump.
    const Pipe& pipe = *std::ranges::max_element(
        m_subject.pipes, {}, [this](const Pipe& each) { return FlowIn(each).headLoss; });
    const FlowCase flow = ProposeFlow(m_subject.settings.flow, pipe);
    const DT_UNITS units = m_subject.settings.units;
    report.pumpTitle = With(IDS_REPORT_PUMP, pipe.name);
    report.plot = MakePlot(*curve, flow, units);
    report.operatingPoint =
        OperatingPointText(m_local.Module(), m_language, OperatingPoint(*curve, flow), units);
}

std::vector<std::string> ReportMaker::Warnings() const
{
    std::vector<std::string> warnings;
    for (const Fault& warning : CheckPipes(m_language, m_subject.pipes, m_subject.settings))
        warnings.push_back(With(warning.stringId, warning.text));
    if (const auto* const fault = std::get_if<Fault>(&m_subject.curve))
        warnings.push_back(With(fault->stringId, fault->text));
    if (warnings.empty())
        warnings.push_back(m_local.String(IDS_ALL_WELL));
    return warnings;
}

Report ReportMaker::Make() const
{
    Report report{.title = m_local.String(IDS_REPORT_TITLE),
                  .name = m_subject.name,
                  .program = m_local.String(IDS_PROGRAM),
                  .date = DateText(m_language, DATE_LONGDATE),
                  .page = m_local.String(IDS_REPORT_PAGE),
                  .continued = m_local.String(IDS_REPORT_CONTINUED),
                  .facts = Facts(),
                  .sketch = m_subject.pipes,
                  .pipes = Pipes(),
                  .flow = Flow(),
                  .fluidTitle = m_local.String(IDS_REPORT_FLUID),
                  .fluid = Fluid(),
                  .velocities = Velocities(),
                  .warningsTitle = m_local.String(IDS_REPORT_WARNINGS),
                  .warnings = Warnings()};
    AddPump(report);
    return report;
}

}  // namespace

Report MakeReport(const Localisation& localisation, const ReportSubject& subject)
{
    return ReportMaker(localisation, subject).Make();
}

}  // namespace pipebench

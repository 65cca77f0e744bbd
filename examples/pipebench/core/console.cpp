#include "core/console.h"

#include "core/entry.h"
#include "core/flow/flow_entry.h"
#include "core/flow/flow_report.h"
#include "core/flow/pump_curve.h"
#include "core/pipe.h"
#include "core/texts.h"
#include "ids.h"

#include <algorithm>
#include <cstdio>

namespace pipebench {

// The characters of code page 1252 that differ from Latin-1: bytes 0x80 to 0x9F.
static constexpr char16_t kWindows1252[32] = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

std::string Utf8(const std::string& windows1252)
{
    std::string utf8;
    for (const char c : windows1252) {
        const auto byte = static_cast<unsigned char>(c);
        const unsigned code = byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80] : byte;
        if (code < 0x80) {
            utf8 += c;
            continue;
        }
        if (code >= 0x800)
            utf8 += static_cast<char>(0xE0 | code >> 12);
        utf8 += static_cast<char>(code >= 0x800 ? 0x80 | (code >> 6 & 0x3F) : 0xC0 | code >> 6);
        utf8 += static_cast<char>(0x80 | (code & 0x3F));
    }
    return utf8;
}

static void Line(const std::string& text)
{
    std::printf("%s\n", Utf8(text).c_str());
}

// Texts in columns: the name to the left, everything else to the right.
static void Row(const std::vector<std::string>& cells)
{
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::size_t width = i < 2 ? 16 : 18;
        const std::string padding(width - std::min(width - 1, cells[i].size()), ' ');
        line += i < 2 ? cells[i] + padding : padding + cells[i];
    }
    Line(line);
}

// A label without the mark of its key, and a value in metric and in US units.
static void FlowRow(const CLanguage& language, const char* wording, const std::string& metric,
                    const std::string& english)
{
    std::string label = Wording(language, wording);
    std::erase(label, '&');
    label.resize(26, ' ');
    Line(label + metric + std::string(18 - std::min<std::size_t>(17, metric.size()), ' ') +
         english);
}

static void PrintPipes(const CLanguage& language, const std::vector<Pipe>& pipes)
{
    Row({Wording(language, "Name"), Wording(language, "Material"),
         WithUnit(language, "Length", Quantity::Length, DT_METRIC),
         WithUnit(language, "Diameter", Quantity::Size, DT_METRIC),
         WithUnit(language, "Content", Quantity::Volume, DT_METRIC), Wording(language, "Price")});
    for (const Pipe& pipe : pipes)
        Row({pipe.name, Wording(language, kMaterials[pipe.material]),
             NumberText(language, pipe.length, 2), NumberText(language, pipe.diameter, 0),
             NumberText(language, Content(pipe), 1), MoneyText(language, Price(pipe), true)});
}

static void PrintTotals(const Localisation& localisation, const std::vector<Pipe>& pipes)
{
    const CLanguage& language = localisation.Language();
    const Totals totals = Sum(pipes);
    const std::pair<int, std::string> sentences[] = {
        {IDS_PIPE_COUNT, std::to_string(pipes.size())},
        {IDS_TOTAL_LENGTH, NumberText(language, totals.length, 2) + " m"},
        {IDS_TOTAL_CONTENT, NumberText(language, totals.content, 1) + " l"},
        {IDS_TOTAL_PRICE, MoneyText(language, totals.price, false)},
    };
    for (const auto& [id, value] : sentences)
        Line(Sentence(localisation.Module(), id, value));
}

// Entries as a user would type them, each with a fault.
static std::vector<PipeEntry> BadEntries(const CLanguage& language)
{
    const PipeEntry good = ToEntry(language, {"P-201", 0, 7.5, 80, 12.5}, DT_METRIC);
    std::vector<PipeEntry> entries(4, good);
    entries[0].length = "twelve";
    entries[1].diameter = "4" + std::string(1, language.Decimal()) + "9";
    entries[2].name = "P-101";
    entries[3].price = "%n%s";
    return entries;
}

static void PrintFlow(const CLanguage& language, const FlowCase& flowCase)
{
    const auto results = ComputeFlow(flowCase);
    const auto metric = ToFlowEntry(language, flowCase, DT_METRIC);
    const auto english = ToFlowEntry(language, flowCase, DT_ENGLISH);
    for (std::size_t i = 0; i < kFlowFields.size(); ++i) {
        const FlowField& field = kFlowFields[i];
        FlowRow(language, field.wording, metric[i] + " " + UnitName(field.quantity, DT_METRIC),
                english[i] + " " + UnitName(field.quantity, DT_ENGLISH));
    }
    const auto metricResults = ResultTexts(language, results, DT_METRIC);
    const auto englishResults = ResultTexts(language, results, DT_ENGLISH);
    for (std::size_t i = 0; i < kResults.size(); ++i)
        FlowRow(language, kResults[i], metricResults[i], englishResults[i]);
}

// The operating point in both unit systems.
static void PrintPump(const Localisation& localisation, const FlowCase& flowCase,
                      const PumpCurve& curve)
{
    const auto point = OperatingPoint(curve, flowCase);
    for (const DT_UNITS units : {DT_METRIC, DT_ENGLISH})
        Line(OperatingPointText(localisation.Module(), localisation.Language(), point, units));
}

// The page "pipe flow at a glance" for a pipe, and what it says to a wrong entry.
static void PrintFlowPage(const Localisation& localisation, const Pipe& pipe,
                          const std::string& pumpCurve, const ReportFault& report)
{
    const CLanguage& language = localisation.Language();
    const FlowCase flowCase = ProposeFlow(kFirstFlow, pipe);
    Line(Wording(language, "Pipe flow at a glance") + " - " + pipe.name);
    PrintFlow(language, flowCase);
    for (const std::string& file : {pumpCurve, pumpCurve + ".missing"}) {
        const auto curve = ReadPumpCurve(file);
        if (const auto* fault = std::get_if<Fault>(&curve))
            report(localisation, *fault);
        else
            PrintPump(localisation, flowCase, std::get<PumpCurve>(curve));
    }
    FlowEntry entry = ToFlowEntry(language, flowCase, DT_ENGLISH);
    entry[0] = "0";
    const auto checked = CheckFlowEntry(language, entry, DT_ENGLISH, flowCase);
    report(localisation, std::get<BadFlowEntry>(checked).fault);
}

void RunConsole(const Localisation& localisation, const std::string& pumpCurve,
                const ReportFault& report)
{
    const CLanguage& language = localisation.Language();
    const std::vector<Pipe> pipes = SamplePipes();
    Line(localisation.String(IDS_PROGRAM) + " - " +
         language.GetLanguageName(language.GetLanguage()));
    Line(DateText(language, DATE_LONGDATE));
    Line("");
    PrintPipes(language, pipes);
    Line("");
    PrintTotals(localisation, pipes);
    Line("");
    for (const PipeEntry& entry : BadEntries(language)) {
        const auto checked = CheckEntry(language, entry, DT_METRIC, {}, pipes);
        if (const auto* bad = std::get_if<BadEntry>(&checked))
            report(localisation, bad->fault);
    }
    Line("");
    PrintFlowPage(localisation, pipes[3], pumpCurve, report);
    Line("");
    Line(localisation.String(IDS_ABOUT));
}

}  // namespace pipebench

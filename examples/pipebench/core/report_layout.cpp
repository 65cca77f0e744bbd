#include "core/report_layout.h"

#include <algorithm>

namespace pipebench {

namespace {

constexpr int kWhole = 1000, kColon = 130, kPadding = 8, kNumberWidth = 30;
constexpr double kHeader = 3, kFooter = 2.5;  // lines kept for them
constexpr double kRowHeight = 1.6, kFactHeight = 1.35, kHeadingHeight = 2.6, kWarningHeight = 2.3;
constexpr int kBarsFrom = 130, kBarsWidth = 730;
constexpr double kLeastSketch = 8, kMostSketch = 17;
constexpr double kLeastPlot = 14, kMostPlot = 36, kAboveText = 0.3;

class Layouter {
  public:
    Layouter(const Report& report, int lines)
        : m_report(report), m_lines(lines), m_bottom(lines - kFooter)
    {
    }
    std::vector<ReportPage> LayOut();

  private:
    void BeginPage();
    // Goes to the next page where so many lines are not left, unless this one is still empty.
    bool Need(double height);
    void Skip(double height)
    {
        m_line += height;
        m_isEmpty = false;
    }
    ReportPage& Page() { return m_pages.back(); }
    void PlaceRule(double line, bool strong) { Page().rules.push_back({line, strong}); }
    void PlaceHeading(const std::string& text);
    void PlaceFacts(const std::vector<std::string>& facts);
    void PlaceTable(const ReportTable& table);
    void PlaceHead(const ReportTable& table, const std::string& title);
    void PlaceCells(const ReportTable& table, const std::vector<std::string>& cells,
                    ReportFont font);
    void PlaceSketch();
    void PlaceChart(const ReportChart& chart);
    void PlaceLimits(const ReportChart& chart, double from);
    void PlacePump();
    void PlaceWarnings();
    void PlaceFooters();

    const Report& m_report;
    const double m_lines, m_bottom;
    double m_line = 0;
    bool m_isEmpty = true;  // the page, but for its header
    std::vector<ReportPage> m_pages;
};

void Layouter::BeginPage()
{
    m_pages.emplace_back();
    Page().texts.push_back({ReportFont::Bold, false, 0, kWhole / 2, 0, m_report.name});
    Page().texts.push_back({ReportFont::Normal, true, kWhole, kWhole / 2, 0, m_report.program});
    PlaceRule(1.3, false);
    m_line = kHeader;
    m_isEmpty = true;
}

bool Layouter::Need(double height)
{
    const bool isNew = !m_isEmpty && m_line + height > m_bottom;
    if (isNew)
        BeginPage();
    return isNew;
}

void Layouter::PlaceHeading(const std::string& text)
{
    Need(kHeadingHeight + kRowHeight);
    Page().texts.push_back({ReportFont::Heading, false, 0, kWhole, m_line, text});
    Skip(kHeadingHeight);
}

void Layouter::PlaceFacts(const std::vector<std::string>& facts)
{
    for (const std::string& fact : facts) {
        Need(kFactHeight);
        Page().facts.push_back({kColon, m_line, fact});
        Skip(kFactHeight);
    }
    Skip(kFactHeight);
}

// ---- Tables

std::size_t TextColumns(const ReportTable& table)
{
    return static_cast<std::size_t>(
        std::ranges::count(table.columns, false, &ReportColumn::number));
}

bool HasUnits(const ReportTable& table)
{
    return std::ranges::any_of(table.columns,
                               [](const ReportColumn& column) { return !column.unit.empty(); });
}

std::vector<std::string> Names(const ReportTable& table)
{
    std::vector<std::string> names;
    for (const ReportColumn& column : table.columns)
        names.push_back(column.name);
    return names;
}

std::vector<std::string> Units(const ReportTable& table)
{
    std::vector<std::string> units;
    for (const ReportColumn& column : table.columns)
        units.push_back(column.unit.empty() ? "" : '(' + column.unit + ')');
    return units;
}

// One line of a table: the columns of text with tabs between them, then the numbers.
void Layouter::PlaceCells(const ReportTable& table, const std::vector<std::string>& cells,
                          ReportFont font)
{
    const std::size_t texts = TextColumns(table);
    PlacedRow row{font, m_line + kAboveText, {}, 0, {}};
    int right = 0;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const int width = table.columns[i].width;
        right += width;
        if (i >= texts) {
            Page().texts.push_back(
                {font, true, right - kPadding, width - kPadding, row.line, cells[i]});
            continue;
        }
        row.fields += (i > 0 ? "\t" : "") + cells[i];
        row.right = right;
        if (i + 1 < texts)
            row.stops.push_back(right);
    }
    Page().rows.push_back(std::move(row));
}

void Layouter::PlaceHead(const ReportTable& table, const std::string& title)
{
    PlaceHeading(title);
    const double height = kRowHeight + (HasUnits(table) ? 1 : 0);
    Page().bands.push_back({m_line, height});
    PlaceCells(table, Names(table), ReportFont::Bold);
    if (HasUnits(table)) {
        Skip(1);
        PlaceCells(table, Units(table), ReportFont::Normal);
    }
    Skip(kRowHeight);
    PlaceRule(m_line, true);
}

void Layouter::PlaceTable(const ReportTable& table)
{
    PlaceHead(table, table.title);
    for (const auto& row : table.rows) {
        if (Need(kRowHeight))
            PlaceHead(table, table.title + ' ' + m_report.continued);
        PlaceCells(table, row, ReportFont::Normal);
        Skip(kRowHeight);
        PlaceRule(m_line, false);
    }
    if (table.total.empty())
        return;
    if (Need(kRowHeight))
        PlaceHead(table, table.title + ' ' + m_report.continued);
    PlaceRule(m_line, true);
    PlaceCells(table, table.total, ReportFont::Bold);
    Skip(kRowHeight);
}

// ---- Pictures

void Layouter::PlaceSketch()
{
    if (m_report.sketch.empty())
        return;
    const double height = std::clamp(m_bottom - m_line - kHeadingHeight, kLeastSketch, kMostSketch);
    Skip(kHeadingHeight);
    Need(height);
    Page().sketches.push_back({m_line, height});
    Skip(height);
}

// Across the bars from there on, with their values below.
void Layouter::PlaceLimits(const ReportChart& chart, double from)
{
    for (const ReportLimit& limit : chart.limits) {
        const int x = kBarsFrom + static_cast<int>(limit.place * kBarsWidth);
        Page().boxes.push_back({BoxRole::Limit, x, 1, from, m_line - from});
        Page().texts.push_back({ReportFont::Normal, false, x - kPadding, kWhole - x,
                                m_line + kAboveText, limit.value});
    }
}

void Layouter::PlaceChart(const ReportChart& chart)
{
    Skip(kHeadingHeight);
    PlaceHeading(chart.title);
    double from = m_line;
    for (const ReportBar& bar : chart.bars) {
        if (m_line + 2 * kRowHeight > m_bottom)
            PlaceLimits(chart, from);
        if (Need(2 * kRowHeight))
            from = m_line;
        const int width = static_cast<int>(bar.length * kBarsWidth);
        Page().texts.push_back(
            {ReportFont::Normal, false, 0, kBarsFrom - kPadding, m_line + kAboveText, bar.name});
        Page().boxes.push_back({bar.beyond ? BoxRole::BarBeyond : BoxRole::Bar, kBarsFrom, width,
                                m_line + kAboveText / 2, kRowHeight - kAboveText});
        Page().texts.push_back({ReportFont::Normal, false, kBarsFrom + width + kPadding,
                                kWhole - kBarsFrom - width, m_line + kAboveText, bar.value});
        Skip(kRowHeight);
    }
    PlaceLimits(chart, from);
}

// ---- The last page

void Layouter::PlacePump()
{
    if (!m_report.plot)
        return;
    PlaceHeading(m_report.pumpTitle);
    const double shownWarnings = std::min<double>(static_cast<double>(m_report.warnings.size()), 6);
    const double below = 2 * kRowHeight + kHeadingHeight + shownWarnings * kWarningHeight;
    const double height = std::clamp(m_bottom - m_line - below, kLeastPlot, kMostPlot);
    Need(height);
    Page().plots.push_back({m_line, height});
    Skip(height + kAboveText);
    Need(kRowHeight);
    Page().texts.push_back({ReportFont::Bold, false, 0, kWhole, m_line, m_report.operatingPoint});
    Skip(2 * kRowHeight - kAboveText);
}

void Layouter::PlaceWarnings()
{
    PlaceHeading(m_report.warningsTitle);
    int number = 0;
    for (const std::string& warning : m_report.warnings) {
        Need(kWarningHeight);
        Page().texts.push_back(
            {ReportFont::Normal, false, 0, kNumberWidth, m_line, std::to_string(++number) + '.'});
        Page().paragraphs.push_back({kNumberWidth, m_line, warning});
        Skip(kWarningHeight);
    }
}

void Layouter::PlaceFooters()
{
    const double line = m_lines - 1.2;
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        const std::string page =
            m_report.page + ' ' + std::to_string(i + 1) + " / " + std::to_string(m_pages.size());
        m_pages[i].rules.push_back({line - 0.3, false});
        m_pages[i].texts.push_back({ReportFont::Normal, false, 0, kWhole / 2, line, m_report.date});
        m_pages[i].texts.push_back({ReportFont::Normal, true, kWhole, kWhole / 2, line, page});
    }
}

std::vector<ReportPage> Layouter::LayOut()
{
    BeginPage();
    Page().titles.push_back({m_line, m_report.title});
    Skip(5);
    PlaceFacts(m_report.facts);
    PlaceTable(m_report.pipes);
    PlaceSketch();
    BeginPage();
    PlaceHeading(m_report.fluidTitle);
    PlaceFacts(m_report.fluid);
    PlaceTable(m_report.flow);
    PlaceChart(m_report.velocities);
    BeginPage();
    PlacePump();
    PlaceWarnings();
    PlaceFooters();
    return std::move(m_pages);
}

}  // namespace

std::vector<ReportPage> LayOut(const Report& report, int linesPerPage)
{
    return Layouter(report, linesPerPage).LayOut();
}

}  // namespace pipebench

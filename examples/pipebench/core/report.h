// What the report on a line says, in the user's language and units. Where it stands on the pages is
// the business of report_layout.h.
#pragma once

#include "core/fault.h"
#include "core/flow/curve_plot.h"
#include "core/flow/pump_curve.h"
#include "core/localisation.h"
#include "core/pipe.h"
#include "core/settings.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace pipebench {

struct ReportColumn {
    std::string name, unit;  // the unit may be empty
    int width;               // in thousandths of the page's; all columns of a table fill it
    bool number;             // to be aligned to the right; the columns of text come first
};

struct ReportTable {
    std::string title;
    std::vector<ReportColumn> columns = {};
    std::vector<std::vector<std::string>> rows = {};
    std::vector<std::string> total = {};  // one more row, which sums up; may be empty
};

// A bar for each pipe, its length from 0 to 1 of the chart's width, and limits across all bars.
struct ReportBar {
    std::string name, value;
    double length;
    bool beyond;  // one of the limits
};
struct ReportLimit {
    double place;
    std::string value;
};
struct ReportChart {
    std::string title;
    std::vector<ReportBar> bars = {};
    std::vector<ReportLimit> limits = {};
};

struct Report {
    std::string title, name, program, date;
    std::string page, continued;     // "Page"; what follows the title of a table's other pages
    std::vector<std::string> facts;  // "Label: value"
    std::vector<Pipe> sketch;
    ReportTable pipes, flow;
    std::string fluidTitle;
    std::vector<std::string> fluid;  // facts about what flows
    ReportChart velocities;
    std::string pumpTitle = {}, operatingPoint = {};
    std::optional<CurvePlot> plot = {};  // without one there is no pump
    std::string warningsTitle;
    std::vector<std::string> warnings;
};

struct ReportSubject {
    std::string name;  // of the line
    std::vector<Pipe> pipes;
    Settings settings;
    std::variant<std::monostate, PumpCurve, Fault> curve = {};  // none, or why there is none
};
Report MakeReport(const Localisation& localisation, const ReportSubject& subject);

}  // namespace pipebench

// The pages of a report: what stands where, as plain data that a printer draws and a test reads.
// Across the page, places and widths are thousandths of what the margins leave; down the page they
// are lines of normal text, from the first one's top.
#pragma once

#include "core/report.h"

#include <string>
#include <vector>

namespace pipebench {

enum class ReportFont { Normal, Bold, Heading, Title };

// One line, cut to its width from `x` on; to the left of `x` when aligned to the right.
struct PlacedText {
    ReportFont font;
    bool right;
    int x, width;
    double line;
    std::string text;
};
struct PlacedTitle {  // centred, underlined
    double line;
    std::string text;
};
struct PlacedFact {  // "Label: value", its colon at `colon`
    int colon;
    double line;
    std::string text;
};
struct PlacedRow {  // fields with tabs between, each cut to its column; stops from the left edge
    ReportFont font;
    double line;
    std::vector<int> stops;
    int right;
    std::string fields;
};
struct PlacedParagraph {  // wrapped
    int left;
    double line;
    std::string text;
};
struct PlacedRule {  // across the page
    double line;
    bool strong;
};
struct PlacedBand {  // a shade across the page, behind what comes after it
    double line, height;
};
struct PlacedPlot {
    double line, height;
};
struct PlacedSketch {
    double line, height;
};
enum class BoxRole { Bar, BarBeyond, Limit };
struct PlacedBox {  // filled
    BoxRole role;
    int x, width;
    double line, height;
};

// To be drawn in this order.
struct ReportPage {
    std::vector<PlacedBand> bands;
    std::vector<PlacedRule> rules;
    std::vector<PlacedPlot> plots;
    std::vector<PlacedSketch> sketches;
    std::vector<PlacedBox> boxes;
    std::vector<PlacedTitle> titles;
    std::vector<PlacedText> texts;
    std::vector<PlacedFact> facts;
    std::vector<PlacedRow> rows;
    std::vector<PlacedParagraph> paragraphs;
};

// The pages for paper that has room for so many lines. Three when the line is short: its pipes,
// their flow, the pump with the warnings.
std::vector<ReportPage> LayOut(const Report& report, int linesPerPage);

}  // namespace pipebench

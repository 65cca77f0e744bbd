// What the report says, and where it stands on the pages.
#include "core/report_layout.h"
#include "ids.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <map>

using namespace pipebench;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407;
const HINSTANCE kModule = reinterpret_cast<HINSTANCE>(std::uintptr_t{0x1000});
constexpr int kPortrait = 65, kLandscape = 46;  // lines of A4 within the usual margins

class ReportTest : public testing::Test {
  protected:
    Report Make(DWORD lcid, const std::vector<Pipe>& pipes)
    {
        m_localisation.Use(lcid);
        ReportSubject subject{.name = "Ring main", .pipes = pipes, .settings = {}};
        subject.curve = std::get<PumpCurve>(ReadPumpCurve("PUMP_CURVE.DAT"));
        return MakeReport(m_localisation, subject);
    }

  private:
    Localisation m_localisation{kModule, "PIPEBENCH_LANGUAGE.DAT"};
};

std::vector<std::string> NumbersOf(const ReportPage& page, const std::string& pipe)
{
    const auto row = std::ranges::find_if(page.rows, [&](const PlacedRow& each) {
        return each.fields.substr(0, each.fields.find('\t')) == pipe;
    });
    std::vector<std::string> numbers;
    for (const PlacedText& text : page.texts) {
        if (row != page.rows.end() && text.right && text.line == row->line)
            numbers.push_back(text.text);
    }
    return numbers;
}

std::string AllTexts(const ReportPage& page)
{
    std::string all;
    for (const PlacedText& text : page.texts)
        all += text.text + '\n';
    for (const PlacedParagraph& paragraph : page.paragraphs)
        all += paragraph.text + '\n';
    return all;
}

double LastLine(const ReportPage& page)
{
    double last = 0;
    for (const PlacedRow& row : page.rows)
        last = std::max(last, row.line);
    for (const PlacedParagraph& paragraph : page.paragraphs)
        last = std::max(last, paragraph.line);
    for (const PlacedBox& box : page.boxes)
        last = std::max(last, box.line + box.height);
    for (const PlacedPlot& plot : page.plots)
        last = std::max(last, plot.line + plot.height);
    for (const PlacedSketch& sketch : page.sketches)
        last = std::max(last, sketch.line + sketch.height);
    return last;
}

TEST_F(ReportTest, OnAShortLineHasThreePages)
{
    for (const int lines : {kPortrait, kLandscape}) {
        const auto pages = LayOut(Make(kGerman, SamplePipes()), lines);
        ASSERT_EQ(3U, pages.size()) << lines;
        for (std::size_t i = 0; i < pages.size(); ++i) {
            EXPECT_THAT(AllTexts(pages[i]), HasSubstr("Seite " + std::to_string(i + 1) + " / 3"));
            EXPECT_LT(LastLine(pages[i]), lines - 1.5) << i;
        }
        EXPECT_EQ(1U, pages[0].sketches.size());
        EXPECT_EQ(1U, pages[2].plots.size());
    }
}

TEST_F(ReportTest, SaysWhatIsKnownOfEachPipe)
{
    const auto pages = LayOut(Make(kGerman, SamplePipes()), kPortrait);
    EXPECT_EQ("P-103\tKupfer", pages[0].rows[4].fields);
    EXPECT_THAT(NumbersOf(pages[0], "P-103"),
                ElementsAre("18,00", "65", "59,73", testing::StartsWith("655,20")));
    EXPECT_THAT(NumbersOf(pages[0], "Summe"),
                ElementsAre("89,45", "", "1280,53", testing::StartsWith("2.764,56")));
    EXPECT_THAT(NumbersOf(pages[1], "P-103"),
                ElementsAre("5,02", "325234", "0,0145", "50,54", "5,16"));
    EXPECT_THAT(AllTexts(pages[2]), HasSubstr("Die Pumpe und Rohr P-103"));
    EXPECT_THAT(AllTexts(pages[2]), HasSubstr("Betriebspunkt: 66,85 m"));
    EXPECT_THAT(AllTexts(pages[2]), HasSubstr("P-103 (5,02 m/s)"));
    EXPECT_EQ(1, std::ranges::count(pages[1].boxes, BoxRole::BarBeyond, &PlacedBox::role));
}

TEST_F(ReportTest, ContinuesTablesOnMorePages)
{
    std::vector<Pipe> pipes;
    for (int i = 0; i < 200; ++i)
        pipes.push_back({"P-" + std::to_string(i), 1, 2, 100, 1});
    const auto pages = LayOut(Make(kEnglish, pipes), kLandscape);
    std::map<std::string, int> rows;
    std::size_t headings = 0;
    for (const ReportPage& page : pages) {
        for (const PlacedRow& row : page.rows)
            ++rows[row.fields];
        headings += AllTexts(page).find("Pipes of the line") != std::string::npos;
        EXPECT_LT(LastLine(page), kLandscape - 1.5);
    }
    for (const Pipe& pipe : pipes) {
        EXPECT_EQ(1, rows[pipe.name + "\tStainless steel"]) << pipe.name;
        EXPECT_EQ(1, rows[pipe.name]) << pipe.name;
    }
    EXPECT_EQ(static_cast<int>(headings), rows["Name\tMaterial"]) << "a head on every page";
    EXPECT_THAT(AllTexts(pages[1]), HasSubstr("Pipes of the line (continued)"));
}

TEST_F(ReportTest, EndsOnAnyPaper)
{
    for (const int lines : {-1, 0, 1, 5, 12}) {
        EXPECT_LT(LayOut(Make(kEnglish, SamplePipes()), lines).size(), 100U) << lines;
        EXPECT_LT(LayOut(Make(kEnglish, {}), lines).size(), 20U) << lines;
    }
}

TEST_F(ReportTest, TellsWhyThereIsNoPump)
{
    Localisation localisation(kModule, "PIPEBENCH_LANGUAGE.DAT");
    localisation.Use(kEnglish);
    ReportSubject subject{.name = "", .pipes = SamplePipes(), .settings = {}};
    subject.curve = Fault{IDS_CURVE_UNREADABLE, "a%s.dat"};
    const Report report = MakeReport(localisation, subject);
    EXPECT_FALSE(report.plot);
    EXPECT_THAT(report.warnings.back(), HasSubstr("The pump curve a%s.dat cannot be read"));
}

}  // namespace

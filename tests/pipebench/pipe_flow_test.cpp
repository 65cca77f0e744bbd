#include "core/flow/pipe_flow.h"

#include "core/flow/flow_entry.h"
#include "core/flow/flow_report.h"
#include "core/texts.h"
#include "ids.h"

#include <qxutility/config/startup.h>

#include <cmath>
#include <gmock/gmock.h>
#include <numbers>

using namespace pipebench;
using testing::ElementsAre;

static constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407;

static double FlowOf(double velocity, double diameter)  // m3/h from m/s and mm
{
    return velocity * std::numbers::pi / 4 * diameter * diameter / 1e6 * 3600;
}

// What a textbook prints, with the tolerance that its rounding of each figure asks for (a figure
// read off the Moody chart is good to some percent).
struct Printed {
    double value, tolerance;
};
static void ExpectNear(const Printed& printed, double value, const char* what)
{
    EXPECT_NEAR(printed.value, value, printed.tolerance) << what;
}

// F. M. White, Fluid Mechanics, 4th edition, example 6.7: oil (900 kg/m3, 1e-5 m2/s) at 0.2 m3/s
// through 500 m of cast iron pipe of 200 mm (roughness 0.26 mm). Velocity 6.4 m/s, Reynolds number
// 128,000, friction factor 0.0225 (chart), head loss 117 m.
TEST(PipeFlow, OilInCastIron)
{
    const FlowResult result = ComputeFlow({.flow = 0.2 * 3600,
                                           .diameter = 200,
                                           .length = 500,
                                           .roughness = 0.26,
                                           .density = 900,
                                           .viscosity = 9});
    ExpectNear({6.4, 0.05}, result.velocity, "velocity");
    ExpectNear({128'000, 1000}, result.reynolds, "Reynolds number");
    ExpectNear({0.0225, 0.0003}, result.friction, "friction factor");
    ExpectNear({117, 1}, result.headLoss, "head loss");
    ExpectNear({900 * 9.81 * 117 / 1000, 9}, result.pressureDrop, "pressure drop");
}

// B. R. Munson, D. F. Young, T. H. Okiishi, Fundamentals of Fluid Mechanics, example 8.5: air (1.23
// kg/m3, 1.79e-5 Pa s) at 50 m/s through 0.1 m of drawn tubing of 4 mm (roughness 0.0015 mm).
// Reynolds number 13,700; by the formula of Colebrook the friction factor is 0.0291, from the chart
// 0.028 with a pressure drop of 1.076 kPa.
TEST(PipeFlow, AirInDrawnTubing)
{
    const FlowResult result = ComputeFlow({.flow = FlowOf(50, 4),
                                           .diameter = 4,
                                           .length = 0.1,
                                           .roughness = 0.0015,
                                           .density = 1.23,
                                           .viscosity = 0.0179});
    ExpectNear({13'700, 50}, result.reynolds, "Reynolds number");
    ExpectNear({0.0291, 0.00005}, result.friction, "friction factor");
    ExpectNear({1.076 * 0.0291 / 0.028, 0.005}, result.pressureDrop, "pressure drop");
}

// Typed in US units, with the library's factors between feet and metres, psi and kPa.
static FlowResult FlowOfEntry(const FlowEntry& entry)
{
    QXUtility_SetLanguage(kEnglish);
    CLanguage language;
    const auto checked = CheckFlowEntry(language, entry, DT_ENGLISH, {});
    const auto* flowCase = std::get_if<FlowCase>(&checked);
    EXPECT_TRUE(flowCase) << entry[0];
    return ComputeFlow(flowCase ? *flowCase : FlowCase{});
}

static double Us(Quantity quantity, double metric)
{
    return ToUser(quantity, metric, DT_ENGLISH);
}

// Y. A. Cengel, J. M. Cimbala, Fluid Mechanics, 1st edition, example 8-2: water at 40 F (62.42
// lbm/ft3, 1.038e-3 lbm/ft s = 1.545 cP) at 3.0 ft/s (0.1057 gpm) through 30 ft of pipe of 0.12 in.
// Reynolds number 1803, friction factor 0.0355, head loss 14.9 ft, pressure drop 6.46 psi.
TEST(PipeFlow, WaterInLaminarFlow)
{
    const FlowResult result = FlowOfEntry({"0.10575", "0.12", "30", "0", "0", "62.42", "1.5447"});
    ExpectNear({3.0, 0.01}, Us(Quantity::Velocity, result.velocity), "velocity");
    ExpectNear({1803, 5}, result.reynolds, "Reynolds number");
    ExpectNear({0.0355, 0.0001}, result.friction, "friction factor");
    ExpectNear({14.9, 0.1}, Us(Quantity::Length, result.headLoss), "head loss");
    ExpectNear({6.46, 0.03}, Us(Quantity::Pressure, result.pressureDrop), "pressure drop");
}

// The same book, example 8-3: water at 60 F (62.36 lbm/ft3, 7.536e-4 lbm/ft s = 1.1215 cP), 0.2
// ft3/s (89.77 gpm) through 200 ft of stainless steel pipe of 2 in (roughness 0.000007 ft).
// Velocity 9.17 ft/s, Reynolds number 126,400, friction factor 0.0174, pressure drop 11.8 psi, head
// loss 27.3 ft.
TEST(PipeFlow, WaterInStainlessSteel)
{
    const FlowResult result =
        FlowOfEntry({"89.766", "2", "200", "0.000084", "0", "62.36", "1.1215"});
    ExpectNear({9.17, 0.02}, Us(Quantity::Velocity, result.velocity), "velocity");
    ExpectNear({126'400, 300}, result.reynolds, "Reynolds number");
    ExpectNear({0.0174, 0.00005}, result.friction, "friction factor");
    ExpectNear({11.8, 0.05}, Us(Quantity::Pressure, result.pressureDrop), "pressure drop");
    ExpectNear({27.3, 0.1}, Us(Quantity::Length, result.headLoss), "head loss");
}

TEST(PipeFlow, FrictionFactorSolvesItsFormula)
{
    for (const double reynolds : {2301., 4e3, 1e5, 1e8, 1e12}) {
        for (const double roughness : {0., 1e-6, 1e-3, 0.05}) {
            const double root = 1 / std::sqrt(FrictionFactor(reynolds, roughness));
            const double argument = roughness / 3.7 + 2.51 * root / reynolds;
            EXPECT_NEAR(-2 * std::log10(argument), root, 1e-12 * root) << reynolds << roughness;
        }
    }
    EXPECT_EQ(64. / 2300, FrictionFactor(2300, 0.01));
    EXPECT_EQ(0, FrictionFactor(0, 0.01));
}

TEST(FlowEntry, IsReadInTheUsersFormAndUnits)
{
    CLanguage language;
    language.SetLanguage(kGerman);
    QXUtility_SetLanguage(kGerman);
    const FlowEntry entry = {"1,5", "1", "3,28", "0,002", "0", "62,42796", "1"};
    const auto checked = CheckFlowEntry(language, entry, DT_ENGLISH, {});
    const auto* flowCase = std::get_if<FlowCase>(&checked);
    ASSERT_TRUE(flowCase);
    EXPECT_NEAR(1.5 * 0.2271247, flowCase->flow, 1e-6);
    EXPECT_EQ(25.4, flowCase->diameter);
    EXPECT_EQ(1, flowCase->length);
    EXPECT_NEAR(1000, flowCase->density, 1e-4);
}

TEST(FlowEntry, IsRefusedWithItsFirstFault)
{
    CLanguage language;
    language.SetLanguage(kGerman);
    QXUtility_SetLanguage(kGerman);
    struct Case {
        std::size_t field;
        const char* typed;
        DT_UNITS units;
        int stringId;
        const char* text;
    };
    const Case cases[] = {
        {0, "", DT_METRIC, IDS_NOT_A_NUMBER, ""},
        {0, "1.5", DT_METRIC, IDS_NOT_A_NUMBER, "1.5"},
        {0, "0", DT_METRIC, IDS_OUT_OF_RANGE, "0,001 \226 100000 m\263/h"},
        {1, "1e999", DT_METRIC, IDS_OUT_OF_RANGE, "1 \226 10000 mm"},
        {1, "0", DT_ENGLISH, IDS_OUT_OF_RANGE, "0,03937 \226 393,7 in"},
        {2, "-1", DT_METRIC, IDS_OUT_OF_RANGE, "0,01 \226 1000000 m"},
        {3, "5,1", DT_METRIC, IDS_BAD_ROUGHNESS, "5,1"},
        {5, "0", DT_METRIC, IDS_OUT_OF_RANGE, "0,01 \226 25000 kg/m\263"},
        {6, "%s%n", DT_METRIC, IDS_NOT_A_NUMBER, "%s%n"},
        {6, "nan", DT_METRIC, IDS_NOT_A_NUMBER, "nan"},
    };
    for (const Case& c : cases) {
        FlowEntry entry = {"10", "100", "10", "0", "0", "50", "1"};
        entry[c.field] = c.typed;
        const auto checked = CheckFlowEntry(language, entry, c.units, {});
        const auto* bad = std::get_if<BadFlowEntry>(&checked);
        ASSERT_TRUE(bad) << c.field << ' ' << c.typed;
        EXPECT_EQ(c.field, bad->field) << c.typed;
        EXPECT_EQ(c.stringId, bad->fault.stringId) << c.typed;
        EXPECT_EQ(c.text, bad->fault.text);
    }
}

TEST(FlowEntry, TakesTheBoundsThatItsMessageNames)
{
    QXUtility_SetLanguage(kEnglish);
    CLanguage language;
    for (const DT_UNITS units : {DT_METRIC, DT_ENGLISH}) {
        for (std::size_t i = 0; i < kFlowFields.size(); ++i) {
            FlowEntry entry = {"10", "300", "10", "0", "0", "50", "1"};
            if (kFlowFields[i].value == &FlowCase::roughness)
                continue;
            entry[i] = "1e9";
            const auto refused = CheckFlowEntry(language, entry, units, {});
            const std::string range = std::get<BadFlowEntry>(refused).fault.text;
            for (const std::size_t start : {std::size_t{0}, range.find('\226') + 2}) {
                entry[i] = range.substr(start, range.find(' ', start) - start);
                EXPECT_EQ(0U, CheckFlowEntry(language, entry, units, {}).index()) << entry[i];
            }
        }
    }
}

TEST(FlowEntry, ComesBackAfterAChangeOfUnits)
{
    CLanguage language;
    language.SetLanguage(kGerman);
    QXUtility_SetLanguage(kGerman);
    const FlowEntry entry = {"60", "100", "x", "0,045", "-12,5", "998,2", "1,002"};
    FlowCase shown;
    const FlowEntry us = ConvertEntry(language, entry, DT_METRIC, DT_ENGLISH, shown);
    EXPECT_THAT(
        us, ElementsAre("264,1721", "3,937008", "x", "0,001771654", "-41", "62,31559", "1,002"));
    EXPECT_EQ(entry, ConvertEntry(language, us, DT_ENGLISH, DT_METRIC, shown));
    EXPECT_EQ(60, shown.flow);
}

TEST(FlowReport, ShowsValuesInTheUsersFormAndUnits)
{
    CLanguage language;
    language.SetLanguage(kGerman);
    const FlowResult result = {2.12207, 211402.3, 0.015604, 11.4834, 1.17308};
    EXPECT_THAT(ResultTexts(language, result, DT_METRIC),
                ElementsAre("2,122 m/s", "211402", "0,0156", "11,48 kPa", "1,173 m"));
    EXPECT_THAT(ResultTexts(language, result, DT_ENGLISH),
                ElementsAre("6,96 ft/s", "211402", "0,0156", "1,665 psi", "3,848 ft"));
}

#include "core/flow/pump_curve.h"

#include "core/flow/curve_plot.h"
#include "ids.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

using namespace pipebench;
using testing::HasSubstr;

class PumpCurveFile : public testing::Test {
  protected:
    std::variant<PumpCurve, Fault> Read(std::string_view bytes) const
    {
        return ReadPumpCurve(m_folder.Write("pump.dat", bytes));
    }

    qx::test::TemporaryFolder m_folder;
};

TEST_F(PumpCurveFile, HoldsPointsInAnyOrder)
{
    const auto read = Read("name\tm\tm3/h\r\nb\t8\t20\r\n\r\na\t10\t0\r\nc\t3\t40\r\n");
    const auto* curve = std::get_if<PumpCurve>(&read);
    ASSERT_TRUE(curve);
    ASSERT_EQ(3U, curve->points.size());
    EXPECT_EQ(10, curve->points.front().head) << "the point at no flow counts";
    EXPECT_EQ(9, curve->heads.GetY(10));
    EXPECT_EQ(5.5, curve->heads.GetY(30));
}

TEST_F(PumpCurveFile, MayBeInUsUnits)
{
    const auto read = Read("gpm\tft\r\n0\t32.8\r\n100\t16.4\r\n");
    const auto* curve = std::get_if<PumpCurve>(&read);
    ASSERT_TRUE(curve);
    EXPECT_DOUBLE_EQ(10, curve->points[0].head);
    EXPECT_NEAR(22.71247, curve->points[1].flow, 1e-5);
}

TEST_F(PumpCurveFile, IsRefusedWithAClearMessage)
{
    using namespace std::string_literals;
    struct Case {
        std::string bytes;
        int stringId;
        const char* quoted;
    };
    std::string junk;
    for (int i = 0; i < 60'000; ++i)
        junk += static_cast<char>(i * 7919 >> 3);
    const Case cases[] = {
        {"", IDS_CURVE_COLUMNS, "pump.dat"},
        {junk, IDS_CURVE_COLUMNS, "pump.dat"},
        {"\0\0\0\0"s, IDS_CURVE_COLUMNS, "pump.dat"},
        {"flow\thead\r\n1\t2\r\n", IDS_CURVE_COLUMNS, "pump.dat"},
        {"m3/h\r\n1\r\n", IDS_CURVE_COLUMNS, "pump.dat"},
        {"m3/h\tm\n0\t10\n20\t5\n", IDS_CURVE_COLUMNS, "pump.dat"},
        {"m3/h\tm\r\n", IDS_CURVE_SHORT, "pump.dat"},
        {"m3/h\tm\r\n5\t10\r\n", IDS_CURVE_SHORT, "pump.dat"},
        {"m3/h\tm\r\n5\t10\r\n5\t11\r\n", IDS_CURVE_TWICE, "pump.dat"},
        {"m3/h\tm\r\n0\t10\r\n-0\t11\r\n", IDS_CURVE_TWICE, "pump.dat"},
        {"m3/h\tm\r\n0\t10\r\n20\r\n", IDS_CURVE_NUMBER, "20 | "},
        {"m3/h\tm\r\n0\t10\r\n\t5\r\n", IDS_CURVE_NUMBER, " | 5"},
        {"m3/h\tm\r\n0\t1,5\r\n20\t1\r\n", IDS_CURVE_NUMBER, "0 | 1,5"},
        {"m3/h\tm\r\n0\tnan\r\n20\t1\r\n", IDS_CURVE_NUMBER, "0 | nan"},
        {"m3/h\tm\r\n0\t1e999\r\n20\t1\r\n", IDS_CURVE_NUMBER, "0 | 1e999"},
        {"m3/h\tm\r\n0\t%n%s\r\n", IDS_CURVE_NUMBER, "0 | %n%s"},
        {"m3/h\tm\r\n0\t1\0012\r\n", IDS_CURVE_NUMBER, "0 | 1?2"},
        {"m3/h\tm\r\n0\t" + std::string(4000, '9') + "x\r\n", IDS_CURVE_NUMBER, "99..."},
        {"m3/h\tm\r\n-1\t10\r\n20\t1\r\n", IDS_CURVE_RANGE, "-1 | 10"},
        {"m3/h\tm\r\n0\t10\r\n20\t-1\r\n", IDS_CURVE_RANGE, "20 | -1"},
        {"m3/h\tm\r\n0\t10\r\n1e300\t1\r\n", IDS_CURVE_RANGE, "1e300 | 1"},
        {"m3/h\tm\r\n" + std::string(1'000'000, '\n'), IDS_CURVE_LARGE, "pump.dat"},
    };
    for (const Case& c : cases) {
        const auto read = Read(c.bytes);
        const auto* fault = std::get_if<Fault>(&read);
        ASSERT_TRUE(fault) << c.bytes.substr(0, 80);
        EXPECT_EQ(c.stringId, fault->stringId) << c.bytes.substr(0, 80);
        EXPECT_THAT(fault->text, HasSubstr(c.quoted));
        EXPECT_LT(fault->text.size(), 100U);
    }
}

TEST_F(PumpCurveFile, MustBeAFile)
{
    for (const std::string& path : {m_folder.Path("missing.dat"), m_folder.Path(), std::string()}) {
        const auto read = ReadPumpCurve(path);
        const auto* fault = std::get_if<Fault>(&read);
        ASSERT_TRUE(fault) << path;
        EXPECT_EQ(IDS_CURVE_UNREADABLE, fault->stringId) << path;
    }
}

static PumpCurve Curve(const std::vector<CurvePoint>& points)
{
    std::vector<double> flows, heads;
    for (const CurvePoint& point : points) {
        flows.push_back(point.flow);
        heads.push_back(point.head);
    }
    return {points, CPointArray(static_cast<int>(points.size()), flows.data(), heads.data())};
}

// In laminar flow the loss is a straight line, and so is a pump curve of two points.
TEST(OperatingPointOfPump, IsWhereTheLinesCross)
{
    FlowCase flowCase = {.diameter = 50, .length = 40, .lift = 3, .density = 900, .viscosity = 900};
    const double slope = (SystemHead(flowCase, 1) - flowCase.lift) / 1;
    const PumpCurve curve = Curve({{0, 20}, {10, 5}});
    const auto point = OperatingPoint(curve, flowCase);
    ASSERT_TRUE(point);
    EXPECT_NEAR((20 - 3) / (1.5 + slope), point->flow, 1e-9);
    EXPECT_NEAR(SystemHead(flowCase, point->flow), point->head, 1e-9);
}

TEST(OperatingPointOfPump, IsOnlyFoundWithinTheCurve)
{
    const FlowCase water = {.diameter = 100, .length = 10, .density = 998, .viscosity = 1};
    FlowCase high = water;
    high.lift = 21;
    const PumpCurve curve = Curve({{5, 20}, {50, 5}});
    EXPECT_FALSE(OperatingPoint(curve, water)) << "asks for less than the curve ends with";
    EXPECT_FALSE(OperatingPoint(curve, high)) << "asks for more than the curve begins with";
}

TEST(CurvePlot, HasRoundSteps)
{
    struct Case {
        double highest, top, step;
    };
    const Case cases[] = {{100, 100, 20}, {24.4, 25, 5},        {13.7, 15, 5}, {440.3, 500, 100},
                          {1, 1, 0.2},    {0.031, 0.035, 0.01}, {0, 1, 0.25}};
    for (const Case& c : cases) {
        const Axis axis = MakeAxis(c.highest);
        EXPECT_DOUBLE_EQ(c.step, axis.step) << c.highest;
        EXPECT_GE(axis.top, c.highest);
        EXPECT_LE(axis.top / axis.step, 6.5) << c.highest;
        EXPECT_GE(axis.top / axis.step, 2.5) << c.highest;
    }
}

TEST(CurvePlot, StandsInItsFrame)
{
    const FlowCase flowCase = {
        .diameter = 50, .length = 40, .lift = 3, .density = 900, .viscosity = 900};
    const PumpCurve curve = Curve({{0, 20}, {10, 5}});
    const Area frame{10, 20, 310, 220};
    for (const DT_UNITS units : {DT_METRIC, DT_ENGLISH}) {
        const CurvePlot plot = MakePlot(curve, flowCase, units);
        const Pixel origin = PlaceIn(frame, plot, {0, 0});
        EXPECT_EQ(frame.left, origin.x);
        EXPECT_EQ(frame.bottom, origin.y);
        for (const CurvePoint& point : plot.pump) {
            const Pixel pixel = PlaceIn(frame, plot, point);
            EXPECT_GE(frame.right, pixel.x);
            EXPECT_LE(frame.top, pixel.y);
        }
        ASSERT_TRUE(plot.operating);
    }
}

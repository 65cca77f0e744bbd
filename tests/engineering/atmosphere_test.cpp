#include "support/temporary_folder.h"

#include <qxutility/engineering/atmosphere.h>

#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <string>
#include <vector>

using testing::ElementsAre;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

const auto kSeaLevel = {14.7, 101.4, 1.014, 407.6, 29.93, 10357.0, 760.5};
const char kSeaLevelText[] = "14.7 101.4 1.014 407.6 29.93 10357 760.5";

std::vector<double> Fields(const CAtmPressure& pressure)
{
    std::vector<double> fields;
    for (int unit = DT_PSI; unit <= DT_MMHG; ++unit)
        fields.push_back(pressure.Value(DT_PUNITS{unit}));
    return fields;
}

CAtmPressure Set(double value, DT_PUNITS units)
{
    CAtmPressure pressure;
    pressure.SetValue(value, units);
    return pressure;
}

class AtmosphereInINI : public testing::Test {
  protected:
    void SetEntry(const std::string& value)
    {
        m_folder.Write("atm.ini", "[ID]\r\nAtmosphere=" + value + "\r\nOther=kept\r\n");
    }
    std::string File() const { return m_folder.Read("atm.ini"); }
    const char* Path() const { return m_path.c_str(); }

    static std::string Written(const std::string& value)
    {
        return "[ID]\r\nAtmosphere=" + value + "\r\nOther=kept\r\n";
    }

  private:
    qx::test::TemporaryFolder m_folder;
    std::string m_path = m_folder.Path("atm.ini");
};

}  // namespace

TEST(Atmosphere, SnapsToTheExactStandardSet)
{
    EXPECT_THAT(Fields(CAtmPressure()), testing::ElementsAreArray(kSeaLevel));
    static constexpr struct {
        double value;
        DT_PUNITS units;
    } kCases[] = {{101.4, DT_KPA},      {101.4009, DT_KPA}, {14.7000001, DT_PSI}, {1.014, DT_BAR},
                  {10357.05, DT_MMH2O}, {760.5, DT_MMHG},   {14.7, DT_PA}};
    for (const auto& each : kCases)
        EXPECT_THAT(Fields(Set(each.value, each.units)), testing::ElementsAreArray(kSeaLevel))
            << each.value << " in unit " << each.units;
}

TEST(Atmosphere, RoundsEveryConversionToFourDigits)
{
    EXPECT_THAT(Fields(Set(100, DT_KPA)), ElementsAre(14.5, 100, 1, 402.1, 29.53, 10214, 750));
    EXPECT_THAT(Fields(Set(12.34567, DT_PSI)),
                ElementsAre(12.35, 85.14, 0.8514, 342.3, 25.14, 8695, 638.5));
    EXPECT_THAT(Fields(Set(0, DT_BAR)), testing::Each(0));
    EXPECT_THAT(Fields(Set(5, DT_PUNITS{8})), testing::Each(0));
    EXPECT_EQ(14.5, Set(100000, DT_PA).Value(DT_PSI));
    EXPECT_TRUE(std::isnan(Set(kNan, DT_BAR).Value(DT_PSI)));
}

TEST(Atmosphere, TakesUnknownUnitsForPsi)
{
    for (int unit : {-1, 7, 8, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(14.7, CAtmPressure::SeaLevel(DT_PUNITS{unit})) << unit;
        EXPECT_EQ(14.5, Set(100, DT_KPA).Value(DT_PUNITS{unit})) << unit;
    }
}

TEST(Atmosphere, EqualsWithinTheToleranceOfTheFirst)
{
    EXPECT_TRUE(CAtmPressure() == Set(101.4, DT_KPA));
    EXPECT_FALSE(CAtmPressure() == Set(101.5, DT_KPA));
    EXPECT_TRUE(Set(99, DT_KPA) == Set(99.0001, DT_KPA));  // the same four digits
    EXPECT_FALSE(Set(kNan, DT_KPA) == Set(kNan, DT_KPA));
}

TEST_F(AtmosphereInINI, IsTakenAsItStandsWithSevenNumbers)
{
    const std::string odd = " 1 2.5\t-3 4e+001 .5 6.  7.123456789 eight";
    SetEntry(odd);
    CAtmPressure pressure;
    pressure.GetFromINI(Path());
    EXPECT_THAT(Fields(pressure), ElementsAre(1, 2.5, -3, 40, 0.5, 6, 7.123456789));
    EXPECT_EQ(Written(odd), File());
}

TEST_F(AtmosphereInINI, IsRepairedAndRewritten)
{
    const std::string set979 = "14.2 97.9 0.979 393.7 28.91 10000 734.3";
    const struct {
        std::string entry, text;
    } kCases[] = {
        {"14.2 97.9", set979},
        {"1 97.9 2 3 4 5 6e", set979},
        {"1 101.4009", kSeaLevelText},
        {"abc", kSeaLevelText},
        {"14,2 97,9", kSeaLevelText},
        {". 5", kSeaLevelText},
        // Cut after 99 characters, in front of the seventh number.
        {"1 97.9 2 3 4 5" + std::string(90, ' ') + "6", set979},
    };
    for (const auto& each : kCases) {
        SetEntry(each.entry);
        CAtmPressure pressure;
        pressure.GetFromINI(Path());
        EXPECT_EQ(Written(each.text), File()) << each.entry;
    }
}

TEST_F(AtmosphereInINI, IsCreatedFromTheCurrentValue)
{
    for (const char* entry : {"", "\"\""}) {
        SetEntry(entry);
        CAtmPressure pressure = Set(100, DT_KPA);
        pressure.GetFromINI(Path());
        EXPECT_EQ(Written("14.5 100 1 402.1 29.53 10214 750"), File());
        EXPECT_EQ(14.5, pressure.Value(DT_PSI));
    }
}

TEST_F(AtmosphereInINI, IsWrittenToANewFileWithThreeDigitExponents)
{
    CAtmPressure pressure;
    pressure.SetToINI(2e9, DT_KPA, Path());
    EXPECT_NE(std::string::npos, File().find("Atmosphere=2.9e+008 2e+009 2e+007 ")) << File();
    CAtmPressure read;
    read.GetFromINI(Path());
    EXPECT_TRUE(pressure == read);
    pressure.SetToINI(1234, DT_KPA, Path());
    EXPECT_NE(std::string::npos, File().find("Atmosphere=178.9 1234 12.34 4962 364.4 126045 9255"))
        << "six digits: " << File();
}

TEST_F(AtmosphereInINI, SurvivesAFileThatCannotBeWritten)
{
    CAtmPressure pressure;
    pressure.SetToINI(100, DT_KPA, (Path() + std::string("/no/such/folder.ini")).c_str());
    EXPECT_EQ(14.5, pressure.Value(DT_PSI));
}

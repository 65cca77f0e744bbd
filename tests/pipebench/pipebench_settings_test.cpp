#include "core/settings.h"
#include "ids.h"
#include "support/temporary_folder.h"

#include <qxutility/config/startup.h>

#include <gtest/gtest.h>

using namespace pipebench;

class SettingsFile : public testing::Test {
  protected:
    Settings Read(std::string_view bytes) const
    {
        return ReadSettings(INIFile(m_folder.Write("settings.ini", bytes).c_str()));
    }

    qx::test::TemporaryFolder m_folder;
};

static void ExpectSame(const Settings& expected, const Settings& settings)
{
    EXPECT_EQ(expected.units, settings.units);
    EXPECT_EQ(expected.decimals, settings.decimals);
    EXPECT_EQ(expected.view, settings.view);
    EXPECT_EQ(expected.curveFile, settings.curveFile);
    for (const FlowField& field : kFlowFields) {
        if (field.key) {
            EXPECT_EQ(expected.flow.*field.value, settings.flow.*field.value) << field.key;
        }
    }
}

TEST_F(SettingsFile, GivesBackWhatWasStored)
{
    Settings settings;
    settings.units = DT_ENGLISH;
    settings.decimals = 0;
    settings.view.tree = false;
    settings.view.treeWidth = 300;
    settings.view.resultsHeight = 61;
    settings.flow.flow = 0.1 + 0.2;
    settings.flow.lift = -1.0 / 3;
    settings.flow.viscosity = 1.5;
    for (const char* curve : {"C:\\Curves\\a=b [1].dat", ""}) {
        settings.curveFile = curve;
        std::string bytes;
        for (const auto& [section, key, value] : ToIniEntries(settings))
            bytes += "[" + section + "]\r\n" + key + "=" + value + "\r\n";
        ExpectSame(settings, Read(bytes));
    }
}

TEST_F(SettingsFile, LeavesOutWhatIsNotPossible)
{
    for (const char* bytes : {
             "",
             "junk",
             "[View\r\nUnits=US",
             "[View]\r\nUnits=furlongs\r\nDecimals=4\r\n[Pipe flow]\r\nFlow=-1\r\nDensity=0\r\n",
             "[View]\r\nTree width=-5\r\nResults height=1000000\r\nSketch=\r\n",
             "[View]\r\nDecimals=-1\r\n[Pipe flow]\r\nViscosity=1e300\r\nFlow=nan\r\n",
             "[View]\r\nDecimals=\r\n[Pipe flow]\r\nLift=\r\nFlow=twelve\r\nPump curve=\r\n",
         }) {
        SCOPED_TRACE(bytes);
        ExpectSame(Settings(), Read(bytes));
    }
}

TEST(Decimals, AreWholeNumbersUpToThree)
{
    QXUtility_SetLanguage(0x0407);
    struct Case {
        const char* typed;
        int stringId;  // 0: taken
    };
    const Case cases[] = {{"0", 0},
                          {" 3 ", 0},
                          {"2,0", 0},
                          {"4", IDS_BAD_DECIMALS},
                          {"-1", IDS_BAD_DECIMALS},
                          {"1,5", IDS_BAD_DECIMALS},
                          {"1e99", IDS_BAD_DECIMALS},
                          {"1.5", IDS_NOT_A_NUMBER},
                          {"", IDS_NOT_A_NUMBER}};
    for (const Case& c : cases) {
        const auto checked = CheckDecimals(c.typed);
        const auto* fault = std::get_if<Fault>(&checked);
        EXPECT_EQ(c.stringId, fault ? fault->stringId : 0) << c.typed;
    }
}

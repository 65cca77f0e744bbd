#include "config/label.h"

#include "config/list_items.h"
#include "doubles/locale_double.h"
#include "support/language_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tuple>

using qx::test::kGerman;
using testing::ElementsAre;

namespace {

struct GermanInstalled : qx::test::LocaleDouble {
    GermanInstalled() { installed[kGerman] = {}; }
};

class LabelTest : public testing::Test {
  protected:
    GermanInstalled m_locales;
    qx::test::TestLanguage m_german{
        "IDS\t09-01\t07-01\r\n"
        "1\tOpen\t\326&ffnen\r\n"
        "2\tExit\tBeenden\r\n"
        "3\tName:\tName:\r\n"
        "4\tOpen\tnever\r\n"
        "5\tSave...\tnever\r\n"
        "6\tSave\tSichern",
        kGerman};
};

}  // namespace

TEST_F(LabelTest, IsTakenApartAndPutTogether)
{
    const struct {
        const char *text, *wording;
        bool dots;
        const char *accelerator, *joined;
    } cases[] = {
        {"&Open...\tCtrl+O", "Open", true, "\tCtrl+O", "Open...\tCtrl+O"},
        {"E&xit", "Exit", false, "", "Exit"},
        {"Save && E&xit", "Save & E&xit", false, "", "Save & E&xit"},
        {"Wait... please", "Wait... please", false, "", "Wait... please"},
        {"Four....", "Four.", true, "", "Four...."},
        {"...", "", true, "", "..."},
        {"\tF1...\tF2", "", false, "\tF1...\tF2", "\tF1...\tF2"},
        {"", "", false, "", ""},
    };
    for (const auto& each : cases) {
        const qx::Label label = qx::SplitMenuLabel(each.text);
        EXPECT_EQ(each.wording, label.wording) << each.text;
        EXPECT_EQ(each.dots, label.dots) << each.text;
        EXPECT_EQ(each.accelerator, label.accelerator) << each.text;
        EXPECT_EQ(each.joined, qx::JoinLabel(label.wording, label.dots, label.accelerator));
    }
    EXPECT_EQ("Tab\there", qx::SplitControlLabel("&Tab\there...").wording);
}

TEST_F(LabelTest, KeepsDotsOnceAMenuLevelHasThem)
{
    qx::MenuLevel level(m_german.language, 0);
    EXPECT_EQ("Beenden\tAlt+F4", level.Translate("E&xit\tAlt+F4"));
    EXPECT_EQ("\326&ffnen...\tCtrl+O", level.Translate("&Open...\tCtrl+O"));
    EXPECT_EQ("Beenden...", level.Translate("E&xit"));
    EXPECT_EQ("Unknown...\tF9", level.Translate("&Unknown\tF9"));
    qx::MenuLevel submenu(m_german.language, 0);
    EXPECT_EQ("Beenden", submenu.Translate("E&xit"));
}

TEST_F(LabelTest, TranslatesControlsAndCaptions)
{
    EXPECT_EQ("Sichern...", qx::TranslateControl(m_german.language, "&Save..."));
    EXPECT_EQ("Beenden", qx::TranslateControl(m_german.language, "E&xit"));
    EXPECT_EQ("Beenden:", qx::TranslateControl(m_german.language, "E&xit:"));
    EXPECT_EQ("never", qx::TranslateCaption(m_german.language, "Save..."));
    EXPECT_EQ(std::string(254, 'x'),
              qx::TranslateControl(m_german.language, std::string(300, 'x')));
}

TEST_F(LabelTest, LeavesTheDataOfTheUserAlone)
{
    for (const char* data : {"Edit", "ComboBox", "ListBox"})
        EXPECT_FALSE(qx::ShowsLabel(data)) << data;
    for (const char* label : {"Static", "Button", "edit", "ComboBoxEx32", ""})
        EXPECT_TRUE(qx::ShowsLabel(label)) << label;
}

TEST(ListItems, AreTheValuesOfAQueryResult)
{
    EXPECT_THAT(qx::ListItems("a\tb\tc\t", '\t'), ElementsAre("a", "b", "c"));
    EXPECT_THAT(qx::ListItems("a||b", '|'), ElementsAre("a", "", "b"));
    EXPECT_THAT(qx::ListItems("\t", '\t'), ElementsAre(""));
    EXPECT_THAT(qx::ListItems("", '\t'), ElementsAre());
    const qx::ListStorage storage = qx::StorageFor("a\tbc\t", '\t');
    EXPECT_EQ(std::tuple(2, 7U), std::tuple(storage.items, storage.bytes));
}

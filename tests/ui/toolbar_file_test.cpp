#include "ui/toolbar_file.h"

#include "support/toolbar_text.h"

#include <qxutility/formats/xml_document.h>

#include <gtest/gtest.h>
#include <random>

using namespace qx;
using qx::test::Written;

namespace {

std::vector<ToolbarRecord> Read(const std::string& xml)
{
    XMLDocument document;
    document.UseData(xml.data(), static_cast<int>(xml.size()));
    return ReadToolbars(document);
}

TEST(ToolbarFile, TextThatIsWritten)
{
    const ToolbarRecord buttons{
        7, 1, "a<b", 1, 0, -6, 29, 0, {{2, 40, 8, 0}, {9, 9, 0, 1}, {0, 1, 4, 10}}};
    const ToolbarRecord child{8, 0, "", 0, 5, 1, 3, 9, {}};
    EXPECT_EQ(
        "<Toolbar ID=\"7\" Editable=\"1\" Name=\"a&lt;b\" Hidden=\"1\" UnDocked=\"0\" X=\"-6\" "
        "Y=\"29\">\r\n"
        "  <Button>\r\n    <iBitmap>2</iBitmap>\r\n    <idCommand>40</idCommand>\r\n"
        "  </Button>\r\n"
        "  <Button>\r\n    <Style>separator</Style>\r\n  </Button>\r\n"
        "  <Button>\r\n    <iBitmap>0</iBitmap>\r\n    <idCommand>1</idCommand>\r\n"
        "    <Style>drop&amp;toggle</Style>\r\n  </Button>\r\n"
        "</Toolbar>\r\n"
        "<Toolbar ID=\"8\" Editable=\"0\" Name=\"\" Hidden=\"0\" UnDocked=\"1\" X=\"1\" Y=\"3\" "
        "HasChild=\"1\"></Toolbar>\r\n",
        Written({buttons, ToolbarRecord{}, child}));
}

TEST(ToolbarFile, ButtonsAreReadWithTheirOddities)
{
    const std::pair<const char*, ToolbarButton> cases[] = {
        {"<b></b>", {}},
        {"<b><iBitmap>0x1F</iBitmap><idCommand>010</idCommand></b>", {31, 8, 0, 0}},
        {"<b><iBitmap>-3x</iBitmap><idCommand>99999999999</idCommand></b>", {-3, INT32_MAX, 0, 0}},
        {"<b state=\"hidden\"></b>", {}},
        {"<b state=\"visible\"></b>", {0, 0, 8, 0}},
        {"<b state=\"\"></b>", {0, 0, 8, 0}},
        {"<b state=\"Hidden\"></b>", {0, 0, 8, 0}},
        {"<b><Style>dropdown</Style></b>", {0, 0, 0, 8}},
        {"<b><Style>drop&amp;toggle</Style></b>", {0, 0, 0, 10}},
        {"<b><Style>toggle</Style></b>", {0, 0, 0, 2}},
        {"<b><Style>Toggle</Style></b>", {}},
        {"<b state=\"x\"><Style>separator</Style><idCommand>5</idCommand></b>", {0, 0, 0, 1}},
        {"<b><Style>seperator</Style><iBitmap>5</iBitmap></b>", {0, 0, 0, 1}},
    };
    for (const auto& [xml, button] : cases) {
        const auto bars = Read("<t>" + std::string(xml) + "</t>");
        ASSERT_EQ(1U, bars.size()) << xml;
        ASSERT_EQ(1U, bars[0].buttons.size()) << xml;
        EXPECT_EQ(button, bars[0].buttons[0]) << xml;
    }
}

TEST(ToolbarFile, BarsAreReadWithTheirDefaults)
{
    const auto bars = Read("<a></a><Hidden Hidden=\"0\" HasChild=\"1\"><b></b></Hidden>");
    ASSERT_EQ(2U, bars.size());
    EXPECT_EQ((ToolbarRecord{0, 0, "", 1, 0, 0, 0, 0, {}}), bars[0]);
    EXPECT_EQ((ToolbarRecord{0, 0, "", 0, 0, 0, 0, 1, {}}), bars[1]);
}

TEST(ToolbarFile, WhatIsTooMuchIsCut)
{
    std::string button = "<b></b>", bar = "<t X=\"99999999999\" Y=\"-40000\">", file;
    for (int i = 0; i < 200; ++i)
        bar += button;
    bar += "</t>";
    for (int i = 0; i < 200; ++i)
        file += bar;
    const auto bars = Read(file);
    ASSERT_EQ(128U, bars.size());
    EXPECT_EQ(128U, bars[127].buttons.size());
    EXPECT_EQ(kFarthest, bars[0].x);
    EXPECT_EQ(-kFarthest, bars[0].y);
    for (const std::size_t length : {62U, 63U, 64U, 65U, 1'000'000U}) {
        const std::string text(length, 'n');
        const auto named = Read("<t Name=\"" + text + "\"><b state=\"" + text + "\"><Style>" +
                                text + "</Style></b></t>");
        EXPECT_EQ(text.substr(0, 63), named[0].name) << length;
        EXPECT_EQ((ToolbarButton{0, 0, 8, 0}), named[0].buttons[0]) << length;
    }
}

ToolbarRecord RandomBar(std::mt19937& random)
{
    const auto upTo = [&](int n) { return static_cast<int>(random() % (n + 1U)); };
    ToolbarRecord bar{static_cast<int>(random()), upTo(1),           "",      upTo(1), upTo(1),
                      upTo(9999) - 5000,          upTo(9999) - 5000, upTo(1), {}};
    for (int i = upTo(63); i > 0; --i)
        bar.name += static_cast<char>(32 + upTo(223));
    for (int i = bar.hasChild ? 0 : 1 + upTo(127); i > 0; --i) {
        const std::uint8_t styles[] = {0, 1, 2, 8, 10};
        ToolbarButton button{0, 0, 0, styles[upTo(4)]};
        if (!button.IsSeparator())
            button.image = static_cast<int>(random()), button.command = static_cast<int>(random());
        bar.buttons.push_back(button);
    }
    return bar;
}

TEST(ToolbarFile, WhatIsSavedComesBack)
{
    for (unsigned seed = 0; seed < 300; ++seed) {
        std::mt19937 random(seed);
        std::vector<ToolbarRecord> bars(random() % 20);
        for (ToolbarRecord& bar : bars)
            bar = RandomBar(random);
        EXPECT_EQ(bars, Read(Written(bars))) << seed;
    }
}

TEST(ToolbarFile, EveryBarBehindAFloatingOneFloats)
{
    const std::vector<ToolbarButton> one(1);
    const std::vector<ToolbarRecord> bars = {
        {1, 0, "", 1, 0, 0, 0, 0, one}, {2, 0, "", 1, 1, 0, 0, 1, {}},
        {3, 0, "", 1, 0, 0, 0, 0, one}, {4, 0, "", 1, 1, 0, 0, 0, {}},
        {5, 0, "", 1, 0, 0, 0, 0, one},
    };
    const auto steps = PlanLoading(bars);
    ASSERT_EQ(3U, steps.size());
    EXPECT_EQ(LoadStep::Insert, steps[0].kind);
    EXPECT_EQ(LoadStep::Host, steps[1].kind);
    EXPECT_EQ(LoadStep::Float, steps[2].kind);
}

TEST(ToolbarCatalogue, LastOfACommandIsFound)
{
    const std::string xml =
        "<b><idCommand>5</idCommand></b><b><Style>separator</Style></b>"
        "<b><idCommand>5</idCommand><iBitmap>1</iBitmap></b>";
    XMLDocument document;
    document.UseData(xml.data(), static_cast<int>(xml.size()));
    const ButtonCatalogue catalogue = ReadCatalogue(document);
    EXPECT_EQ(&catalogue[2], FindCommand(catalogue, 5));
    EXPECT_EQ(&catalogue[127], FindCommand(catalogue, 0));
    EXPECT_EQ(nullptr, FindCommand(catalogue, 6));
    EXPECT_EQ(2, CountImages(catalogue));
}

}  // namespace

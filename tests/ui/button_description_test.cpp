#include "ui/button_description.h"

#include <qxutility/formats/xml_document.h>

#include <gtest/gtest.h>

using namespace qx;

namespace {

ButtonDescription Read(const std::string& xml)
{
    XMLDocument document;
    document.UseData(xml.data(), static_cast<int>(xml.size()));
    XMLElement* button = document.FirstElement();
    return button ? ReadButton(*button) : ButtonDescription{};
}

TEST(ButtonXml, NumbersOfAnyKind)
{
    const std::pair<const char*, int> cases[] = {
        {"", 0},       {"abc", 0},
        {"12abc", 12}, {" 7", 7},
        {"-5", -5},    {"99999999999999999999", INT32_MAX},
        {"0x10", 0},   {"-99999999999999999999", INT32_MIN},
    };
    for (const auto& [text, value] : cases) {
        const std::string t = text;
        const ButtonDescription button =
            Read("<b x=\"" + t + "\"><command>" + t.substr(0, 19) + "</command></b>");
        EXPECT_EQ(value, button.area.x) << t;
        EXPECT_EQ(value, button.command) << t;
        EXPECT_EQ(0, button.area.width) << t;
    }
    const ButtonDescription placed =
        Read("<b x=\"10\" y=\"-20\" width=\"300\" height=\"40\"><link>a &amp; b.txt</link></b>");
    EXPECT_EQ(-20, placed.area.y);
    EXPECT_EQ(300, placed.area.width);
    EXPECT_EQ(40, placed.area.height);
    EXPECT_EQ("a & b.txt", placed.link);
}

TEST(ButtonXml, PicturesOfTheStates)
{
    const ButtonDescription button = Read(
        "<b><rollover WindowColor=\"1\"><resource>7</resource></rollover>"
        "<standard ButtonColor=\"1\"><filename>a.bmp</filename></standard></b>");
    const auto& [standard, pushed, rollover] = button.pictures;
    ASSERT_TRUE(standard && rollover);
    EXPECT_FALSE(pushed);
    EXPECT_EQ("a.bmp", standard->file);
    EXPECT_EQ(0, standard->resource);
    EXPECT_TRUE(standard->buttonColors);
    EXPECT_FALSE(standard->windowColor);
    EXPECT_EQ("", rollover->file);
    EXPECT_EQ(7, rollover->resource);
    EXPECT_FALSE(rollover->buttonColors);
    EXPECT_TRUE(rollover->windowColor);
}

TEST(ButtonXml, QuickImageWithItsWishes)
{
    const ButtonDescription button = Read(
        "<b><quickimage border=\"2\"><icon size=\"SMALL\" x=\"3\">12</icon>"
        "<text size=\"9\" x=\"40\" y=\"99\" align=\"Right\">Start</text></quickimage></b>");
    ASSERT_TRUE(button.quickImage && button.quickImage->icon && button.quickImage->caption);
    const QuickIcon& icon = *button.quickImage->icon;
    const QuickCaption& caption = *button.quickImage->caption;
    EXPECT_TRUE(button.quickImage->border);
    EXPECT_TRUE(icon.isSmall);
    EXPECT_EQ(3, icon.x);
    EXPECT_EQ(std::nullopt, icon.y);
    EXPECT_EQ("12", icon.source);
    EXPECT_EQ("Start", caption.text);
    EXPECT_EQ(9, caption.fontHeight);
    EXPECT_EQ(40, caption.left);
    EXPECT_EQ(CaptionAlign::Right, caption.align);
}

TEST(ButtonXml, QuickImageWithoutWishes)
{
    const auto image =
        Read(
            "<b><quickimage><icon size=\"big\">a</icon><text align=\"middle\">T</text>"
            "</quickimage></b>")
            .quickImage;
    ASSERT_TRUE(image && image->icon && image->caption);
    EXPECT_FALSE(image->border);
    EXPECT_FALSE(image->icon->isSmall);
    EXPECT_EQ(std::nullopt, image->icon->x);
    EXPECT_EQ(18, image->caption->fontHeight);
    EXPECT_EQ(std::nullopt, image->caption->left);
    EXPECT_EQ(std::nullopt, image->caption->align);
    const auto bare = Read("<b><quickimage> </quickimage></b>").quickImage;
    ASSERT_TRUE(bare);
    EXPECT_FALSE(bare->icon || bare->caption);
}

TEST(ButtonXml, LongTextsAreCut)
{
    for (const std::size_t length : {79U, 80U, 81U, 259U, 260U, 100'000U}) {
        const std::string text(length, 'a');
        const ButtonDescription button =
            Read("<b x=\"" + text + "\"><link>" + text + "</link><command>" + text +
                 "</command><standard><filename>" + text + "</filename></standard><quickimage>" +
                 "<icon size=\"" + text + "\">" + text + "</icon><text align=\"" + text + "\">" +
                 text + "</text></quickimage></b>");
        const std::string cut = text.substr(0, 259);
        EXPECT_EQ(cut, button.link) << length;
        EXPECT_EQ(cut, button.pictures[0]->file) << length;
        EXPECT_EQ(cut, button.quickImage->icon->source) << length;
        EXPECT_EQ(cut, button.quickImage->caption->text) << length;
        EXPECT_EQ(0, button.area.x) << length;
    }
}

TEST(ButtonXml, DamagedTextsAreRead)
{
    const std::string whole =
        "<b x=\"1\" y=\"2\"><standard ButtonColor=\"1\"><filename>a</filename></standard>"
        "<quickimage border=\"1\"><icon x=\"1\">&amp;</icon><text>T</text></quickimage></b>";
    for (std::size_t i = 0; i < whole.size(); ++i) {
        Read(whole.substr(0, i));
        Read(whole.substr(i));
        std::string without = whole;
        Read(without.erase(i, 1));
    }
}

// ---- Quick images

TEST(QuickImage, Placement)
{
    const QuickIcon icon, iconAt{"", false, 1, -2};
    const QuickCaption caption, captionAt{"", 18, 77, CaptionAlign::Right};
    const QuickCaption captionCentred{"", 18, {}, CaptionAlign::Center};
    struct {
        const char* what;
        QuickImage image;
        int x, y, left;
        CaptionAlign align;
    } const cases[] = {
        {"both", {false, icon, caption}, 8, 9, 50, CaptionAlign::Left},
        {"icon", {false, icon, {}}, 84, 9, 100, CaptionAlign::Center},
        {"caption", {false, {}, caption}, 84, 9, 100, CaptionAlign::Center},
        {"both, placed", {false, iconAt, captionAt}, 1, -2, 77, CaptionAlign::Right},
        {"icon, placed", {false, iconAt, {}}, 1, -2, 100, CaptionAlign::Center},
        {"both, centred", {false, icon, captionCentred}, 8, 9, 50, CaptionAlign::Center},
    };
    for (const auto& c : cases) {
        const QuickPlacement place = Place(c.image, {201, 51}, {32, 32});
        EXPECT_EQ(c.x, place.icon.x) << c.what;
        EXPECT_EQ(c.y, place.icon.y) << c.what;
        EXPECT_EQ(c.left, place.captionLeft) << c.what;
        EXPECT_EQ(c.align, place.align) << c.what;
    }
}

TEST(QuickImage, IconIsAResourceWhenItBeginsWithADigit)
{
    const std::pair<const char*, std::optional<int>> cases[] = {
        {"5", 5}, {"12 apples", 12}, {"65535", 65535}, {"65536", 0}, {"99999999999", 0}, {"0", 0},
        {"", {}}, {" 5", {}},        {"-5", {}},       {"a5", {}},   {"7zip.exe", 7},
    };
    for (const auto& [source, number] : cases)
        EXPECT_EQ(number, IconResource(source)) << source;
}

TEST(QuickImage, TypeOfAnIconThatNoFileGives)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"www.example.com", "www.example.com", ".htm"},
        {"Http://example.com/a.pdf", "Http://example.com/a.pdf", ".htm"},
        {"MailTo:a@example.com", "MailTo:a@example.com", ".eml"},
        {"c:\\docs.old\\manual", "c:\\docs.old\\manual", ""},
        {"c:\\docs.old\\a.b.txt", "c:\\docs.old\\a.b.txt", ".txt"},
        {"tool.exe /log a.txt", "tool.exe", ".exe"},
        {"httpd.conf", "httpd.conf", ".conf"},
    };
    for (const auto& [source, file, extension] : cases)
        EXPECT_EQ(extension, IconExtension(source, file)) << source;
}

}  // namespace

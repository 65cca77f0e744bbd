#include "doubles/files_double.h"
#include "formats/random_xml.h"
#include "support/guarded_buffer.h"

#include <qxutility/formats/xml_document.h>
#include <qxutility/formats/xml_writer.h>

#include <gtest/gtest.h>
#include <random>
#include <string>

using qx::test::FilesDouble;
using qx::test::GuardedBuffer;

namespace {

std::string TextOf(const XMLWriter& writer)
{
    std::string text(writer.StrLen() + 1, '~');
    writer.StrCpy(text.data(), static_cast<unsigned>(text.size()));
    EXPECT_EQ('\0', text.back());
    text.pop_back();
    return text;
}

XMLWriter Written(int elements)
{
    XMLWriter writer;
    for (int i = 0; i < elements; ++i) {
        writer.BeginElement("a");
        writer.EndElement();
    }
    return writer;
}

}  // namespace

TEST(XmlWriter, LaysOutElements)
{
    XMLWriter writer;
    writer.BeginElement("Toolbar");
    writer.AddAttribute("id", 3);
    writer.AddAttribute("Name", "a \"b\"");
    writer.SetData("data");
    writer.BeginElement("Button");
    writer.SetData("gone");
    writer.SetData("a<b");
    writer.EndElement();
    writer.BeginElement("Button");
    writer.BeginElement("Style");
    writer.SetData(-7);
    writer.EndElement();
    writer.EndElement();
    writer.EndElement();
    writer.BeginElement("a");
    writer.EndElement();
    EXPECT_EQ(
        "<Toolbar id=\"3\" Name=\"a &quot;b&quot;\">data\r\n"
        "  <Button>a&lt;b</Button>\r\n"
        "  <Button>\r\n"
        "    <Style>-7</Style>\r\n"
        "  </Button>\r\n"
        "</Toolbar>\r\n"
        "<a></a>\r\n",
        TextOf(writer));
}

TEST(XmlWriter, WritesNothingForAnElementAfterItsFirstChild)
{
    XMLWriter writer;
    writer.BeginElement("a");
    writer.BeginElement("b");
    writer.EndElement();
    writer.SetData("late");
    writer.AddAttribute("late", 1);
    writer.EndElement();
    EXPECT_EQ("<a>\r\n  <b></b>\r\n</a>\r\n", TextOf(writer));
}

TEST(XmlWriter, LeavesOutElementsThatAreOpen)
{
    XMLWriter writer;
    writer.BeginElement("a");
    writer.BeginElement("b");
    EXPECT_EQ("<a>\r\n", TextOf(writer));
}

TEST(XmlWriter, IgnoresCallsWithoutAnOpenElement)
{
    XMLWriter writer;
    writer.AddAttribute("a", "b");
    writer.SetData("c");
    writer.EndElement();
    EXPECT_EQ(0u, writer.StrLen());
    writer.BeginElement("a");
    writer.EndElement();
    writer.EndElement();
    writer.BeginElement("b");
    writer.EndElement();
    EXPECT_EQ("<a></a>\r\n<b></b>\r\n", TextOf(writer));
}

TEST(XmlWriter, TakesNamesAsTheyAre)
{
    XMLWriter writer;
    writer.BeginElement("a b=\"<\"");
    writer.AddAttribute("&", "&'");
    writer.EndElement();
    writer.BeginElement(nullptr);
    writer.AddAttribute(nullptr, nullptr);
    writer.SetData(nullptr);
    writer.EndElement();
    EXPECT_EQ("<a b=\"<\" &=\"&amp;&apos;\"></a>\r\n< =\"\"></>\r\n", TextOf(writer));
}

TEST(XmlWriter, AppendsRawTextAndGrowsWithIt)
{
    for (const unsigned growth : {0U, 1U, 7U, 1024U}) {
        XMLWriter writer(growth);
        std::string expected;
        for (std::size_t length = 0; length < 300; ++length) {
            const std::string piece(length, static_cast<char>('a' + length % 26));
            writer.StrCat(piece.c_str());
            expected += piece;
            EXPECT_EQ(expected.size(), writer.StrLen());
        }
        EXPECT_EQ(expected, TextOf(writer)) << growth;
    }
}

// A buffer of exactly the text's size gets no terminator.
TEST(XmlWriter, CopiesAsMuchAsFits)
{
    XMLWriter writer;
    writer.StrCat("text");
    static constexpr std::string_view kCopies[] = {
        {"text\0", 5}, {"text", 4}, {"te\0", 3}, {"\0", 1}};
    for (const std::string_view copy : kCopies) {
        GuardedBuffer buffer(copy.size());
        writer.StrCpy(buffer, static_cast<unsigned>(copy.size()));
        EXPECT_EQ(copy, std::string_view(buffer, copy.size())) << copy.size();
    }
    writer.StrCpy(nullptr, 0);
}

TEST(XmlWriter, CopiesGoOnByThemselves)
{
    XMLWriter first;
    first.BeginElement("a");
    first.SetData("1");
    XMLWriter second = first, third;
    first.EndElement();
    third = second;
    second.SetData("2");
    second.EndElement();
    third.EndElement();
    third.StrCat("more");
    EXPECT_EQ("<a>1</a>\r\n", TextOf(first));
    EXPECT_EQ("<a>2</a>\r\n", TextOf(second));
    EXPECT_EQ("<a>1</a>\r\nmore", TextOf(third));
}

TEST(XmlWriter, IsReadBackToTheSameTree)
{
    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        XMLWriter writer;
        const std::string tree = qx::test::WriteRandomXml(writer, random, 4);
        XMLDocument document;
        ASSERT_TRUE(document.UseData(TextOf(writer).c_str(), -1));
        ASSERT_EQ(tree, qx::test::DescribeXml(*document.FirstElement())) << TextOf(writer);
        ASSERT_EQ(xmlNoError, document.GetError());
    }
}

TEST(XmlWriter, SavesItsText)
{
    FilesDouble disk;
    disk.Put("old.xml", "old");
    EXPECT_TRUE(Written(1).SaveToDisk("new.xml"));
    EXPECT_TRUE(Written(2).SaveToDisk("old.xml"));
    EXPECT_EQ("<a></a>\r\n", disk.Text("new.xml"));
    EXPECT_EQ("<a></a>\r\n<a></a>\r\n", disk.Text("old.xml"));
    EXPECT_EQ(2u, disk.files.size());
    EXPECT_FALSE(Written(0).SaveToDisk("old.xml")) << "an empty text";
    EXPECT_EQ("", disk.Text("old.xml"));
    EXPECT_FALSE(Written(1).SaveToDisk(nullptr));
    EXPECT_FALSE(Written(1).SaveToDisk(""));
}

TEST(XmlWriter, LeavesTheOldFileWhenSavingFails)
{
    for (const char* failing : {"open", "write", "close", "move"}) {
        FilesDouble disk;
        disk.Put("t.xml", "old");
        disk.failing[failing] = 1;
        EXPECT_FALSE(Written(1).SaveToDisk("t.xml")) << failing;
        EXPECT_EQ("old", disk.Text("t.xml")) << failing;
        EXPECT_EQ(1u, disk.files.size()) << failing;
    }
    FilesDouble disk;
    disk.Put("t.xml", "old");
    disk.capacity = 8;
    EXPECT_FALSE(Written(1).SaveToDisk("t.xml")) << "full disk";
    EXPECT_EQ("old", disk.Text("t.xml"));
}

TEST(XmlWriter, LeavesTheOldOrTheNewFileWhereverTheMachineStops)
{
    const std::string written = TextOf(Written(1));
    bool isSaved = false;
    for (int calls = 0; !isSaved; ++calls) {
        FilesDouble disk;
        disk.Put("t.xml", "old");
        disk.callsUntilCrash = calls;
        isSaved = Written(1).SaveToDisk("t.xml");
        EXPECT_EQ(isSaved ? written : "old", disk.Text("t.xml")) << calls;
        disk.callsUntilCrash = -1;
        EXPECT_TRUE(Written(2).SaveToDisk("t.xml"));
        EXPECT_EQ(1u, disk.files.size()) << "what the stop left is gone";
    }
}

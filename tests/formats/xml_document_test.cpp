#include "doubles/files_double.h"
#include "doubles/resources_double.h"
#include "formats/oracle/same_xml.h"
#include "support/guarded_buffer.h"

#include <qxutility/formats/xml_document.h>

#include <climits>
#include <gtest/gtest.h>
#include <random>
#include <type_traits>

using qx::test::FilesDouble;
using qx::test::GuardedBuffer;
using qx::test::ResourcesDouble;
using qx::test::XmlComparison;

namespace {

class Loaded : public XMLDocument {
  public:
    explicit Loaded(std::string_view text) { UseData(text.data(), static_cast<int>(text.size())); }
};

std::string NameOf(const XMLElement* element)
{
    char name[100];
    if (!element)
        return "(none)";
    element->GetElementName(name, sizeof name);
    return name;
}

std::string DataOf(const XMLElement* element)
{
    char data[500];
    if (!element)
        return "(none)";
    element->ReadData(data, sizeof data);
    return data;
}

// The tree in one line: names, "" for none, with the children in parentheses.
std::string Tree(XMLElement& parent)
{
    std::string tree;
    for (XMLElement* child = parent.FirstElement(); child; child = parent.NextElement()) {
        const std::string name = NameOf(child), children = Tree(*child);
        tree += (tree.empty() ? "" : " ") + (name.empty() ? "\"\"" : name);
        if (!children.empty())
            tree += "(" + children + ")";
    }
    return tree;
}

// The value of an attribute, "(value)" when it is the default, and the error after "!".
std::string Attribute(const std::string& text, const char* name)
{
    Loaded document(text);
    char value[100];
    const bool found = document.FirstElement()->ReadAttribute(name, value, sizeof value, "default");
    std::string result = found ? value : "(" + std::string(value) + ")";
    if (document.GetError() != xmlNoError)
        result += "!" + std::to_string(document.GetError());
    return result;
}

}  // namespace

TEST(XmlDocument, MakesTheTreeThatItAlwaysMade)
{
    static const struct {
        const char *text, *tree;
        errorcode error;
    } kCases[] = {
        {"", "", xmlNoError},
        {"text & no tags >", "", xmlNoError},
        {"<a><b>1</b><b>2</b></a>", "a(b b)", xmlNoError},
        {"x<a></a>y<b></b>z", "a b", xmlNoError},
        {"<a/><b />", "a/ b", xmlNoError},
        {"<a b=\"1/>2\"></a>", "a \"\"", xmlStrayEndTag},  // the tag ends at the first '>'
        {"<a><!-- note --><b/></a>", "a(\"\" b/)", xmlNoError},
        {"<a><!-- b > c --></a>", "a(\"\")", xmlNoError},
        {"<a><b></a>", "a(b(\"\"))", xmlMissingEndTag},
        {"<a></b></a>", "a(\"\")", xmlStrayEndTag},
        {"</a>", "\"\"", xmlStrayEndTag},
        {"<?xml version=\"1.0\"?><a></a><b></b>", "\"\"(a b)", xmlMissingEndTag},
        {"<?xml?><a></a></><b></b>", "\"\"(a) b", xmlNoError},
        {"<1a>x</><b></b>", "\"\" b", xmlNoError},
        {"<></>", "\"\"", xmlNoError},
        {"<a></A></a>", "a(\"\")", xmlStrayEndTag},
        {"<a b=\"1\"></a b=\"1\"></a>", "a(\"\")", xmlStrayEndTag},
        {"<a></a ></a>", "a(\"\")", xmlStrayEndTag},
        {"<a\t></a\t>", "a\t", xmlNoError},  // only a space ends a name
        {"<a\r\n x=\"1\"></a\r\n>", "a\r\n", xmlNoError},
        {"<a<b></a<b><c/>", "a<b c/", xmlNoError},
        {"<a", "a", xmlMissingEndTag},
        {"<a/", "a/", xmlNoError},
        {"<", "\"\"", xmlMissingEndTag},
        {"</", "\"\"", xmlStrayEndTag},
        {"<a></a", "a(\"\")", xmlMissingEndTag},
        {"<a><b", "a(b)", xmlMissingEndTag},
        {"<a <b></a>", "a", xmlNoError},
    };
    for (const auto& [text, tree, error] : kCases) {
        Loaded document(text);
        EXPECT_EQ(tree, Tree(document)) << text;
        EXPECT_EQ(error, document.GetError()) << text;
    }
}

TEST(XmlDocument, LetsThe76FirstCharactersOfANameFindItsEnd)
{
    const std::string name(76, 'n');
    Loaded longer("<" + name + "1></" + name + "><b></b>");
    EXPECT_EQ(name + "1 b", Tree(longer));
    Loaded exact("<" + name + "></" + name + "1></" + name + ">");
    EXPECT_EQ(name + "(\"\")", Tree(exact));
}

TEST(XmlDocument, ReadsRandomBytesAsAlways)
{
    static const std::string kPieces[] = {"<",
                                          ">",
                                          "/",
                                          "</",
                                          "/>",
                                          "<!",
                                          "<?",
                                          "a",
                                          "b",
                                          "<a>",
                                          "</a>",
                                          "<b ",
                                          "</b>",
                                          "=",
                                          "\"",
                                          "='",
                                          " x=\"1\"",
                                          "X",
                                          "&",
                                          ";",
                                          "&lt;",
                                          "&am",
                                          "&quot;",
                                          " ",
                                          "\t",
                                          "\r\n",
                                          "_",
                                          "1",
                                          "\xE4",
                                          std::string(1, '\0'),
                                          "</>",
                                          std::string(20, 'n'),
                                          std::string(70, 'm')};
    std::mt19937 random(1);
    for (int i = 0; i < 30000; ++i) {
        std::string text;
        // Each text has a few kinds of pieces, so that tags have a chance to match.
        const std::size_t kinds = 2 + random() % 12, first = random();
        for (std::size_t left = random() % 60; left > 0; --left)
            text += kPieces[(first + random() % kinds * 7) % std::size(kPieces)];
        // Nothing behind the bytes given may be read.
        GuardedBuffer bytes(text.size() + (text.empty() ? 1 : 0));
        text.copy(bytes, text.size());
        const XmlComparison comparison({bytes.data(), text.size()}, 1 + random() % 40);
        ASSERT_EQ("", comparison.Difference()) << testing::PrintToString(text);
    }
}

TEST(XmlDocument, TakesDeepAndWideDocumentsOfAMillionElements)
{
    constexpr int kCount = 1'000'000;
    std::string nested, unclosed, wide;
    for (int i = 0; i < kCount; ++i) {
        nested += "<a>";
        unclosed += "<b>";
        wide += "</c>";
    }
    for (int i = 0; i < kCount; ++i)
        nested += "</a>";
    const auto depth = [](XMLElement& document) {
        int count = 0;
        for (XMLElement* e = document.FirstElement(); e; e = e->FirstElement())
            ++count;
        return count;
    };
    Loaded document(nested);
    EXPECT_EQ(kCount, depth(document));
    EXPECT_EQ(xmlNoError, document.GetError());
    EXPECT_TRUE(document.UseData(unclosed.c_str(), -1));
    EXPECT_EQ(kCount, depth(document));
    EXPECT_EQ(xmlMissingEndTag, document.GetError());
    EXPECT_TRUE(document.UseData(wide.c_str(), -1));
    EXPECT_EQ(xmlStrayEndTag, document.GetError());
    int count = 0;
    for (XMLElement* e = document.FirstElement(); e; e = document.NextElement())
        ++count;
    EXPECT_EQ(kCount, count);
}

TEST(XmlDocument, IsNotCopied)
{
    EXPECT_FALSE(std::is_copy_constructible_v<XMLDocument>);
    EXPECT_FALSE(std::is_copy_assignable_v<XMLDocument>);
    EXPECT_FALSE(std::is_copy_constructible_v<XMLElement>);
    EXPECT_FALSE(std::is_copy_assignable_v<XMLElement>);
}

TEST(XmlDocument, LoadsFilesWithItselfAsAnElement)
{
    FilesDouble disk;
    disk.Put("t.xml", "<a>1</a>&lt;<b/>");
    XMLDocument document;
    EXPECT_FALSE(document.bIsValid());
    char path[] = "t.xml";
    ASSERT_TRUE(document.OpenFile(path));
    EXPECT_TRUE(document.bIsValid());
    EXPECT_EQ("a b/", Tree(document));
    EXPECT_EQ(16u, document.GetDataLength());
    EXPECT_EQ(16u, document.GetElementLength());
    EXPECT_EQ("<a>1</a><<b/>", DataOf(&document));
    EXPECT_EQ("a", NameOf(&document));

    disk.Put("empty.xml", "");
    ASSERT_TRUE(document.OpenFile("empty.xml"));
    EXPECT_EQ("", Tree(document));
    EXPECT_EQ("", NameOf(&document));
    EXPECT_EQ("", DataOf(&document));
}

TEST(XmlDocument, IsEmptyAfterAFileThatCannotBeRead)
{
    FilesDouble disk;
    disk.Put("t.xml", "<a>");
    for (const char* failing : {"open", "read"}) {
        Loaded document("<b></c>");
        disk.failing[failing] = 1;
        EXPECT_FALSE(document.OpenFile("t.xml")) << failing;
        EXPECT_EQ("", Tree(document)) << failing;
        EXPECT_EQ(xmlNoError, document.GetError()) << failing;
        EXPECT_EQ(0u, document.GetDataLength()) << failing;
    }
    XMLDocument document;
    EXPECT_FALSE(document.OpenFile("missing.xml"));
    EXPECT_FALSE(document.OpenFile(nullptr));
    EXPECT_FALSE(document.bIsValid());
}

TEST(XmlDocument, LoadsOneTextAfterTheOther)
{
    FilesDouble disk;
    disk.Put("t.xml", "<f>1</f>");
    Loaded document("<a><b></a>");
    ASSERT_TRUE(document.UseData("<c></c><d></d>", -1));
    EXPECT_EQ("c d", Tree(document));
    EXPECT_EQ(xmlNoError, document.GetError());
    ASSERT_TRUE(document.UseData("<e></e>behind", 7));
    EXPECT_EQ("e", Tree(document));
    ASSERT_TRUE(document.OpenFile("t.xml"));
    EXPECT_EQ("f", Tree(document));
    ASSERT_TRUE(document.UseData("<g>2</g>", -1));
    EXPECT_EQ("g", Tree(document));
    EXPECT_EQ(0u, document.GetDataLength()) << "its own data is a file's only";
    EXPECT_EQ("", NameOf(&document));
    EXPECT_FALSE(document.UseData(nullptr, -1));
    EXPECT_EQ("", Tree(document));
}

TEST(XmlDocument, LoadsResourcesAndKeepsWhatItHasWithoutOne)
{
    ResourcesDouble resources;
    const auto module = reinterpret_cast<HINSTANCE>(16);
    resources.bytes[{module, "BARS", "XML"}] = "<a></a>";
    XMLDocument document;
    EXPECT_TRUE(document.LoadResource(module, "BARS", "XML"));
    EXPECT_EQ("a", Tree(document));
    EXPECT_FALSE(document.LoadResource(module, "NONE", "XML"));
    EXPECT_EQ("a", Tree(document));
}

TEST(XmlElement, FindsTheLastChildOfANameAndGoesOnAfterIt)
{
    Loaded document("<a>1</a><b/><a>2</a><c>3</c><!-- --><A>4</A>");
    EXPECT_EQ("2", DataOf(document.FindElement("a")));
    EXPECT_EQ("c", NameOf(document.NextElement()));
    EXPECT_EQ("", NameOf(document.FindElement("")));
    EXPECT_EQ("A", NameOf(document.NextElement()));
    EXPECT_EQ(nullptr, document.NextElement());
    EXPECT_EQ("1", DataOf(document.NextElement())) << "the first one again";
    EXPECT_EQ(nullptr, document.FindElement("b"));
    EXPECT_EQ("1", DataOf(document.NextElement()));
    document.NextElement();
    EXPECT_EQ(nullptr, document.FindElement(nullptr));
    EXPECT_EQ("1", DataOf(document.NextElement()));
    EXPECT_EQ("1", DataOf(document.FirstElement()));
}

TEST(XmlElement, HasACursorOfItsOwn)
{
    Loaded document("<a><x/><y/></a><b><z/></b>");
    XMLElement* const a = document.FirstElement();
    EXPECT_EQ("x/", NameOf(a->NextElement()));
    EXPECT_EQ("b", NameOf(document.NextElement()));
    EXPECT_EQ("y/", NameOf(a->NextElement()));
}

TEST(XmlElement, ComparesNamesByTheir79FirstCharacters)
{
    const std::string name(79, 'n');
    Loaded document("<" + name + "12/>");
    EXPECT_NE(nullptr, document.FindElement(name.c_str()));
    EXPECT_EQ(nullptr, document.FindElement((name + "1").c_str()));
    EXPECT_EQ(nullptr, document.FindElement(name.substr(1).c_str()));
}

TEST(XmlElement, ReadsAttributesByName)
{
    static const struct {
        const char *text, *name, *value;
    } kCases[] = {
        {"<a Name=\"x\">", "name", "x!2"},
        {"<a Name=\"x\"/>", "NAME", "x"},
        {"<a n=\"1\" n=\"2\"/>", "n", "1"},
        {"<a b=\"1\"c=\"2\"/>", "c", "2"},
        {"<a\tb\r\n=\v\f \"1\" />", "b", "1"},
        {"<a b=\"x&quot;y &lt;&g;\"/>", "b", "x\"y <>"},
        {"<a b=\"\"/>", "b", ""},
        {"<a =\"1\"/>", "", "1"},
        {"<a b='1'/>", "b", "(default)!100"},
        {"<a b=\"1\" c='2'/>", "b", "1"},
        {"<a b=/>", "b", "(default)!100"},
        {"<a b=\"1/>", "b", "(default)!101"},
        {"<a b=\"1/>\"/>", "b", "(default)!101"},  // the tag ends at the first '>'
        {"<a b c=\"1\"/>", "c", "(default)"},
        {"<a/>", "a", "(default)"},
        {"<a x=\"1\">", "xx", "(default)!2"},
    };
    for (const auto& [text, name, value] : kCases)
        EXPECT_EQ(value, Attribute(text, name)) << text;
}

TEST(XmlElement, ReadsAttributesOfElementsInTurns)
{
    XMLDocument document;
    char value[10];
    for (const char* text : {"<a x=\"1\" y='2'/><b x=\"3\"/>", "<a x=\"4\" y='5'/><b x=\"6\"/>"}) {
        document.UseData(text, -1);
        std::string values;
        for (int i = 0; i < 3; ++i) {
            for (XMLElement* e = document.FirstElement(); e; e = document.NextElement()) {
                EXPECT_FALSE(e->ReadAttribute("y", value, sizeof value, ""));
                EXPECT_TRUE(e->ReadAttribute("X", value, sizeof value, ""));
                values += value;
            }
        }
        EXPECT_EQ(text[6] == '1' ? "131313" : "464646", values);
        EXPECT_EQ(xmlUnquotedValue, document.GetError());
    }
}

TEST(XmlElement, NamesAttributesByPosition)
{
    Loaded document("<a one=\"1\" Two=\"2\" three='3'/>");
    const XMLElement& element = *document.FirstElement();
    char name[10] = "unchanged";
    EXPECT_TRUE(element.ReadAttribute(1, name, sizeof name));
    EXPECT_STREQ("Two", name);
    EXPECT_FALSE(element.ReadAttribute(2, name, sizeof name));
    EXPECT_EQ(xmlUnquotedValue, document.GetError());
    EXPECT_FALSE(element.ReadAttribute(-1, name, sizeof name));
    EXPECT_STREQ("Two", name);
}

// A result of exactly the buffer's size has no terminator.
TEST(XmlElement, CutsAttributesAtTheBoundaryOfTheBuffer)
{
    Loaded document("<a name=\"value\"/>");
    const XMLElement& element = *document.FirstElement();
    static const struct {
        std::size_t size;
        std::string_view expected;
    } kCases[] = {{6, {"value\0", 6}}, {5, "value"}, {4, {"val\0", 4}}, {1, {"\0", 1}}};
    for (const auto& [size, expected] : kCases) {
        GuardedBuffer buffer(size);
        EXPECT_TRUE(element.ReadAttribute("name", buffer, static_cast<int>(size), "x"));
        EXPECT_EQ(expected, std::string_view(buffer, size)) << size;
        EXPECT_FALSE(element.ReadAttribute("none", buffer, static_cast<int>(size), "value"));
        EXPECT_EQ(expected, std::string_view(buffer, size)) << size << ", default";
    }
    GuardedBuffer four(4), none(1);
    EXPECT_TRUE(element.ReadAttribute(0, four, 4));
    EXPECT_EQ("name", std::string_view(four, 4));
    EXPECT_TRUE(element.ReadAttribute("name", none.data() + 1, 0, "x"));
    EXPECT_TRUE(element.ReadAttribute(0, none.data() + 1, -1));
}

TEST(XmlElement, ReadsNumbers)
{
    Loaded document(
        "<a n=\"12 m\" e=\"\" t=\"x\" l=\"99999999999\"><n>-7</n><e></e>"
        "<l>0000000000000000000012</l></a>");
    XMLElement& element = *document.FirstElement();
    static const struct {
        const char* name;
        int value;
        bool found;
    } kAttributes[] = {{"n", 12, true},
                       {"e", 0, true},
                       {"t", 0, true},
                       {"l", INT_MAX, true},
                       {"none", -5, false}},
      kChildren[] = {{"n", -7, true}, {"e", 0, false}, {"l", 0, true}, {"none", -5, false}};
    for (const auto& [name, expected, found] : kAttributes) {
        int value = 1;
        EXPECT_EQ(found, element.ReadAttribute(name, value, -5)) << name;
        EXPECT_EQ(expected, value) << name;
    }
    for (const auto& [name, expected, found] : kChildren) {
        int value = 1;
        EXPECT_EQ(found, element.ReadSubElement(name, value, -5)) << name;
        EXPECT_EQ(expected, value) << name;
    }
    Loaded digits("<a n=\"" + std::string(79, '0') + "7\"/>");
    int value = 1;
    EXPECT_TRUE(digits.FirstElement()->ReadAttribute("n", value, -5));
    EXPECT_EQ(7, value) << "80 characters";
}

TEST(XmlElement, ReadsDataWithChildrenAndEntities)
{
    static const std::pair<const char*, const char*> kCases[] = {
        {"x &lt; y &amp;&amp; z", "x < y && z"},
        {" <b>1</b>\r\n", " <b>1</b>\r\n"},
        {"&copy;&g;&;&a;&ap;&apo;&q;", "&copy;>>&''\""},
        {"&#65;&GT;&gtx;&quote;", "&#65;&GT;&gtx;&quote;"},
        {"&amp;lt;", "&lt;"},
        {"&&lt;", "&<"},
        {"a&", "a>"},
        {"a&am", "a&"},
        {"a&copy", "a&copy"},
    };
    for (const auto& [text, data] : kCases) {
        Loaded document("<a>" + std::string(text) + "</a>");
        EXPECT_EQ(data, DataOf(document.FirstElement())) << text;
    }
}

TEST(XmlElement, CutsDataBeforeDecoding)
{
    Loaded document("<a>1&lt;3</a>");
    XMLElement& element = *document.FirstElement();
    static const struct {
        int size;
        const char* data;
    } kCases[] = {{8, "1<3"}, {7, "1<3"}, {6, "1<"}, {5, "1<"}, {3, "1>"}, {2, "1"}, {1, ""}};
    for (const auto& [size, data] : kCases) {
        GuardedBuffer buffer(static_cast<std::size_t>(size));
        EXPECT_EQ(size > 1, element.ReadData(buffer, size)) << size;
        EXPECT_STREQ(data, buffer) << size;
    }
    GuardedBuffer none(1);
    EXPECT_FALSE(element.ReadData(none.data() + 1, 0));
}

TEST(XmlElement, ReadsSubElementsOrTheDefault)
{
    Loaded document("<n>1</n><n>2</n><e></e>");
    GuardedBuffer buffer(4);
    EXPECT_TRUE(document.ReadSubElement("n", buffer, 4, "default"));
    EXPECT_STREQ("2", buffer);
    EXPECT_FALSE(document.ReadSubElement("e", buffer, 4, "default"));
    EXPECT_STREQ("", buffer);
    EXPECT_FALSE(document.ReadSubElement("none", buffer, 4, "default"));
    EXPECT_STREQ("def", buffer);
    EXPECT_FALSE(document.ReadSubElement("N", buffer, 4, nullptr));
    EXPECT_STREQ("", buffer);
}

TEST(XmlElement, CutsNames)
{
    Loaded document("<name>");
    GuardedBuffer buffer(3), none(1);
    document.FirstElement()->GetElementName(buffer, 3);
    EXPECT_STREQ("na", buffer);
    document.FirstElement()->GetElementName(none.data() + 1, 0);
}

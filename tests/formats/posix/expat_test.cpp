// Well-formed texts of the subset that the library reads mean the same to a full XML parser.
#include "formats/random_xml.h"

#include <expat.h>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace {

// Makes the description of a document's root out of expat's events.
class ExpatDescription {
  public:
    explicit ExpatDescription(const std::string& text)
    {
        XML_SetUserData(m_parser.get(), this);
        XML_SetElementHandler(m_parser.get(), Start, End);
        XML_SetCharacterDataHandler(m_parser.get(), Characters);
        if (XML_Parse(m_parser.get(), text.data(), static_cast<int>(text.size()), 1) !=
            XML_STATUS_OK)
            m_open.front().children = XML_ErrorString(XML_GetErrorCode(m_parser.get()));
    }
    // In parentheses.
    const std::string& Root() const { return m_open.front().children; }

  private:
    struct Element {
        std::string tag, data, children;
    };

    static void Start(void* self, const char* name, const char** attributes)
    {
        Element element{name, "", ""};
        for (; *attributes; attributes += 2)
            element.tag += std::string(" ") + attributes[0] + "=" + attributes[1];
        static_cast<ExpatDescription*>(self)->m_open.push_back(element);
    }
    static void End(void* self, const char*)
    {
        auto& open = static_cast<ExpatDescription*>(self)->m_open;
        const Element element = open.back();
        open.pop_back();
        const bool isLeaf = element.children.empty();
        open.back().children +=
            "(" + element.tag + (isLeaf ? ":" + element.data : element.children) + ")";
    }
    static void Characters(void* self, const char* text, int length)
    {
        static_cast<ExpatDescription*>(self)->m_open.back().data.append(
            text, static_cast<std::size_t>(length));
    }

    std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> m_parser{XML_ParserCreate("ISO-8859-1"),
                                                                     XML_ParserFree};
    std::vector<Element> m_open{1};
};

class RandomText {
  public:
    explicit RandomText(std::mt19937& random) : m_random(random) {}

    std::string Element(int depth)
    {
        const std::string name = OneOf({"a", "Toolbar", "_x", "n.1-2:y"});
        const std::string start = "<" + name + Attributes();
        if (Chance(5))
            return start + " />";
        return start + OneOf({"", " "}) + ">" + Content(depth) + "</" + name + ">";
    }

  private:
    bool Chance(unsigned oneIn) { return m_random() % oneIn == 0; }
    std::string OneOf(std::initializer_list<const char*> texts)
    {
        return *(texts.begin() + m_random() % texts.size());
    }
    std::string Text()
    {
        return OneOf({"", "x", " y ", "&lt;", "&amp;&gt;", "a&quot;b&apos;", "'\n"});
    }

    std::string Attributes()
    {
        std::string attributes;
        for (int i = 0; i < 8 && Chance(2); ++i) {
            attributes += OneOf({" ", "  ", " \n"}) + std::string(1, static_cast<char>('p' + i));
            attributes += OneOf({"=", " = ", "\t=\n"}) + "\"" +
                          OneOf({"", "1", "two words", "&lt;&gt;", "'&quot;'", "/"}) + "\"";
        }
        return attributes;
    }

    std::string Content(int depth)
    {
        if (depth == 0 || Chance(3))
            return Text();
        std::string content;
        do
            content += Text() + OneOf({"", "<!-- comment -->", "<!---->"}) + Element(depth - 1);
        while (Chance(2));
        return content + Text();
    }

    std::mt19937& m_random;
};

}  // namespace

TEST(Expat, MakesTheSameTreeOfRandomTexts)
{
    std::mt19937 random(1);
    for (int i = 0; i < 5000; ++i) {
        const std::string text = RandomText(random).Element(5);
        XMLDocument document;
        document.UseData(text.data(), static_cast<int>(text.size()));
        ASSERT_EQ(ExpatDescription(text).Root(),
                  "(" + qx::test::DescribeXml(*document.FirstElement()) + ")")
            << text;
        ASSERT_EQ(xmlNoError, document.GetError()) << text;
    }
}

TEST(Expat, ReadsWhatTheWriterWrites)
{
    std::mt19937 random(2);
    for (int i = 0; i < 1000; ++i) {
        XMLWriter writer;
        const std::string first = qx::test::WriteRandomXml(writer, random, 4);
        const std::string second = qx::test::WriteRandomXml(writer, random, 1);
        std::string text(writer.StrLen() + 1, '\0');
        writer.StrCpy(text.data(), static_cast<unsigned>(text.size()));
        text.pop_back();
        const std::string wrapped = "<root>" + text + "</root>";
        ASSERT_EQ("(root(" + first + ")(" + second + "))", ExpatDescription(wrapped).Root())
            << text;
    }
}

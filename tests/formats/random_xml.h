// Random trees of XML elements and a description of them in one line, so that two can be compared:
// name, attributes, then the data of an element without children or the children in parentheses.
#pragma once

#include <qxutility/formats/xml_document.h>
#include <qxutility/formats/xml_writer.h>

#include <random>
#include <string>

namespace qx::test {

inline std::string RandomXmlText(std::mt19937& random)
{
    static const char* const kTexts[] = {"x", "<&>", "\"q'", " two words ", "&lt;", ";&", ""};
    return kTexts[random() % std::size(kTexts)];
}

// Writes a random element; returns its description.
inline std::string WriteRandomXml(XMLWriter& writer, std::mt19937& random, int depth)
{
    const std::string name(1 + random() % 20, static_cast<char>('a' + random() % 4));
    std::string tree = name;
    writer.BeginElement(name.c_str());
    for (auto i = random() % 3; i > 0; --i) {
        const std::string attribute = "n" + std::to_string(i), value = RandomXmlText(random);
        writer.AddAttribute(attribute.c_str(), value.c_str());
        tree += " " + attribute + "=" + value;
    }
    if (depth == 0 || random() % 3 == 0) {
        const std::string data = RandomXmlText(random);
        writer.SetData(data.c_str());
        tree += ":" + data;
    } else {
        for (auto i = 1 + random() % 4; i > 0; --i)
            tree += "(" + WriteRandomXml(writer, random, depth - 1) + ")";
    }
    writer.EndElement();
    return tree;
}

// The description of an element; comments are no children.
inline std::string DescribeXml(XMLElement& element)
{
    char text[100], value[100];
    element.GetElementName(text, sizeof text);
    std::string tree = text, children;
    for (int i = 0; element.ReadAttribute(i, text, sizeof text); ++i) {
        element.ReadAttribute(text, value, sizeof value, "(none)");
        tree += " " + std::string(text) + "=" + value;
    }
    for (XMLElement* child = element.FirstElement(); child; child = element.NextElement()) {
        child->GetElementName(text, sizeof text);
        if (*text != '\0')
            children += "(" + DescribeXml(*child) + ")";
    }
    if (!children.empty())
        return tree + children;
    element.ReadData(text, sizeof text);
    return tree + ":" + text;
}

}  // namespace qx::test

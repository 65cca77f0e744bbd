// Compares the reader of XML files with the plain one, through everything that applications see.
#pragma once

#include "formats/oracle/plain_xml.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>

namespace qx::test {

class XmlComparison {
  public:
    // `size` is that of the caller's buffers, 1 or more.
    XmlComparison(std::string_view text, std::size_t size)
        : m_size(size), m_plain(std::string(text.substr(0, text.find('\0'))))
    {
        m_document.UseData(text.data(), static_cast<int>(text.size()));
        Equal("error", m_document.GetError(), m_plain.error);
        CompareChildren(m_document, m_plain.top);
    }

    // What is not the same; empty when all is.
    const std::string& Difference() const { return m_difference; }

  private:
    // What a buffer holds after a result was copied to it; short ones end with a NUL.
    std::string Copied(const std::string& result) const
    {
        if (result.size() > m_size)
            return result.substr(0, m_size - 1) + '\0';
        return result.size() < m_size ? result + '\0' : result;
    }
    std::string Cut(const std::string& result) const { return result.substr(0, m_size - 1) + '\0'; }

    // The same for a buffer of exactly the size, which is at the end of its memory.
    template <typename Read>
    std::string Buffer(std::size_t length, Read read) const
    {
        const auto buffer = std::make_unique_for_overwrite<char[]>(m_size);
        buffer[0] = '~';
        read(buffer.get(), static_cast<int>(m_size));
        return {buffer.get(), length};
    }

    template <typename A, typename B>
    void Equal(const char* what, const A& actual, const B& expected)
    {
        if (!(actual == expected) && m_difference.empty())
            m_difference = what;
    }

    void CompareChildren(XMLElement& actual, const PlainXml::Element& expected)
    {
        XMLElement* child = actual.FirstElement();
        for (const auto& each : expected.children) {
            Equal("number of children", child != nullptr, true);
            if (!child)
                return;
            CompareElement(*child, *each);
            child = actual.NextElement();
        }
        Equal("end of children", child == nullptr, true);
        const std::size_t count = expected.children.size();
        for (std::size_t i = 0; i < count; i += std::max<std::size_t>(1, count / 4))
            CompareFinding(actual, expected, PlainXml::Name(*expected.children[i], 80));
    }

    void CompareFinding(XMLElement& actual, const PlainXml::Element& parent,
                        const std::string& name)
    {
        std::size_t after = 0;
        for (std::size_t i = 0; i < parent.children.size(); ++i)
            if (PlainXml::Name(*parent.children[i], 80) == name)
                after = parent.children.size() - i - 1;
        Equal("found", actual.FindElement(name.c_str()) != nullptr, true);
        for (; after > 0; --after)
            Equal("children after", actual.NextElement() != nullptr, true);
        Equal("last child after", actual.NextElement() == nullptr, true);
    }

    void CompareElement(XMLElement& actual, const PlainXml::Element& expected)
    {
        const std::string name = PlainXml::Name(expected, m_size);
        const std::string data = PlainXml::Data(expected, m_size);
        Equal("name",
              Buffer(name.size() + 1, [&](char* to, int size) { actual.GetElementName(to, size); }),
              Cut(name));
        bool isFilled = false;
        Equal("data",
              Buffer(data.size() + 1,
                     [&](char* to, int size) { isFilled = actual.ReadData(to, size); }),
              Cut(data));
        Equal("result of data", isFilled, !data.empty());
        Equal("data length", actual.GetDataLength(),
              static_cast<std::size_t>(expected.dataEnd - expected.dataStart));
        Equal("length", actual.GetElementLength(),
              static_cast<std::size_t>(expected.elementEnd - expected.tagStart));
        CompareAttributes(actual, expected);
        CompareChildren(actual, expected);
    }

    void CompareAttributes(XMLElement& actual, const PlainXml::Element& expected)
    {
        const auto attributes = m_plain.Attributes(expected);
        for (std::size_t i = 0; i < attributes.size(); ++i) {
            const auto& [name, value] = attributes[i];
            const std::string copied = Copied(name);
            Equal("name of attribute",
                  Buffer(copied.size(),
                         [&](char* to, int size) {
                             actual.ReadAttribute(static_cast<int>(i), to, size);
                         }),
                  copied);
            if (IsFirst(attributes, i))
                CompareAttribute(actual, name, value);
        }
        const int end = static_cast<int>(attributes.size());
        Equal("end of attributes",
              Buffer(1, [&](char* to, int size) { actual.ReadAttribute(end, to, size); }), "~");
        Equal("error of attributes", actual.GetError(), m_plain.error);
    }

    void CompareAttribute(const XMLElement& actual, std::string name, const std::string& value)
    {
        for (char& c : name)  // found in whatever case
            c = static_cast<char>(std::islower(static_cast<unsigned char>(c)) ? c - 32 : c);
        const std::string copied = Copied(value);
        Equal("attribute",
              Buffer(copied.size(),
                     [&](char* to, int size) {
                         actual.ReadAttribute(name.c_str(), to, size, "missing");
                     }),
              copied);
    }

    static bool IsFirst(const std::vector<std::pair<std::string, std::string>>& attributes,
                        std::size_t index)
    {
        const auto same = [&](const auto& each) {
            const auto fold = [](char a, char b) {
                return std::tolower(static_cast<unsigned char>(a)) ==
                       std::tolower(static_cast<unsigned char>(b));
            };
            const std::string& name = attributes[index].first;
            return std::equal(each.first.begin(), each.first.end(), name.begin(), name.end(), fold);
        };
        return std::find_if(attributes.begin(), attributes.end(), same) ==
               attributes.begin() + static_cast<std::ptrdiff_t>(index);
    }

    std::size_t m_size;
    PlainXml m_plain;
    XMLDocument m_document;
    std::string m_difference;
};

}  // namespace qx::test

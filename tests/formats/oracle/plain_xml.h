// The reader of XML files as the applications have always known it, step by step, with the call
// stack for open elements.
#pragma once

#include <qxutility/formats/xml_document.h>

#include <cctype>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace qx::test {

class PlainXml {
  public:
    struct Element {
        const char *tagStart, *elementEnd, *dataStart, *dataEnd;
        std::vector<std::unique_ptr<Element>> children;
    };

    explicit PlainXml(std::string text) : m_text(std::move(text))
    {
        const char* tag = FindTag(m_text.c_str());
        while (tag)
            tag = FindTag(ParseChild(top, tag));
    }
    PlainXml(const PlainXml&) = delete;
    PlainXml& operator=(const PlainXml&) = delete;

    Element top{};
    errorcode error = xmlNoError;

    // With a buffer of `size` bytes.
    static std::string Name(const Element& element, std::size_t size)
    {
        const char* name = element.tagStart + 1;
        if (!std::isalpha(static_cast<unsigned char>(*name)) && *name != '_')
            return "";
        return std::string(name, std::strcspn(name, "> ")).substr(0, size - 1);
    }

    // The number of attributes before the end of the list or an error, which is set.
    std::vector<std::pair<std::string, std::string>> Attributes(const Element& element)
    {
        const std::string tag(element.tagStart, element.dataStart);
        const char* p = tag.c_str();
        while (*p != '\0' && !IsSpace(*p))
            ++p;
        std::vector<std::pair<std::string, std::string>> attributes;
        std::string name, value;
        while ((p = ParseAttribute(p, name, value)))
            attributes.emplace_back(name, value);
        return attributes;
    }

    static std::string Data(const Element& element, std::size_t size)
    {
        return Unescape(std::string(element.dataStart, element.dataEnd).substr(0, size - 1));
    }

    static std::string Unescape(const std::string& text)
    {
        static constexpr std::pair<const char*, char> kEntities[] = {
            {"&gt;", '>'}, {"&lt;", '<'}, {"&amp;", '&'}, {"&apos;", '\''}, {"&quot;", '"'}};
        std::string decoded;
        const char* p = text.c_str();
        while (*p != '\0') {
            const std::size_t n = *p == '&' ? std::strcspn(p, ";") : 0;
            const std::pair<const char*, char>* match = nullptr;
            for (const auto& each : kEntities)
                if (n > 0 && !match && std::strncmp(p, each.first, n) == 0)
                    match = &each;
            decoded += match ? match->second : *p;
            p += match ? n : 1;
            p += match && *p == ';';
        }
        return decoded;
    }

  private:
    static bool IsSpace(char c) { return std::isspace(static_cast<unsigned char>(c)); }
    static const char* FindTag(const char* p) { return std::strchr(p, '<'); }
    static std::size_t TagLength(const char* p) { return std::strcspn(p, ">"); }

    const char* ParseChild(Element& parent, const char* p)
    {
        Element& child = *parent.children.emplace_back(std::make_unique<Element>());
        ParseElement(child, FindTag(p));
        return child.elementEnd;
    }

    void ParseElement(Element& element, const char* tag)
    {
        const char* const end = tag + TagLength(tag);
        element.tagStart = tag;
        element.dataStart = end + (*end == '>');
        if (tag[1] == '/')
            error = xmlStrayEndTag;
        if (end[-1] != '/' && tag[1] != '!' && tag[1] != '/')
            ParseContent(element);
        else
            element.elementEnd = element.dataEnd = element.dataStart;
    }

    void ParseContent(Element& element)
    {
        const std::string closing = "</" + Name(element, 77) + ">";
        const char* tag = FindTag(element.dataStart);
        while (tag && std::strncmp(tag, closing.c_str(), closing.size()) != 0)
            tag = FindTag(ParseChild(element, tag));
        if (tag) {
            element.dataEnd = tag;
            element.elementEnd = tag + TagLength(tag) + 1;
        } else {
            error = xmlMissingEndTag;
            element.dataEnd = element.elementEnd =
                element.dataStart + std::strlen(element.dataStart);
        }
    }

    const char* ParseAttribute(const char* p, std::string& name, std::string& value)
    {
        while (IsSpace(*p))
            ++p;
        for (name.clear(); *p != '\0' && *p != '=' && !IsSpace(*p); ++p)
            name += *p;
        while (IsSpace(*p))
            ++p;
        if (*p != '=')
            return nullptr;
        do
            ++p;
        while (IsSpace(*p));
        if (*p != '"') {
            error = xmlUnquotedValue;
            return nullptr;
        }
        const std::size_t length = std::strcspn(++p, "\"");
        if (p[length] != '"') {
            error = xmlUnterminatedValue;
            return nullptr;
        }
        value = Unescape(std::string(p, length));
        return p + length + 1;
    }

    std::string m_text;
};

}  // namespace qx::test

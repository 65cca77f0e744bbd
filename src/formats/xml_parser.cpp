#include "formats/xml_parser.h"

#include "formats/xml_arena.h"
#include "formats/xml_names.h"
#include "formats/xml_tags.h"

#include <utility>

namespace qx {

// As much of a name takes part in finding the end tag.
static constexpr std::size_t kLongestName = 76;

// While an element is open, its members that are not known before its end serve the parser: the
// cursor is the element around it, the next sibling its own last child, its end the length of its
// name. So the depth of elements costs neither stack nor memory.
class XmlParser {
  public:
    explicit XmlParser(XMLDocument& document)
        : m_document(document),
          m_arena(*document.m_arena),
          m_text(document.m_text.get()),
          m_tagStarts(m_text, m_text + document.m_length),
          m_open(&document)
    {
    }

    void Parse();

  private:
    const char* ParseTags();
    XMLElement* Append(const char* tag);
    const char* AddChild(const char* tag);
    bool IsEndOfOpen(const char* tag) const;
    const char* CloseWith(const char* tag);
    void Close(const char* dataEnd, const char* elementEnd);
    unsigned Position(const char* p) const { return static_cast<unsigned>(p - m_text); }

    XMLDocument& m_document;
    XmlArena& m_arena;
    const char* const m_text;
    XmlTagStarts m_tagStarts;
    XMLElement* m_open;  // the innermost element that is open; the document when there is none
};

inline XMLElement* XmlParser::Append(const char* tag)
{
    auto* const element = new (m_arena.Allocate()) XMLElement(&m_document);
    element->m_tagStart = Position(tag);
    XMLElement* const previous = std::exchange(m_open->m_nextSibling, element);
    (previous ? previous->m_nextSibling : m_open->m_firstChild) = element;
    return element;
}

// Returns where the search for tags goes on.
inline const char* XmlParser::AddChild(const char* tag)
{
    XMLElement* const element = Append(tag);
    const XmlTagEnds ends = TagEnds(tag);
    const char* const dataStart = ends.tag + (*ends.tag == '>');
    element->m_dataStart = Position(dataStart);
    if (tag[1] == '/')
        m_document.m_error = xmlStrayEndTag;
    if (ends.tag[-1] == '/' || tag[1] == '!' || tag[1] == '/') {
        element->m_dataEnd = element->m_elementEnd = element->m_dataStart;
        return dataStart;
    }
    element->m_elementEnd = static_cast<unsigned>(NameInTag(tag, ends.name, kLongestName).size());
    element->m_cursor = std::exchange(m_open, element);
    return dataStart;
}

// Whether the tag is "</", the open element's name, '>'.
inline bool XmlParser::IsEndOfOpen(const char* tag) const
{
    if (m_open == &m_document || tag[1] != '/')
        return false;
    const char* const name = m_text + m_open->m_tagStart + 1;
    const std::size_t length = m_open->m_elementEnd;
    return BeginsWith(tag + 2, name, length) && tag[2 + length] == '>';
}

inline void XmlParser::Close(const char* dataEnd, const char* elementEnd)
{
    m_open->m_dataEnd = Position(dataEnd);
    m_open->m_elementEnd = Position(elementEnd);
    m_open->m_nextSibling = nullptr;
    m_open = std::exchange(m_open->m_cursor, nullptr);
}

inline const char* XmlParser::CloseWith(const char* tag)
{
    const char* const end = tag + 3 + m_open->m_elementEnd;
    Close(tag, end);
    return end;
}

// Returns the end of the text.
inline const char* XmlParser::ParseTags()
{
    const char* position = m_text;
    for (;;) {
        const char* const tag = m_tagStarts.Next();
        if (tag < position)
            continue;  // inside the tag before
        if (*tag == '\0')
            return tag;
        position = IsEndOfOpen(tag) ? CloseWith(tag) : AddChild(tag);
    }
}

void XmlParser::Parse()
{
    const char* const end = ParseTags();
    if (m_open != &m_document)
        m_document.m_error = xmlMissingEndTag;
    while (m_open != &m_document)
        Close(end, end);
    m_document.m_nextSibling = nullptr;
}

void ParseXml(XMLDocument& document)
{
    XmlParser(document).Parse();
}

}  // namespace qx

#include "core/folded_name.h"
#include "formats/xml_attributes.h"
#include "formats/xml_entities.h"
#include "formats/xml_names.h"

#include <qxutility/core/text.h>
#include <qxutility/formats/xml_document.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

static constexpr std::size_t kLongestSoughtName = 79;

// Sizes of buffers that numbers are read from.
static constexpr int kAttributeNumberSize = 80;
static constexpr int kDataNumberSize = 20;

static int NumberAtStart(const char* text)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(
        std::clamp<long long>(std::strtoll(text, nullptr, 10), Limits::min(), Limits::max()));
}

// Ends a result in the caller's buffer. Only one longer than the buffer is cut for its terminator;
// applications know this boundary.
static void EndResult(char* buffer, std::size_t size, std::size_t length)
{
    if (length < size)
        buffer[length] = '\0';
    else if (length > size)
        buffer[size - 1] = '\0';
}

static std::size_t RoomOf(int size)
{
    return size > 0 ? static_cast<std::size_t>(size) : 0;
}

static void CopyResult(std::string_view result, char* buffer, int size)
{
    if (size <= 0)
        return;
    result.copy(buffer, RoomOf(size));
    EndResult(buffer, RoomOf(size), result.size());
}

// The parts of an element in the text of its document.
class qx::XmlView {
  public:
    static std::string_view Name(const XMLElement& element, std::size_t longest)
    {
        if (element.GetElementLength() == 0)  // a document's, when it has no data of its own
            return {};
        const char* const tag = At(element, element.m_tagStart);
        return NameInTag(tag, TagEnds(tag).name, longest);
    }
    static XmlAttributes& Attributes(const XMLElement& element)
    {
        XmlAttributes& attributes = *element.m_document->m_attributes;
        attributes.Use({At(element, element.m_tagStart), element.m_dataStart - element.m_tagStart});
        return attributes;
    }
    // Up to a NUL, which only the data of a document can contain, and the length given.
    static std::string_view Data(const XMLElement& element, std::size_t longest)
    {
        const std::size_t length = std::min<std::size_t>(element.GetDataLength(), longest);
        const std::string_view data(At(element, element.m_dataStart), length);
        return data.substr(0, data.find('\0'));
    }
    // Keeps an error for GetError; returns false.
    static bool Report(const XMLElement& element, errorcode error)
    {
        if (error != xmlNoError)
            element.m_document->m_error = error;
        return false;
    }

  private:
    static const char* At(const XMLElement& element, unsigned position)
    {
        return element.m_document->m_text.get() + position;
    }
};

using qx::XmlView;

XMLElement::~XMLElement() = default;

XMLElement* XMLElement::FindElement(const char* name)
{
    m_cursor = nullptr;
    if (!name)
        return nullptr;
    const std::string_view wanted = name;
    for (XMLElement* child = m_firstChild; child; child = child->m_nextSibling)
        if (XmlView::Name(*child, kLongestSoughtName) == wanted)
            m_cursor = child;
    return m_cursor;
}

XMLElement* XMLElement::FirstElement()
{
    return m_cursor = m_firstChild;
}

XMLElement* XMLElement::NextElement()
{
    return m_cursor = m_cursor ? m_cursor->m_nextSibling : m_firstChild;
}

void XMLElement::GetElementName(char* buffer, int size) const
{
    if (size <= 0)
        return;
    const std::size_t room = RoomOf(size) - 1;
    buffer[XmlView::Name(*this, room).copy(buffer, room)] = '\0';
}

bool XMLElement::ReadAttribute(int index, char* buffer, int size) const
{
    if (index < 0)
        return false;
    qx::XmlAttributes& attributes = XmlView::Attributes(*this);
    const qx::XmlAttribute* const found = attributes.At(static_cast<std::size_t>(index));
    if (!found)
        return XmlView::Report(*this, attributes.Error());
    CopyResult(found->name, buffer, size);
    return true;
}

bool XMLElement::ReadAttribute(const char* name, char* buffer, int size,
                               const char* defaultValue) const
{
    qx::XmlAttributes& attributes = XmlView::Attributes(*this);
    const qx::XmlAttribute* const found = attributes.Find(name ? name : "");
    if (!found) {
        CopyResult(defaultValue ? defaultValue : "", buffer, size);
        return XmlView::Report(*this, attributes.Error());
    }
    const std::size_t room = RoomOf(size);
    EndResult(buffer, room, qx::XmlUnescape(found->value, buffer, room));
    return true;
}

bool XMLElement::ReadAttribute(const char* name, int& value, int defaultValue) const
{
    char text[kAttributeNumberSize + 1] = "";  // with a terminator for a text that fills it
    const std::string number = std::to_string(defaultValue);
    const bool found = ReadAttribute(name, text, kAttributeNumberSize, number.c_str());
    value = NumberAtStart(text);
    return found;
}

bool XMLElement::ReadSubElement(const char* name, char* buffer, int size, const char* defaultValue)
{
    if (const XMLElement* child = FindElement(name))
        return child->ReadData(buffer, size);
    rstrncpy(buffer, defaultValue ? defaultValue : "", static_cast<unsigned>(RoomOf(size)));
    return false;
}

bool XMLElement::ReadSubElement(const char* name, int& value, int defaultValue)
{
    char text[kDataNumberSize];
    const std::string number = std::to_string(defaultValue);
    const bool found = ReadSubElement(name, text, kDataNumberSize, number.c_str());
    value = NumberAtStart(text);
    return found;
}

bool XMLElement::ReadData(char* buffer, int size) const
{
    if (size <= 0)
        return false;
    const std::size_t room = RoomOf(size) - 1;
    const std::size_t length = qx::XmlUnescape(XmlView::Data(*this, room), buffer, room);
    buffer[length] = '\0';
    return length > 0;
}

errorcode XMLElement::GetError() const
{
    return m_document->m_error;
}

void XMLElement::Erase()
{
    m_tagStart = m_elementEnd = m_dataStart = m_dataEnd = 0;
    m_firstChild = m_nextSibling = m_cursor = nullptr;
}

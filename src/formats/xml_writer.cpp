#include "formats/whole_file.h"
#include "formats/xml_entities.h"

#include <qxutility/formats/xml_writer.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace {

// A text that grows by a fixed amount.
class GrowingText {
  public:
    explicit GrowingText(std::size_t growth) : m_growth(growth) { Reallocate(5 * growth); }
    GrowingText(const GrowingText& other) : m_growth(other.m_growth)
    {
        Reallocate(other.m_capacity);
        Append(other.View());
    }
    GrowingText& operator=(const GrowingText&) = delete;
    ~GrowingText() { std::free(m_text); }

    std::string_view View() const { return {m_text, m_length}; }

    void Append(std::string_view piece)
    {
        const std::size_t needed = m_length + piece.size() + 1;
        if (needed > m_capacity)
            Reallocate(std::max(m_capacity + m_growth, needed));
        piece.copy(m_text + m_length, piece.size());
        m_length += piece.size();
        m_text[m_length] = '\0';
    }

  private:
    // Large texts are most often enlarged where they are.
    void Reallocate(std::size_t capacity)
    {
        void* const text = std::realloc(m_text, std::max<std::size_t>(capacity, 1));
        if (!text)
            throw std::bad_alloc();
        m_text = static_cast<char*>(text);
        m_capacity = capacity;
    }

    std::size_t m_growth;
    std::size_t m_capacity = 0, m_length = 0;
    char* m_text = nullptr;
};

// An element begun and not yet ended.
struct OpenElement {
    std::string startTag;
    std::string data;  // escaped
    std::size_t indent;
    bool isStarted = false;  // the start tag is in the text

    // The start tag on its line, as far as a child or the end tag.
    std::string Start() const { return std::string(indent, ' ') + startTag + data; }
    // The name ends at the first space.
    std::string EndTag() const
    {
        const std::size_t end = std::min(startTag.find(' '), startTag.size() - 1);
        return "</" + startTag.substr(1, end - 1) + ">\r\n";
    }
};

const char* OrEmpty(const char* text)
{
    return text ? text : "";
}

}  // namespace

struct XMLWriter::State {
    explicit State(unsigned growth) : text(growth) {}

    OpenElement* Innermost() { return open.empty() ? nullptr : &open.back(); }

    std::vector<OpenElement> open;
    GrowingText text;
};

XMLWriter::XMLWriter(unsigned growth) : m_state(std::make_unique<State>(growth)) {}
XMLWriter::XMLWriter(const XMLWriter& other) : m_state(std::make_unique<State>(*other.m_state)) {}
XMLWriter::~XMLWriter() = default;

XMLWriter& XMLWriter::operator=(const XMLWriter& other)
{
    m_state = std::make_unique<State>(*other.m_state);
    return *this;
}

void XMLWriter::BeginElement(const char* name)
{
    if (OpenElement* parent = m_state->Innermost(); parent && !parent->isStarted) {
        m_state->text.Append(parent->Start() + "\r\n");
        parent->isStarted = true;
    }
    std::string startTag = std::string("<") + OrEmpty(name) + ">";
    m_state->open.push_back({std::move(startTag), "", 2 * m_state->open.size()});
}

void XMLWriter::AddAttribute(const char* name, const char* value)
{
    OpenElement* const element = m_state->Innermost();
    if (!element)
        return;
    element->startTag.pop_back();
    element->startTag +=
        std::string(" ") + OrEmpty(name) + "=\"" + qx::XmlEscape(OrEmpty(value)) + "\">";
}

void XMLWriter::AddAttribute(const char* name, int value)
{
    AddAttribute(name, std::to_string(value).c_str());
}

void XMLWriter::SetData(const char* text)
{
    if (OpenElement* element = m_state->Innermost())
        element->data = qx::XmlEscape(OrEmpty(text));
}

void XMLWriter::SetData(int value)
{
    SetData(std::to_string(value).c_str());
}

void XMLWriter::EndElement()
{
    const OpenElement* const element = m_state->Innermost();
    if (!element)
        return;
    const std::string start =
        element->isStarted ? std::string(element->indent, ' ') : element->Start();
    m_state->text.Append(start + element->EndTag());
    m_state->open.pop_back();
}

void XMLWriter::StrCat(const char* text)
{
    m_state->text.Append(OrEmpty(text));
}

unsigned XMLWriter::StrLen() const
{
    return static_cast<unsigned>(m_state->text.View().size());
}

void XMLWriter::StrCpy(char* destination, unsigned size) const
{
    const std::string_view text = m_state->text.View();
    if (size == 0)
        return;
    text.copy(destination, size);
    if (text.size() < size)
        destination[text.size()] = '\0';
    else if (size < text.size())  // at equal lengths no terminator is written; callers know it
        destination[size - 1] = '\0';
}

bool XMLWriter::SaveToDisk(const char* path) const
{
    const std::string_view text = m_state->text.View();
    return qx::WriteWholeFile(path, text) && !text.empty();
}

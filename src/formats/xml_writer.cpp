#include "formats/whole_file.h"
#include "formats/xml_entities.h"

#include <qxutility/formats/xml_writer.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace {

// A text that grows by a fixed amount, and behind it a draft that is not yet part of it.
class GrowingText {
  public:
    explicit GrowingText(std::size_t growth) : m_growth(growth) { Reallocate(5 * growth); }
    GrowingText(const GrowingText& other) : m_growth(other.m_growth)
    {
        Reallocate(other.m_capacity);
        Append({other.m_text, other.m_end});
        m_length = other.m_length;
    }
    GrowingText& operator=(const GrowingText&) = delete;
    ~GrowingText() { std::free(m_text); }

    std::string_view View() const { return {m_text, m_length}; }
    // Of the draft.
    std::size_t End() const { return m_end; }
    const char* At(std::size_t position) const { return m_text + position; }

    // Makes the draft longer; returns where that begins.
    char* Extend(std::size_t by)
    {
        const std::size_t needed = m_end + by + 1;
        if (needed > m_capacity)
            Reallocate(std::max(m_capacity + m_growth, needed));
        char* const start = m_text + m_end;
        m_end += by;
        return start;
    }
    void Append(std::string_view piece) { piece.copy(Extend(piece.size()), piece.size()); }
    void AppendSpaces(std::size_t count) { std::memset(Extend(count), ' ', count); }
    void CutAt(std::size_t position) { m_end = position; }
    void Insert(std::size_t position, std::string_view piece)
    {
        const std::size_t tail = m_end - position;
        Extend(piece.size());
        std::memmove(m_text + position + piece.size(), m_text + position, tail);
        piece.copy(m_text + position, piece.size());
    }
    // Before the draft.
    void InsertIntoText(std::string_view piece)
    {
        Insert(m_length, piece);
        m_length += piece.size();
    }
    // Makes the draft part of the text.
    void Take() { m_length = m_end; }

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
    std::size_t m_capacity = 0, m_length = 0, m_end = 0;
    char* m_text = nullptr;
};

// An element begun and not yet ended: where its name stands.
struct OpenElement {
    std::size_t name, nameLength;
};

const char* OrEmpty(const char* text)
{
    return text ? text : "";
}

}  // namespace

struct XMLWriter::State {
    explicit State(unsigned growth) : text(growth) {}

    void SetData(std::string_view escaped)
    {
        text.CutAt(dataStart);
        text.Append(escaped);
    }

    std::vector<OpenElement> open;
    // The innermost open element is the draft as long as it has no child.
    bool isDraft = false;
    std::size_t dataStart = 0;  // of the draft
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

// The name ends at the first space.
void XMLWriter::BeginElement(const char* name)
{
    State& state = *m_state;
    if (state.isDraft) {
        state.text.Append("\r\n");
        state.text.Take();
    }
    const std::string_view whole = OrEmpty(name);
    state.text.AppendSpaces(2 * state.open.size());
    char* const tag = state.text.Extend(whole.size() + 2);
    tag[0] = '<';
    whole.copy(tag + 1, whole.size());
    tag[whole.size() + 1] = '>';
    state.isDraft = true;
    state.dataStart = state.text.End();
    state.open.push_back(
        {state.dataStart - whole.size() - 1, std::min(whole.find(' '), whole.size())});
}

void XMLWriter::AddAttribute(const char* name, const char* value)
{
    State& state = *m_state;
    if (!state.isDraft)
        return;
    std::string attribute = " ";
    attribute.append(OrEmpty(name)).append("=\"");
    qx::AppendXmlEscaped(OrEmpty(value), attribute);
    attribute += '"';
    state.text.Insert(state.dataStart - 1, attribute);
    state.dataStart += attribute.size();
}

void XMLWriter::AddAttribute(const char* name, int value)
{
    AddAttribute(name, std::to_string(value).c_str());
}

void XMLWriter::SetData(const char* text)
{
    if (!m_state->isDraft)
        return;
    std::string escaped;
    qx::AppendXmlEscaped(OrEmpty(text), escaped);
    m_state->SetData(escaped);
}

void XMLWriter::SetData(int value)
{
    char text[16];
    const char* const end = std::to_chars(std::begin(text), std::end(text), value).ptr;
    if (m_state->isDraft)
        m_state->SetData({text, end});
}

void XMLWriter::EndElement()
{
    State& state = *m_state;
    if (state.open.empty())
        return;
    const OpenElement element = state.open.back();
    state.open.pop_back();
    if (!state.isDraft)
        state.text.AppendSpaces(2 * state.open.size());
    char* end = state.text.Extend(element.nameLength + 5);
    end = std::copy_n("</", 2, end);
    end = std::copy_n(state.text.At(element.name), element.nameLength, end);
    std::copy_n(">\r\n", 3, end);
    state.text.Take();
    state.isDraft = false;
}

void XMLWriter::StrCat(const char* text)
{
    State& state = *m_state;
    const std::string_view piece = OrEmpty(text);
    state.text.InsertIntoText(piece);
    if (state.isDraft) {
        state.open.back().name += piece.size();
        state.dataStart += piece.size();
    }
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

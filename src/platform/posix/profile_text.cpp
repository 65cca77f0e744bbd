#include "platform/posix/profile_text.h"

#include "core/folded_name.h"

#include <algorithm>

namespace qx::profile {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Ctrl-Z ended files once, and still stands at the end of some.
bool IsBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r') || c == '\x1A';
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

// A NUL ends a name or value, as it does for whoever reads the result.
std::string_view Word(std::string_view text)
{
    return Trimmed(text.substr(0, text.find('\0')));
}

struct Line {
    enum Kind { Blank, Header, Entry };
    Kind kind = Blank;
    std::size_t begin = 0, end = 0;         // offsets in the text, the line end included
    std::string_view name;                  // of the section or the key
    std::optional<std::string_view> value;  // nothing when the line has no '='

    bool IsComment() const { return name.starts_with(';'); }
};

void Parse(std::string_view trimmed, Line& line)
{
    if (trimmed.empty())
        return;
    // The last ']' counts: a name may contain others. Without one it is a line like any other.
    const std::size_t close = trimmed.front() == '[' ? trimmed.rfind(']') : std::string_view::npos;
    if (close != std::string_view::npos) {
        line.kind = Line::Header;
        line.name = Word(trimmed.substr(1, close - 1));
        return;
    }
    line.kind = Line::Entry;
    const std::size_t equals = trimmed.find('=');
    line.name = Word(trimmed.substr(0, equals));
    if (equals != std::string_view::npos)
        line.value = Word(trimmed.substr(equals + 1));
}

class Lines {
  public:
    explicit Lines(std::string_view text) : m_text(text)
    {
        if (text.starts_with(kByteOrderMark))
            m_position = kByteOrderMark.size();
    }

    // The next line; nothing at the end.
    std::optional<Line> Next()
    {
        if (m_position >= m_text.size())
            return std::nullopt;
        Line line;
        line.begin = m_position;
        line.end = m_position = LineEnd();
        Parse(Trimmed(m_text.substr(line.begin, line.end - line.begin)), line);
        return line;
    }

  private:
    // A line ends at CR LF, LF or CR.
    std::size_t LineEnd() const
    {
        const std::size_t end = m_text.find_first_of("\r\n", m_position);
        if (end == std::string_view::npos)
            return m_text.size();
        return end + (m_text.substr(end).starts_with("\r\n") ? 2 : 1);
    }

    std::string_view m_text;
    std::size_t m_position = 0;
};

// The lines below the first header of this name.
class SectionReader {
  public:
    SectionReader(std::string_view text, std::string_view section)
        : m_lines(text), m_end(text.size())
    {
        section = Trimmed(section);
        while (!m_header) {
            const auto line = m_lines.Next();
            if (!line)
                return;
            if (line->kind == Line::Header && SameName(line->name, section))
                m_header = line;
        }
        m_inside = true;
    }

    const std::optional<Line>& Header() const { return m_header; }

    // The offset where the section ends; known when Next has returned nothing.
    std::size_t End() const { return m_end; }

    // The next line that is not blank; nothing at the end of the section.
    std::optional<Line> Next()
    {
        while (m_inside) {
            const auto line = m_lines.Next();
            m_inside = line && line->kind != Line::Header;
            if (line && !m_inside)
                m_end = line->begin;
            if (m_inside && line->kind == Line::Entry)
                return line;
        }
        return std::nullopt;
    }

    std::optional<Line> Find(std::string_view key)
    {
        key = Trimmed(key);
        while (auto line = Next())
            if (SameName(line->name, key))
                return line;
        return std::nullopt;
    }

  private:
    Lines m_lines;
    std::optional<Line> m_header;
    bool m_inside = false;
    std::size_t m_end;
};

// The way this text ends its lines.
std::string_view LineEndOf(std::string_view text)
{
    const std::size_t lf = text.find('\n');
    const bool bare = lf != std::string_view::npos && (lf == 0 || text[lf - 1] != '\r');
    return bare ? "\n" : "\r\n";
}

bool EndsLine(std::string_view text)
{
    return text.empty() || text == kByteOrderMark || text.back() == '\n' || text.back() == '\r';
}

void ReplaceValue(std::string& text, const Line& line, std::string_view value)
{
    if (!line.value) {  // a lone name becomes a key
        const auto nameEnd =
            static_cast<std::size_t>(line.name.data() - text.data()) + line.name.size();
        text.insert(nameEnd, "=" + std::string(value));
        return;
    }
    const std::size_t start = static_cast<std::size_t>(line.value->data() - text.data());
    const std::size_t lineEnd = text.find_first_of("\r\n", start);
    text.replace(start, std::min({lineEnd, line.end, text.size()}) - start, value);
}

std::string EntryText(std::string_view key, std::string_view value, std::string_view lineEnd)
{
    return std::string(key).append("=").append(value).append(lineEnd);
}

}  // namespace

std::optional<std::string_view> FindValue(std::string_view text, std::string_view section,
                                          std::string_view key)
{
    const auto line = SectionReader(text, section).Find(key);
    return line ? line->value : std::nullopt;
}

std::string SectionNames(std::string_view text)
{
    std::string list;
    Lines lines(text);
    while (const auto line = lines.Next())
        if (line->kind == Line::Header && !line->name.empty())
            list.append(line->name).push_back('\0');
    return list;
}

std::string KeyNames(std::string_view text, std::string_view section)
{
    std::string list;
    SectionReader reader(text, section);
    while (const auto line = reader.Next())
        if (line->value && !line->name.empty() && !line->IsComment())
            list.append(line->name).push_back('\0');
    return list;
}

std::string SectionLines(std::string_view text, std::string_view section)
{
    std::string list;
    SectionReader reader(text, section);
    while (const auto line = reader.Next()) {
        if (line->IsComment())
            continue;
        list.append(line->name);
        if (line->value)
            list.append("=").append(*line->value);
        list.push_back('\0');
    }
    return list;
}

void SetValue(std::string& text, std::string_view section, std::string_view key,
              std::string_view value)
{
    const std::string_view lineEnd = LineEndOf(text);
    SectionReader reader(text, section);
    if (!reader.Header()) {
        if (!EndsLine(text))
            text += lineEnd;
        text.append("[").append(Trimmed(section)).append("]").append(lineEnd);
        text += EntryText(Trimmed(key), value, lineEnd);
        return;
    }
    std::size_t end = reader.Header()->end;  // of the section's last line that is not blank
    while (const auto line = reader.Next()) {
        if (SameName(line->name, Trimmed(key)))
            return ReplaceValue(text, *line, value);
        end = line->end;
    }
    std::string entry = EntryText(Trimmed(key), value, lineEnd);
    if (!EndsLine(std::string_view(text).substr(0, end)))
        entry.insert(0, lineEnd);
    text.insert(end, entry);
}

void DeleteKey(std::string& text, std::string_view section, std::string_view key)
{
    if (const auto line = SectionReader(text, section).Find(key))
        text.erase(line->begin, line->end - line->begin);
}

void DeleteSection(std::string& text, std::string_view section)
{
    SectionReader reader(text, section);
    if (!reader.Header())
        return;
    while (reader.Next())
        continue;
    text.erase(reader.Header()->begin, reader.End() - reader.Header()->begin);
}

std::string_view WithoutQuotes(std::string_view value)
{
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

// Copies the first `length` bytes and ends them with `nuls` NULs.
static DWORD Copy(std::string_view text, std::size_t length, int nuls, char* out)
{
    text.copy(out, length);
    std::fill_n(out + length, nuls, '\0');
    return static_cast<DWORD>(length);
}

DWORD CopyValue(std::string_view value, char* out, DWORD size)
{
    return size == 0 ? 0 : Copy(value, std::min<std::size_t>(value.size(), size - 1), 1, out);
}

DWORD CopyList(std::string_view list, char* out, DWORD size)
{
    if (size < 2)
        return CopyValue({}, out, size);
    // What fits only just counts as cut, for the system as well.
    const bool fits = list.size() + 1 < size;
    return Copy(list, fits ? list.size() : size - 2, 2, out);
}

}  // namespace qx::profile

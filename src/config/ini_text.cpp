#include "config/ini_text.h"

#include "core/folded_name.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace qx {

namespace {

// What is skipped between a line's end and the next key: controls, blanks, and, as they count as
// negative numbers, the characters above 127. A key that starts with such a letter loses it; files
// in the field are read like this.
bool IsSkipped(char c)
{
    return static_cast<signed char>(c) < 33 || c == 127;
}

bool IsTrimmed(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

}  // namespace

// The slot of the entry that `same` says is looked for, or the empty one where it belongs.
template <typename Slots, typename Same>
auto& IniText::Probe(Slots& slots, std::uint64_t hash, Same same)
{
    const auto slotHash = static_cast<std::uint32_t>(hash >> 32);
    std::size_t i = slotHash >> (32 - std::countr_zero(slots.size()));
    while (slots[i].index != kNone && (slots[i].hash != slotHash || !same(slots[i].index)))
        i = (i + 1) & (slots.size() - 1);
    return slots[i];
}

// Makes room for `count` entries.
void IniText::Grow(std::vector<Slot>& slots, std::size_t count)
{
    std::vector<Slot> grown(std::max(std::bit_ceil(2 * count), slots.size()));
    for (const Slot& slot : slots)
        if (slot.index != kNone)
            Probe(grown, std::uint64_t{slot.hash} << 32, [](auto) { return false; }) = slot;
    slots = std::move(grown);
}

// Goes through the text once.
class IniText::Reader {
  public:
    explicit Reader(IniText& ini)
        : m_ini(ini),
          m_begin(ini.m_text.data()),
          m_end(m_begin + ini.m_text.size()),
          m_hasNul(ini.m_text.find('\0') != std::string::npos)
    {
    }

    bool Read()
    {
        const char* position = Find(m_begin, '[', m_end);
        while (position != m_end) {
            const char* close = Find(position + 1, ']', m_end);
            if (close == m_end)
                return false;
            const std::uint32_t section = m_ini.SectionNamed(Word(position + 1, close));
            position = ReadKeys(section, Skip(close + 1));
            if (!position)
                return false;
        }
        return true;
    }

  private:
    static const char* Find(const char* from, char c, const char* end)
    {
        const void* found = std::memchr(from, c, static_cast<std::size_t>(end - from));
        return found ? static_cast<const char*>(found) : end;
    }

    const char* Skip(const char* from) const
    {
        while (from != m_end && IsSkipped(*from))
            ++from;
        return from;
    }

    // Up to the next '[' at the start of a line; null at a line without '='.
    const char* ReadKeys(std::uint32_t section, const char* line)
    {
        while (line != m_end && *line != '[') {
            const char* lineEnd = Find(line, '\n', m_end);
            const char* equals = Find(line, '=', lineEnd);
            if (equals == lineEnd)
                return nullptr;
            const Part key = Trimmed(line, equals), value = Trimmed(equals + 1, lineEnd);
            line = lineEnd == m_end ? m_end : Skip(lineEnd + 1);
            m_ini.m_text[value.begin + value.length] = '\0';
            m_ini.SetValue(section, key, value);
        }
        return line;
    }

    // A NUL ends a name or value.
    Part Word(const char* begin, const char* end) const
    {
        if (m_hasNul)
            end = std::find(begin, end, '\0');
        return {static_cast<std::uint32_t>(begin - m_begin),
                static_cast<std::uint32_t>(end - begin)};
    }

    Part Trimmed(const char* begin, const char* end) const
    {
        while (begin != end && IsTrimmed(*begin))
            ++begin;
        if (m_hasNul)
            end = std::find(begin, end, '\0');
        while (begin != end && IsTrimmed(end[-1]))
            --end;
        return Word(begin, end);
    }

    IniText& m_ini;
    const char *m_begin, *m_end;
    bool m_hasNul;
};

bool IniText::Read(std::string text)
{
    constexpr std::size_t kUsualLine = 24;
    *this = IniText();
    if (text.size() >= kNone)
        return false;
    m_text = std::move(text);
    m_keys.reserve(m_text.size() / kUsualLine);
    Grow(m_keySlots, m_text.size() / kUsualLine);
    return Reader(*this).Read();
}

bool IniText::IsSection(std::uint32_t index, std::string_view name) const
{
    return SameName(View(m_sections[index].name), name);
}

bool IniText::IsKey(std::uint32_t index, std::string_view section, std::string_view name) const
{
    return SameName(View(m_keys[index].name), name) &&
           SameName(View(m_keys[index].section), section);
}

std::uint32_t IniText::SectionNamed(Part name)
{
    const std::uint64_t hash = HashName(View(name), 0);
    Slot& slot = Probe(m_sectionSlots, hash, [&](auto i) { return IsSection(i, View(name)); });
    if (slot.index != kNone)
        return slot.index;
    const auto index = static_cast<std::uint32_t>(m_sections.size());
    slot = {static_cast<std::uint32_t>(hash >> 32), index};
    m_sections.push_back({name, hash, kNone});
    if (2 * m_sections.size() > m_sectionSlots.size())
        Grow(m_sectionSlots, 2 * m_sections.size());
    return index;
}

// A later value of a key takes the place of an earlier one.
void IniText::SetValue(std::uint32_t section, Part key, Part value)
{
    Section& owner = m_sections[section];
    const std::uint64_t hash = HashName(View(key), owner.hash);
    Slot& slot =
        Probe(m_keySlots, hash, [&](auto i) { return IsKey(i, View(owner.name), View(key)); });
    if (slot.index != kNone) {
        m_keys[slot.index].value = value;
        return;
    }
    slot = {static_cast<std::uint32_t>(hash >> 32), static_cast<std::uint32_t>(m_keys.size())};
    m_keys.push_back({key, value, owner.name, owner.lastKey});
    owner.lastKey = slot.index;
    if (2 * m_keys.size() > m_keySlots.size())
        Grow(m_keySlots, 2 * m_keys.size());
}

std::string_view IniText::Find(std::string_view section, std::string_view key) const
{
    const std::uint64_t hash = HashName(key, HashName(section, 0));
    const auto index =
        Probe(m_keySlots, hash, [&](auto i) { return IsKey(i, section, key); }).index;
    return index == kNone ? std::string_view("") : View(m_keys[index].value);
}

std::string IniText::KeyList(std::string_view section) const
{
    std::string list;
    std::vector<std::string_view> names;
    const Slot& slot =
        Probe(m_sectionSlots, HashName(section, 0), [&](auto i) { return IsSection(i, section); });
    if (slot.index == kNone)
        return list;
    for (std::uint32_t key = m_sections[slot.index].lastKey; key != kNone;
         key = m_keys[key].previous)
        names.push_back(View(m_keys[key].name));
    std::sort(names.begin(), names.end(), NameBefore);
    for (const std::string_view name : names)
        list.append(name).push_back('\0');
    return list;
}

}  // namespace qx

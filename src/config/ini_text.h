// An INI file's text, read as INIFile reads it: every line of a section is key=value, there are no
// comments. Look-ups take no notice of the case of letters.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qx {

// Names and values are parts of the one copy of the text; a hash table leads to the keys of all
// sections. The order of a section's keys is found when it is asked for.
class IniText {
  public:
    // Reads a text of less than 4 GB. False at a section name without ']' and at a line without
    // '=': what stands before them can be looked up.
    bool Read(std::string text);

    // The value, NUL-terminated, valid until the object changes; the empty text when there is none.
    std::string_view Find(std::string_view section, std::string_view key) const;
    // The section's keys in alphabetical order, each ended by NUL.
    std::string KeyList(std::string_view section) const;

  private:
    struct Part {
        std::uint32_t begin = 0, length = 0;
    };
    struct Section {
        Part name;
        std::uint64_t hash;
        std::uint32_t lastKey;  // of the chain of its keys; kNone when it has none
    };
    struct Key {
        Part name, value, section;
        std::uint32_t previous;  // of the same section
    };
    struct Slot {
        std::uint32_t hash = 0, index = kNone;
    };
    static std::vector<Slot> NoSlots() { return std::vector<Slot>(8); }
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    class Reader;

    std::string_view View(Part part) const { return {m_text.data() + part.begin, part.length}; }
    template <typename Slots, typename Same>
    static auto& Probe(Slots& slots, std::uint64_t hash, Same same);
    static void Grow(std::vector<Slot>& slots, std::size_t count);
    bool IsSection(std::uint32_t index, std::string_view name) const;
    bool IsKey(std::uint32_t index, std::string_view section, std::string_view name) const;
    std::uint32_t SectionNamed(Part name);
    void SetValue(std::uint32_t section, Part key, Part value);

    std::string m_text;
    std::vector<Section> m_sections;
    std::vector<Key> m_keys;
    // Open addressing, linear probing; a power of two, at most half full.
    std::vector<Slot> m_sectionSlots = NoSlots(), m_keySlots = NoSlots();
};

}  // namespace qx

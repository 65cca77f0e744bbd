// Look-ups in a table that do not go through its rows.
#pragma once

#include "config/hash_slots.h"
#include "config/language_code.h"
#include "config/table.h"
#include "core/text_key.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace qx {

// The rows of a table by the text of one column.
class KeyIndex {
  public:
    static constexpr std::uint32_t kNone = HashSlots::kNone;

    KeyIndex(const Column& keys, int rowCount, Case rule);
    // The first row with this key, and the next one with the same key, in row order; or kNone.
    std::uint32_t First(std::string_view key) const;
    std::uint32_t Next(std::uint32_t row) const { return m_next[row]; }

  private:
    auto HasKey(std::string_view key) const
    {
        return [this, key](std::uint32_t row) {
            return EqualKeys(m_keys.Of(row).View(), key, m_rule);
        };
    }

    const Column& m_keys;
    Case m_rule;
    HashSlots m_first;
    std::vector<std::uint32_t> m_next;
};

// The strings of one language by their number, as they are shown.
class StringIndex {
  public:
    StringIndex(const Table& table, LanguageCode code);

    bool IsFor(LanguageCode code) const { return m_code == code; }
    bool Covers(unsigned id) const { return id < m_where.size(); }
    // The text of a number that is covered; kMissingString when the table has none.
    std::string_view operator[](unsigned id) const { return m_texts.At(m_where[id]).View(); }

  private:
    LanguageCode m_code;
    std::vector<std::uint32_t> m_where;  // by number; no longer than the largest one needs
    Texts m_texts;
};

// Wordings of one language in another, as they are shown. Case does not matter.
class WordingIndex {
  public:
    WordingIndex(const Table& table, LanguageCode from, LanguageCode to);

    bool IsFor(LanguageCode from, LanguageCode to) const { return m_from == from && m_to == to; }
    // The translation of a wording as the table has it; without data when there is none.
    std::string_view Find(std::string_view wording) const;

  private:
    auto IsWording(std::string_view wording) const
    {
        return [this, wording](std::uint32_t where) {
            return EqualKeys<Case::Ignored>(m_texts.At(where).View(), wording);
        };
    }

    LanguageCode m_from, m_to;
    HashSlots m_where;
    Texts m_texts;  // each wording with its translation behind it
};

// Things made on first use, by whichever thread is first, and kept. Few: they are searched in turn.
template <class T>
class MadeOnce {
  public:
    MadeOnce() = default;
    MadeOnce(const MadeOnce&) = delete;
    MadeOnce& operator=(const MadeOnce&) = delete;
    ~MadeOnce()
    {
        for (const Link* link = m_first; link;)
            delete std::exchange(link, link->older);
    }
    // The thing for which isIt(thing) holds, or a new one of these arguments.
    template <class IsIt, class... Arguments>
    const T& Get(IsIt isIt, const Arguments&... arguments) const
    {
        const Link* link = m_first.load(std::memory_order_acquire);
        while (link && !isIt(link->thing))
            link = link->older;
        return link ? link->thing : Make(arguments...);
    }

  private:
    struct Link {
        T thing;
        const Link* older;
    };
    template <class... Arguments>
    const T& Make(const Arguments&... arguments) const
    {
        auto* made = new Link{T(arguments...), m_first.load()};
        while (!m_first.compare_exchange_weak(made->older, made)) {
        }
        return made->thing;
    }

    mutable std::atomic<const Link*> m_first = nullptr;
};

// A table and the indexes that its look-ups have asked for so far.
class IndexedTable {
  public:
    explicit IndexedTable(Table table);

    const Table& Cells() const { return m_table; }
    // For a column of a valid table.
    const KeyIndex& Keys(int column, Case rule) const;
    // The first cell of `resultColumn` in row order that is not empty and whose row has the key in
    // `keyColumn`; a missing one when there is none.
    Cell FindFirst(int keyColumn, std::string_view key, Case rule, int resultColumn) const;
    const StringIndex& Strings(LanguageCode code) const
    {
        return m_strings.Get([=](const StringIndex& index) { return index.IsFor(code); }, m_table,
                             code);
    }
    const WordingIndex& Wordings(LanguageCode from, LanguageCode to) const
    {
        return m_wordings.Get([=](const WordingIndex& index) { return index.IsFor(from, to); },
                              m_table, from, to);
    }

  private:
    Table m_table;
    std::unique_ptr<MadeOnce<KeyIndex>[]> m_keys;  // by column and rule
    MadeOnce<StringIndex> m_strings;
    MadeOnce<WordingIndex> m_wordings;
};

}  // namespace qx

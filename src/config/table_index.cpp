#include "config/table_index.h"

#include "config/language_table.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace qx {

namespace {

std::uint32_t RowCount(const Table& table)
{
    return static_cast<std::uint32_t>(table.RowCount());
}

// Numbers from here on are found by their text, so that one huge number costs no huge index.
std::size_t DirectLimit(const Table& table)
{
    constexpr std::size_t kLargest = 0x7FFFFFFF;  // beyond it a number's text is another one
    return std::min(0x10000 + 4 * static_cast<std::size_t>(RowCount(table)), kLargest);
}

// The number whose decimal text this is, to the letter ("7", not "07" or "+7").
std::optional<unsigned> NumberOf(std::string_view text)
{
    unsigned number = 0;
    const char* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, number);
    const bool exact = parsed.ec == std::errc() && parsed.ptr == end;
    return exact && (text[0] != '0' || text.size() == 1) ? std::optional(number) : std::nullopt;
}

}  // namespace

KeyIndex::KeyIndex(const Column& keys, int rowCount, Case rule)
    : m_keys(keys),
      m_rule(rule),
      m_first(static_cast<std::size_t>(rowCount)),
      m_next(static_cast<std::size_t>(rowCount), kNone)
{
    // From the last row to the first, so that each key's rows are linked in row order.
    for (auto row = static_cast<std::uint32_t>(rowCount); row-- > 0;) {
        const Cell key = keys.Of(row);
        if (key.Missing())
            continue;
        std::uint32_t& first = m_first.Place(HashKey(key.View(), rule), HasKey(key.View()));
        m_next[row] = std::exchange(first, row);
    }
}

std::uint32_t KeyIndex::First(std::string_view key) const
{
    return m_first.Find(HashKey(key, m_rule), HasKey(key));
}

StringIndex::StringIndex(const Table& table, LanguageCode code) : m_code(code)
{
    if (!table.Valid())
        return;
    const int numbers = table.FindColumn("IDS");
    const int strings = table.FindColumn(code.text);
    const std::uint32_t missing = m_texts.Add(kMissingString);
    for (std::uint32_t row = 0; row < RowCount(table); ++row) {
        const std::optional<unsigned> number = NumberOf(table.CellAt(row, numbers).View());
        const Cell string = table.CellAt(row, strings);
        if (!number || *number >= DirectLimit(table) || string.length == 0)
            continue;
        if (!Covers(*number))
            m_where.resize(*number + 1, missing);
        if (m_where[*number] == missing)
            m_where[*number] = m_texts.Add(ShownText(string.View()));
    }
}

WordingIndex::WordingIndex(const Table& table, LanguageCode from, LanguageCode to)
    : m_from(from), m_to(to), m_where(RowCount(table))
{
    const int wordings = table.FindColumn(from.text);
    const int translations = table.FindColumn(to.text);
    for (std::uint32_t row = 0; row < RowCount(table); ++row) {
        const Cell wording = table.CellAt(row, wordings);
        const Cell translation = table.CellAt(row, translations);
        if (wording.Missing() || translation.length == 0)
            continue;
        std::uint32_t& where =
            m_where.Place(HashKey<Case::Ignored>(wording.View()), IsWording(wording.View()));
        if (where != HashSlots::kNone)
            continue;
        where = m_texts.Add(wording.View());
        m_texts.Add(ShownText(translation.View()));
    }
}

std::string_view WordingIndex::Find(std::string_view wording) const
{
    const std::uint32_t where = m_where.Find(HashKey<Case::Ignored>(wording), IsWording(wording));
    return where == HashSlots::kNone ? std::string_view() : Texts::Behind(m_texts.At(where)).View();
}

IndexedTable::IndexedTable(Table table)
    : m_table(std::move(table)),
      m_keys(std::make_unique<MadeOnce<KeyIndex>[]>(2 * m_table.Columns().size()))
{
}

const KeyIndex& IndexedTable::Keys(int column, Case rule) const
{
    const std::size_t at = 2 * static_cast<std::size_t>(column) + (rule == Case::Ignored);
    return m_keys[at].Get([](const KeyIndex&) { return true; },
                          m_table.Columns()[static_cast<std::size_t>(column)], m_table.RowCount(),
                          rule);
}

Cell IndexedTable::FindFirst(int keyColumn, std::string_view key, Case rule, int resultColumn) const
{
    if (!m_table.Valid())
        return {};
    const KeyIndex& keys = Keys(keyColumn, rule);
    for (std::uint32_t row = keys.First(key); row != KeyIndex::kNone; row = keys.Next(row)) {
        const Cell result = m_table.CellAt(row, resultColumn);
        if (result.length != 0)
            return result;
    }
    return {};
}

}  // namespace qx

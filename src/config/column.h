// The cells of one column of a table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace qx {

// A cell's text, NUL-terminated behind its end. A missing cell, which its row's line was too short
// for, has no text; an empty one has an empty text.
struct Cell {
    const char* text = nullptr;
    std::size_t length = 0;

    bool Missing() const { return text == nullptr; }
    std::string_view View() const { return {text, length}; }
};

// Texts one after another, each found again by where it begins.
class Texts {
  public:
    static constexpr std::uint32_t kNowhere = 0;

    // Where the text is. It has less than 65536 characters; all texts together have room in 4 GiB.
    std::uint32_t Add(std::string_view text);
    std::size_t Size() const { return m_bytes.size(); }
    Cell At(std::uint32_t where) const
    {
        if (where == kNowhere)
            return {};
        return {&m_bytes[where], LengthOf(&m_bytes[where])};
    }
    // The text that was added next.
    static Cell Behind(const Cell& cell)
    {
        const char* const text = cell.text + cell.length + 1 + kMark;
        return {text, LengthOf(text)};
    }

  private:
    static constexpr std::size_t kMark = sizeof(std::uint16_t);
    static std::uint16_t LengthOf(const char* text)
    {
        std::uint16_t length;
        std::memcpy(&length, text - kMark, kMark);
        return length;
    }

    std::vector<char> m_bytes;  // of each text: its length in kMark bytes, itself, a terminator
};

// A column's texts lie together, as a language reads one column of its table.
class Column {
  public:
    explicit Column(std::string name) : m_name(std::move(name)) {}

    const std::string& Name() const { return m_name; }
    // Adds the cell of a row behind those of earlier rows. A column has room for 2 GiB of text; a
    // cell beyond that is missing.
    void Add(std::uint32_t row, std::string_view text);
    Cell Of(std::uint32_t row) const
    {
        return row < m_cells.size() ? m_texts.At(m_cells[row]) : Cell{};
    }

  private:
    std::string m_name;
    Texts m_texts;
    std::vector<std::uint32_t> m_cells;  // by row
};

}  // namespace qx

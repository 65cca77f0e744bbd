#include "config/column.h"

namespace qx {

std::uint32_t Texts::Add(std::string_view text)
{
    const auto length = static_cast<std::uint16_t>(text.size());
    const std::size_t where = m_bytes.size() + kMark;
    m_bytes.resize(where + length + 1);  // the terminator is there with it
    std::memcpy(&m_bytes[where - kMark], &length, kMark);
    text.copy(&m_bytes[where], length);
    return static_cast<std::uint32_t>(where);
}

void Column::Add(std::uint32_t row, std::string_view text)
{
    constexpr std::size_t kRoom = 0x80000000;
    if (m_texts.Size() + text.size() > kRoom)
        return;
    m_cells.resize(row, Texts::kNowhere);
    m_cells.push_back(m_texts.Add(text));
}

}  // namespace qx

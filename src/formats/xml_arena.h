// Where the elements of a document live: in blocks that are freed together.
#pragma once

#include <qxutility/formats/xml_document.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace qx {

// Blocks grow with what is there already, so that at most an eighth is unused: an element takes no
// more than 80 bytes of a 64-bit process.
class XmlArena {
  public:
    // Room for one element.
    void* Allocate()
    {
        if (m_next == m_end)
            Grow();
        return std::exchange(m_next, m_next + sizeof(XMLElement));
    }

  private:
    static constexpr std::size_t kSmallest = 32;  // elements
    static_assert(sizeof(XMLElement) + sizeof(XMLElement) / 8 <= 80);

    void Grow()
    {
        const std::size_t count = std::max(kSmallest, m_total / 8);
        m_total += count;
        const std::size_t size = count * sizeof(XMLElement);
        m_next = m_blocks.emplace_back(std::make_unique_for_overwrite<std::byte[]>(size)).get();
        m_end = m_next + size;
    }

    std::vector<std::unique_ptr<std::byte[]>> m_blocks;
    std::byte* m_next = nullptr;
    std::byte* m_end = nullptr;
    std::size_t m_total = 0;  // elements in all blocks
};

}  // namespace qx

// Where the tags of an XML text may begin.
#pragma once

#include "formats/xml_scan.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace qx {

// Steps through every '<' and NUL of a text. They are found a stretch of the text at a time,
// whatever they mean: a search that has to wait for the end of the tag before it takes twice as
// long.
class XmlTagStarts {
  public:
    // There is a NUL at `end`, from which on kScanPadding bytes may be read.
    XmlTagStarts(const char* text, const char* end) : m_nextStretch(text), m_end(end) {}

    // The next one. Behind the NUL at `end` there is none.
    const char* Next()
    {
        while (m_next == m_count)
            ScanStretch();
        return m_stretch + m_offsets[m_next++];
    }

  private:
    static constexpr std::size_t kBlock = 64;
    static constexpr std::size_t kStretch = 64 * kBlock;

    void ScanStretch()
    {
        m_next = m_count = 0;
        m_stretch = m_nextStretch;
        std::size_t offset = 0;
        for (; offset < kStretch && m_stretch + offset <= m_end; offset += kBlock)
            Add(FindIn64<'<', '\0'>(m_stretch + offset), offset);
        m_nextStretch += offset;
    }

    void Add(std::uint64_t found, std::size_t offset)
    {
        for (; found != 0; found &= found - 1) {
            const auto place = static_cast<std::size_t>(std::countr_zero(found));
            m_offsets[m_count++] = static_cast<std::uint16_t>(offset + place);
        }
    }

    const char* m_stretch = nullptr;
    const char* m_nextStretch;
    const char* m_end;
    std::size_t m_next = 0, m_count = 0;
    std::array<std::uint16_t, kStretch> m_offsets;  // from the start of the stretch
};

}  // namespace qx

#include "formats/xml_attributes.h"

#include "core/folded_name.h"
#include "formats/xml_scan.h"

#include <bit>

namespace qx {

static const char* SkipSpace(const char* p, const char* end)
{
    while (p != end && IsSpace(*p))
        ++p;
    return p;
}

template <char... kOther>
static const char* FindSpaceOr(const char* p, const char* end)
{
    return FindBefore<' ', '\t', '\n', '\v', '\f', '\r', kOther...>(p, end);
}

static const char* EndOf(std::string_view text)
{
    return text.data() + text.size();
}

void XmlAttributes::Use(std::string_view tag)
{
    if (tag.data() == m_tag.data() && tag.size() == m_tag.size())
        return;
    m_tag = tag;
    m_position = FindSpaceOr<>(tag.data(), EndOf(tag));
    m_found.clear();
    m_error = xmlNoError;
}

const XmlAttribute* XmlAttributes::Find(std::string_view name)
{
    for (std::size_t i = 0; const XmlAttribute* attribute = At(i); ++i)
        if (SameName(attribute->name, name))
            return attribute;
    return nullptr;
}

const XmlAttribute* XmlAttributes::At(std::size_t index)
{
    while (index >= m_found.size())
        if (!FindNext())
            return nullptr;
    return &m_found[index];
}

inline void XmlAttributes::Add(const char* name, const char* nameEnd, const char* value,
                               const char* valueEnd)
{
    m_found.push_back({{name, static_cast<std::size_t>(nameEnd - name)},
                       {value, static_cast<std::size_t>(valueEnd - value)}});
    m_position = valueEnd + 1;
}

bool XmlAttributes::End(errorcode error)
{
    m_error = error;
    m_position = nullptr;
    return false;
}

// An attribute as nearly all of them are, ` name="value"` in at most 33 characters, is found in one
// step. False when the next one is another.
inline bool XmlAttributes::FindPlainNext()
{
#if QX_SCAN_SSE2
    const char* const name = m_position + (*m_position == ' ');
    const __m128i low = LoadSixteen(name), high = LoadSixteen(name + 16);
    const auto both = [&](auto test) { return MaskOf(test(low)) | MaskOf(test(high)) << 16; };
    // White space and other characters up to it, and '='.
    const unsigned ends = both([](__m128i c) {
        return _mm_or_si128(_mm_cmpeq_epi8(_mm_min_epu8(c, _mm_set1_epi8(' ')), c),
                            _mm_cmpeq_epi8(c, _mm_set1_epi8('=')));
    });
    const unsigned quotes = both([](__m128i c) { return _mm_cmpeq_epi8(c, _mm_set1_epi8('"')); });
    const int nameEnd = std::countr_zero(ends);
    if (nameEnd > 29 || name[nameEnd] != '=' || name[nameEnd + 1] != '"')
        return false;
    const int valueEnd = std::countr_zero(quotes & (~0U << (nameEnd + 2)));
    if (valueEnd == 32 || name + valueEnd >= EndOf(m_tag))
        return false;
    Add(name, name + nameEnd, name + nameEnd + 2, name + valueEnd);
    return true;
#else
    return false;
#endif
}

bool XmlAttributes::FindNext()
{
    if (!m_position)
        return false;
    if (FindPlainNext())
        return true;
    const char* const end = EndOf(m_tag);
    const char* const name = SkipSpace(m_position, end);
    const char* const nameEnd = FindSpaceOr<'='>(name, end);
    const char* p = SkipSpace(nameEnd, end);
    if (p == end || *p != '=')
        return End(xmlNoError);
    p = SkipSpace(p + 1, end);
    if (p == end || *p != '"')
        return End(xmlUnquotedValue);
    const char* const valueEnd = FindBefore<'"'>(p + 1, end);
    if (valueEnd == end)
        return End(xmlUnterminatedValue);
    Add(name, nameEnd, p + 1, valueEnd);
    return true;
}

}  // namespace qx

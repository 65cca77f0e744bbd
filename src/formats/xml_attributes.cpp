#include "formats/xml_attributes.h"

#include "formats/xml_scan.h"

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

static std::string_view Between(const char* begin, const char* end)
{
    return {begin, static_cast<std::size_t>(end - begin)};
}

XmlAttributes::XmlAttributes(std::string_view tag)
    : m_position(FindSpaceOr<>(tag.data(), tag.data() + tag.size())), m_end(tag.data() + tag.size())
{
}

bool XmlAttributes::Next()
{
    const char* const name = SkipSpace(m_position, m_end);
    const char* const nameEnd = FindSpaceOr<'='>(name, m_end);
    m_name = Between(name, nameEnd);
    const char* p = SkipSpace(nameEnd, m_end);
    if (p == m_end || *p != '=')
        return false;
    p = SkipSpace(p + 1, m_end);
    if (p == m_end || *p != '"')
        return Fail(xmlUnquotedValue);
    const char* const value = p + 1;
    const char* const valueEnd = FindBefore<'"'>(value, m_end);
    if (valueEnd == m_end)
        return Fail(xmlUnterminatedValue);
    m_value = Between(value, valueEnd);
    m_position = valueEnd + 1;
    return true;
}

}  // namespace qx

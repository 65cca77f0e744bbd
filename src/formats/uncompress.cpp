#include <qxutility/formats/compression.h>

#include <cstdint>
#include <new>
#include <string_view>

namespace qx {

namespace {

using Fault = Compression::Fault;

// Reads the tokens of a compressed text.
class Uncompressor {
  public:
    Uncompressor(std::string_view input, std::size_t limit) : m_input(input), m_limit(limit) {}

    Fault Run()
    {
        const char escape = m_input[0];
        while (m_read < m_input.size()) {
            const char byte = m_input[m_read++];
            Fault fault = Fault::None;
            if (byte != escape)
                fault = Literal(byte);
            else if (m_read < m_input.size() && m_input[m_read] == '\0')
                fault = (++m_read, Literal(escape));
            else
                fault = Copy();
            if (fault != Fault::None)
                return fault;
        }
        return Fault::None;
    }

    std::string& Output() { return m_output; }

  private:
    Fault Literal(char byte)
    {
        if (m_output.size() >= m_limit)
            return Fault::TooLong;
        m_output += byte;
        return Fault::None;
    }

    Fault Copy()
    {
        std::uint32_t length = 0, distance = 0;
        Fault fault = Number(length);
        if (fault == Fault::None)
            fault = Number(distance);
        if (fault != Fault::None)
            return fault;
        if (distance == 0 || distance > m_output.size())
            return Fault::BadDistance;
        if (length > m_limit - m_output.size())
            return Fault::TooLong;
        m_output.reserve(m_output.size() + length);
        for (; length > 0; --length)  // byte by byte: the copy may reach into itself
            m_output += m_output[m_output.size() - distance];
        return Fault::None;
    }

    Fault Number(std::uint32_t& number)
    {
        for (int groups = 0; groups < 5; ++groups) {
            if (m_read == m_input.size())
                return Fault::Cut;
            const auto byte = static_cast<unsigned char>(m_input[m_read++]);
            if (number >> 25)
                return Fault::NumberTooLarge;
            number = number << 7 | (byte & 0x7F);
            if (byte < 0x80)
                return Fault::None;
        }
        return Fault::NumberTooLarge;
    }

    std::string_view m_input;
    std::size_t m_limit, m_read = 1;
    std::string m_output;
};

}  // namespace

}  // namespace qx

Compression::Fault Compression::Uncompress(const std::string& input, std::string& output,
                                           std::size_t limit) noexcept
{
    if (input.empty()) {
        output.clear();
        return Fault::None;
    }
    qx::Uncompressor uncompressor(input, limit);
    Fault fault = Fault::NoMemory;
    try {
        fault = uncompressor.Run();
    } catch (const std::bad_alloc&) {
    }
    output = std::move(uncompressor.Output());
    return fault;
}

std::string Compression::Uncompress(const std::string& input) noexcept
{
    std::string text;
    Uncompress(input, text, kUncompressLimit);
    if (const std::size_t end = text.find('\0'); end != std::string::npos)
        text.resize(end);
    return text;
}

#include "formats/log_lines.h"

#include <cstring>

namespace qx {

void LogLines::Fill()
{
    std::memmove(m_buffer.data(), m_rest.data(), m_rest.size());
    const std::size_t room = m_buffer.size() - m_rest.size();
    const auto count = m_log.Read(m_buffer.data() + m_rest.size(), room);
    m_hasFailed = !count;
    m_isEnded = count.value_or(0) < room;
    m_rest = {m_buffer.data(), m_rest.size() + count.value_or(0)};
}

std::optional<LogLine> LogLines::Next()
{
    static constexpr std::size_t kLongestWithEnd = kLongest + 2;
    if (m_rest.size() < kLongestWithEnd && !m_isEnded)
        Fill();
    if (m_rest.empty() || m_hasFailed)
        return std::nullopt;
    const std::size_t feed = m_rest.substr(0, kLongestWithEnd).find('\n');
    std::string_view text = m_rest.substr(0, feed);
    if (feed != std::string_view::npos && text.ends_with('\r'))
        text.remove_suffix(1);
    if (text.size() > kLongest) {
        m_rest = {};
        m_isEnded = true;
        return LogLine{text.substr(0, kLongest), {}, true};
    }
    const std::size_t size = feed == std::string_view::npos ? text.size() : feed + 1;
    const LogLine line{text, m_rest.substr(text.size(), size - text.size()), false};
    m_rest.remove_prefix(size);
    return line;
}

}  // namespace qx

// The lines of a log as pruning sees them.
#pragma once

#include "platform/files.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace qx {

struct LogLine {
    std::string_view text;  // valid until the next line is read
    std::string_view end;   // LF, CR LF, or nothing at the end of the log
    bool isCut;             // longer than what is read of a line: nothing follows it
};

class LogLines {
  public:
    // Characters that are read of a line at most.
    static constexpr std::size_t kLongest = 511;

    explicit LogLines(platform::File& log) : m_log(log) {}

    // The next line; nothing at the end of the log, after a line that was cut, or on an error.
    std::optional<LogLine> Next();
    // True when the log could not be read to its end.
    bool HasFailed() const { return m_hasFailed; }

  private:
    void Fill();

    platform::File& m_log;
    std::array<char, 65536> m_buffer;
    std::string_view m_rest{m_buffer.data(), 0};  // what of the buffer is still to be delivered
    bool m_isEnded = false;                       // nothing more is to be read from the log
    bool m_hasFailed = false;
};

}  // namespace qx

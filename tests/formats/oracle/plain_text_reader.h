// The reader of text files as the applications have always known it, step by step, on a file in
// memory.
#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace qx::test {

class PlainTextReader {
  public:
    explicit PlainTextReader(std::string file) : m_file(std::move(file)) {}

    bool Eof() const { return m_total - m_count + m_position >= m_file.size(); }

    void ReadLine(char* line)
    {
        if (m_position >= m_count)
            ReadBlock();
        if (m_buffer[m_position] == '\n')
            ++m_position;
        char* const begin = m_buffer + m_position;
        char* const end =
            static_cast<char*>(std::memchr(begin, '\r', sizeof m_buffer - m_position));
        *end = '\0';
        std::strcpy(line, begin);
        m_position = static_cast<std::size_t>(end - m_buffer) + 1;
        if (m_position > 4095)
            ReadLine(line + std::strlen(line));
    }

  private:
    void ReadBlock()
    {
        m_count = std::min<std::size_t>(4095, m_file.size() - m_total);
        std::memcpy(m_buffer, m_file.data() + m_total, m_count);
        m_buffer[m_count] = '\r';
        m_total += m_count;
        m_position = 0;
    }

    std::string m_file;
    char m_buffer[4096];
    std::size_t m_count = 0, m_position = 0, m_total = 0;
};

}  // namespace qx::test

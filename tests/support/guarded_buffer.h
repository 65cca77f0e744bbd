// A buffer whose last byte is the last of an accessible page: one byte too far stops the program.
#pragma once

#include <cstddef>
#include <cstring>

namespace qx::test {

class GuardedBuffer {
  public:
    explicit GuardedBuffer(std::size_t size);
    GuardedBuffer(const GuardedBuffer&) = delete;
    GuardedBuffer& operator=(const GuardedBuffer&) = delete;
    ~GuardedBuffer();

    char* data() { return m_data; }
    std::size_t size() const { return m_size; }
    operator char*() { return m_data; }

    // Fills the buffer with a text and its terminator, which must fit exactly or leave room.
    GuardedBuffer& operator=(const char* text)
    {
        std::memcpy(m_data, text, std::strlen(text) + 1);
        return *this;
    }

  private:
    char* m_pages;
    char* m_data;
    std::size_t m_size, m_mapped;
};

}  // namespace qx::test

#include "support/guarded_buffer.h"

#include <cstdlib>

#if defined(_WIN32)
#include <windows.h>
#else
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace qx::test {

#if defined(_WIN32)
static std::size_t PageSize()
{
    SYSTEM_INFO info;
    ::GetSystemInfo(&info);
    return info.dwPageSize;
}
static char* MapPages(std::size_t size)
{
    return static_cast<char*>(
        ::VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
}
static void ProtectPage(char* page, std::size_t size)
{
    DWORD old;
    if (!::VirtualProtect(page, size, PAGE_NOACCESS, &old))
        std::abort();
}
static void UnmapPages(char* pages, std::size_t)
{
    ::VirtualFree(pages, 0, MEM_RELEASE);
}
#else
static std::size_t PageSize()
{
    return static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}
static char* MapPages(std::size_t size)
{
    void* pages = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return pages == MAP_FAILED ? nullptr : static_cast<char*>(pages);
}
static void ProtectPage(char* page, std::size_t size)
{
    if (::mprotect(page, size, PROT_NONE) != 0)
        std::abort();
}
static void UnmapPages(char* pages, std::size_t size)
{
    ::munmap(pages, size);
}
#endif

GuardedBuffer::GuardedBuffer(std::size_t size) : m_size(size)
{
    const std::size_t page = PageSize();
    const std::size_t usable = (size + page - 1) / page * page;
    m_mapped = usable + page;
    m_pages = MapPages(m_mapped);
    if (!m_pages)
        std::abort();
    ProtectPage(m_pages + usable, page);
    m_data = m_pages + usable - size;
    std::memset(m_data, '?', size);
}

GuardedBuffer::~GuardedBuffer()
{
    UnmapPages(m_pages, m_mapped);
}

}  // namespace qx::test

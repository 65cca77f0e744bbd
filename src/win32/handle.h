// Ownership of system handles: one template, one line per kind.
#pragma once

#include <qxutility/types.h>

#include <utility>

namespace qx::win32 {

// Owns a handle and gives it back with `Traits::Close`; `Traits::None()` stands for no handle.
// Move-only.
template <typename Traits>
class UniqueHandle {
  public:
    using Type = decltype(Traits::None());

    explicit UniqueHandle(Type handle = Traits::None()) : m_handle(handle) {}
    UniqueHandle(UniqueHandle&& other) noexcept
        : m_handle(std::exchange(other.m_handle, Traits::None()))
    {
    }
    UniqueHandle& operator=(UniqueHandle&& other) noexcept
    {
        UniqueHandle(std::move(other)).Swap(*this);
        return *this;
    }
    ~UniqueHandle()
    {
        if (*this)
            Traits::Close(m_handle);
    }

    Type get() const { return m_handle; }
    // Leaves the handle to the caller.
    Type Release() { return std::exchange(m_handle, Traits::None()); }
    explicit operator bool() const { return m_handle != Traits::None(); }

  private:
    void Swap(UniqueHandle& other) noexcept { std::swap(m_handle, other.m_handle); }

    Type m_handle;
};

struct FileTraits {
    static HANDLE None() { return INVALID_HANDLE_VALUE; }
    static void Close(HANDLE handle) { ::CloseHandle(handle); }
};
struct FindTraits {
    static HANDLE None() { return INVALID_HANDLE_VALUE; }
    static void Close(HANDLE handle) { ::FindClose(handle); }
};
struct RegionTraits {
    static HRGN None() { return nullptr; }
    static void Close(HRGN handle) { ::DeleteObject(handle); }
};
using FileHandle = UniqueHandle<FileTraits>;
using FindHandle = UniqueHandle<FindTraits>;  // of FindFirstFile
using RegionHandle = UniqueHandle<RegionTraits>;

}  // namespace qx::win32

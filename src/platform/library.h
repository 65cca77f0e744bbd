// Shared libraries that are loaded while the program runs.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace qx::platform {

// A loaded library, let go of by the destructor. Move-only.
class Library {
  public:
    Library() = default;
    explicit Library(const char* path);  // check with operator bool
    Library(Library&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
    Library& operator=(Library&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    ~Library();

    explicit operator bool() const { return m_handle != nullptr; }
    // An exported function of the type `Function`; null when there is none.
    template <typename Function>
    Function* Find(const char* name) const
    {
        return reinterpret_cast<Function*>(Symbol(name));
    }

  private:
    using AnyFunction = void (*)();
    AnyFunction Symbol(const char* name) const;

    void* m_handle = nullptr;
};

// The file name of a component: "script" is script.dll on Windows, script.so elsewhere.
std::string ComponentFile(std::string_view name);
// Loads a component from where it can have been installed: the folder of the program, of this
// library, of the system (on POSIX /usr/lib/qxutility). Never from the current folder.
Library LoadComponent(std::string_view name);

}  // namespace qx::platform

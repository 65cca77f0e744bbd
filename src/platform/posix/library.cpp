#include "platform/library.h"

#include <dlfcn.h>

namespace qx::platform {

Library::Library(const char* path) : m_handle(::dlopen(path, RTLD_NOW | RTLD_LOCAL)) {}

Library::~Library()
{
    if (m_handle)
        ::dlclose(m_handle);
}

Library::AnyFunction Library::Symbol(const char* name) const
{
    return m_handle ? reinterpret_cast<AnyFunction>(::dlsym(m_handle, name)) : nullptr;
}

std::string ComponentFile(std::string_view name)
{
    return std::string(name) + ".so";
}

}  // namespace qx::platform

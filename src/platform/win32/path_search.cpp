#include "platform/path_search.h"

#include "win32/grow.h"

namespace qx::platform {

std::string FindProgram(const char* name, const char* extension)
{
    if (!name || !*name)
        return {};
    if (extension && !*extension)
        extension = nullptr;
    return win32::GrowingText([=](char* buffer, DWORD size) {
        return ::SearchPathA(nullptr, name, extension, size, buffer, nullptr);
    });
}

std::string FindFile(const char* name, const char* extension)
{
    return FindProgram(name, extension);
}

}  // namespace qx::platform

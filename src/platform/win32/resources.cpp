#include "platform/resources.h"

#include "win32/grow.h"

namespace qx::platform {

std::optional<std::string> ResourceString(HINSTANCE module, unsigned id)
{
    if (id > 0xFFFF)  // the system would look for another number
        return std::nullopt;
    std::string text = win32::GrowingText([=](char* buffer, DWORD size) {
        return ::LoadStringA(module, id, buffer, static_cast<int>(size));
    });
    if (text.empty())
        return std::nullopt;
    return text;
}

std::optional<std::string_view> ResourceBytes(HINSTANCE module, const char* name, const char* type)
{
    const HRSRC found = ::FindResourceA(module, name, type);
    const HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
    const void* bytes = loaded ? ::LockResource(loaded) : nullptr;
    if (!bytes)
        return std::nullopt;
    return std::string_view(static_cast<const char*>(bytes), ::SizeofResource(module, found));
}

}  // namespace qx::platform

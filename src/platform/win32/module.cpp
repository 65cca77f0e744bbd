#include "platform/module.h"

#include "platform/path_text.h"
#include "win32/grow.h"

namespace qx::platform {

HINSTANCE ThisModule()
{
    static const char marker = 0;
    HMODULE module = nullptr;
    ::GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        &marker, &module);
    return module;
}

HINSTANCE ProgramModule()
{
    return ::GetModuleHandleA(nullptr);
}

std::string ModulePath(HINSTANCE module)
{
    return win32::GrowingText(
        [=](char* buffer, DWORD size) { return ::GetModuleFileNameA(module, buffer, size); });
}

std::string ModuleFolder(HINSTANCE module)
{
    return std::string(FolderPart(ModulePath(module)));
}

}  // namespace qx::platform

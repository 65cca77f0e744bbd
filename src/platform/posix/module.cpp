#include "platform/module.h"

#include "platform/path_text.h"

#include <qxutility/host.h>

#include <dlfcn.h>
#include <elf.h>
#include <filesystem>
#include <link.h>
#include <sys/auxv.h>

namespace qx::platform {

// A module's handle is the address that it is loaded at.
static HINSTANCE ModuleAt(const void* address, const link_map** map = nullptr)
{
    Dl_info info;
    void* extra = nullptr;
    if (!address || ::dladdr1(address, &info, &extra, RTLD_DL_LINKMAP) == 0)
        return nullptr;
    if (map)
        *map = static_cast<const link_map*>(extra);
    return static_cast<HINSTANCE>(info.dli_fbase);
}

HINSTANCE ThisModule()
{
    static const char marker = 0;
    return ModuleAt(&marker);
}

HINSTANCE ProgramModule()
{
    // The program headers lie in the program's own image.
    static const HINSTANCE program = ModuleAt(reinterpret_cast<const void*>(::getauxval(AT_PHDR)));
    return program;
}

static std::string ProgramPath()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).string();
}

std::string ModulePath(HINSTANCE module)
{
    if (!module || module == ProgramModule())
        return ProgramPath();
    const link_map* map = nullptr;
    if (ModuleAt(module, &map) != module)
        return {};
    std::error_code error;
    return std::filesystem::absolute(map->l_name, error).string();
}

std::string ModuleFolder(HINSTANCE module)
{
    return std::string(FolderPart(ModulePath(module)));
}

}  // namespace qx::platform

namespace qx::host {

HINSTANCE ModuleOf(const void* address)
{
    return platform::ModuleAt(address);
}
HINSTANCE LibraryModule()
{
    return platform::ThisModule();
}

}  // namespace qx::host

// Modules where the test says they are.
#pragma once

#include "doubles/in_force.h"
#include "platform/module.h"
#include "platform/path_text.h"

#include <cstdint>
#include <map>

namespace qx::test {

// A handle that stands for a module in tests; nothing lies behind it.
inline HINSTANCE FakeModule(std::uintptr_t number)
{
    return reinterpret_cast<HINSTANCE>(number << 16);
}

struct ModuleDouble : InForce<ModuleDouble> {
    HINSTANCE library = FakeModule(1);
    HINSTANCE program = FakeModule(2);
    std::map<HINSTANCE, std::string> paths;
};

}  // namespace qx::test

namespace qx::platform {

HINSTANCE ThisModule()
{
    return test::ModuleDouble::Current().library;
}
HINSTANCE ProgramModule()
{
    return test::ModuleDouble::Current().program;
}

std::string ModulePath(HINSTANCE module)
{
    const auto& paths = test::ModuleDouble::Current().paths;
    const auto found = paths.find(module ? module : ProgramModule());
    return found == paths.end() ? "" : found->second;
}

std::string ModuleFolder(HINSTANCE module)
{
    return std::string(FolderPart(ModulePath(module)));
}

}  // namespace qx::platform

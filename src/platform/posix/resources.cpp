#include "platform/resources.h"

#include "platform/module.h"

#include <qxutility/host.h>

#include <charconv>
#include <cstdint>
#include <map>
#include <tuple>
#include <utility>

namespace qx::platform {

// What hosts registered. Map nodes stay where they are, so views of the bytes stay valid.
struct Registry {
    std::map<std::pair<HINSTANCE, unsigned>, std::string> strings;
    std::map<std::tuple<HINSTANCE, std::string, std::string>, std::string> resources;
};

static Registry& Registered()
{
    // Never destroyed: a host may register early and ask late.
    static auto& registry = *new Registry;
    return registry;
}

static HINSTANCE ModuleOrProgram(HINSTANCE module)
{
    return module ? module : ProgramModule();
}

// A name or type as a key: letters in upper case, every way to give a number as "#300".
static std::string ResourceKey(const char* name)
{
    const auto value = reinterpret_cast<std::uintptr_t>(name);
    if (value <= 0xFFFF)
        return "#" + std::to_string(value);
    std::string key = name;
    std::uint16_t number = 0;
    const char* end = key.data() + key.size();
    if (key.size() > 1 && key[0] == '#' &&
        std::from_chars(key.data() + 1, end, number) == std::from_chars_result{end, std::errc()})
        return "#" + std::to_string(number);
    for (char& c : key)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return key;
}

std::optional<std::string> ResourceString(HINSTANCE module, unsigned id)
{
    const auto& strings = Registered().strings;
    const auto found = strings.find({ModuleOrProgram(module), id});
    if (found == strings.end() || found->second.empty())
        return std::nullopt;
    return found->second;
}

std::optional<std::string_view> ResourceBytes(HINSTANCE module, const char* name, const char* type)
{
    const auto& resources = Registered().resources;
    const auto found =
        resources.find({ModuleOrProgram(module), ResourceKey(name), ResourceKey(type)});
    if (found == resources.end())
        return std::nullopt;
    return found->second;
}

}  // namespace qx::platform

namespace qx::host {

void RegisterString(HINSTANCE module, unsigned id, std::string_view text)
{
    platform::Registered().strings[{platform::ModuleOrProgram(module), id}] = text;
}

void RegisterResource(HINSTANCE module, const char* name, const char* type, std::string_view bytes)
{
    platform::Registered().resources[{platform::ModuleOrProgram(module),
                                      platform::ResourceKey(name), platform::ResourceKey(type)}] =
        bytes;
}

}  // namespace qx::host

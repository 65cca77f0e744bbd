// Strings and byte resources that the test makes up.
#pragma once

#include "doubles/in_force.h"
#include "platform/resources.h"

#include <map>
#include <tuple>
#include <utility>

namespace qx::test {

// Keys are compared as they stand.
struct ResourcesDouble : InForce<ResourcesDouble> {
    std::map<std::pair<HINSTANCE, unsigned>, std::string> strings;
    std::map<std::tuple<HINSTANCE, std::string, std::string>, std::string> bytes;  // name, type
};

}  // namespace qx::test

namespace qx::platform {

std::optional<std::string> ResourceString(HINSTANCE module, unsigned id)
{
    const auto& strings = test::ResourcesDouble::Current().strings;
    const auto found = strings.find({module, id});
    return found == strings.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::string_view> ResourceBytes(HINSTANCE module, const char* name, const char* type)
{
    const auto& bytes = test::ResourcesDouble::Current().bytes;
    const auto found = bytes.find({module, name, type});
    return found == bytes.end() ? std::nullopt : std::optional<std::string_view>(found->second);
}

}  // namespace qx::platform

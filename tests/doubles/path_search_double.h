// Programs and files that the system is said to find.
#pragma once

#include "doubles/in_force.h"
#include "platform/path_search.h"

#include <map>
#include <string>
#include <vector>

namespace qx::test {

struct PathSearchDouble : InForce<PathSearchDouble> {
    std::map<std::string, std::string> programs;  // and files: full path by the name asked for
    std::vector<std::string> asked;               // "name" + "|" + extension, in order
};

}  // namespace qx::test

namespace qx::platform {

std::string FindProgram(const char* name, const char* extension)
{
    auto& search = test::PathSearchDouble::Current();
    const std::string key = name ? name : "";
    search.asked.push_back(key + "|" + (extension ? extension : ""));
    const auto found = search.programs.find(key);
    return found == search.programs.end() ? "" : found->second;
}

std::string FindFile(const char* name, const char* extension)
{
    return FindProgram(name, extension);
}

}  // namespace qx::platform

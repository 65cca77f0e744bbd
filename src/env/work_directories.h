// The user's work directories: section "ID" of the INI file has one key for each.
#pragma once

#include <qxutility/env/directories.h>

namespace qx {

inline constexpr char kDirectorySection[] = "ID";

// The key of a kind of directory; null for a kind that is none of the user's work directories.
constexpr const char* WorkDirectoryKey(DirTypes kind)
{
    switch (kind) {
        case DIR_PROJECTS:
            return "Projects";
        case DIR_TABLES:
            return "Tables";
        case DIR_CATALOGS:
            return "Catalogs";
        case DIR_DESIGNS:
            return "Designs";
        case DIR_CURVES:
            return "Curves";
        case DIR_TOOLS:
            return "Tools";
        default:
            return nullptr;
    }
}

}  // namespace qx

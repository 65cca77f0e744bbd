// In place of the system's folders: what a test sets. To be included by one source of a test.
#pragma once

#include "platform/directories.h"

#include <map>

namespace qx::test {

// The answers, and how often the system was asked.
struct FakeFolders {
    std::map<platform::UserFolder, std::string> users;
    std::string system;
    int questions = 0;
};

inline FakeFolders& Folders()
{
    static FakeFolders folders;
    return folders;
}

}  // namespace qx::test

namespace qx::platform {

std::string FindUserFolder(UserFolder folder)
{
    ++test::Folders().questions;
    return test::Folders().users[folder];
}

std::string SystemFolder()
{
    return test::Folders().system;
}

std::string SystemLibraryFolder()
{
    return test::Folders().system;
}

std::string SpellingInFolder(const std::string&, const std::string& name)
{
    return name;
}

}  // namespace qx::platform

// Folders of the user and the system as the test says.
#pragma once

#include "doubles/in_force.h"
#include "platform/directories.h"

#include <map>

namespace qx::test {

struct DirectoriesDouble : InForce<DirectoriesDouble> {
    std::map<platform::UserFolder, std::string> users;
    std::string system, libraries;
    int questions = 0;  // about folders of the user
};

}  // namespace qx::test

namespace qx::platform {

std::string FindUserFolder(UserFolder folder)
{
    auto& directories = test::DirectoriesDouble::Current();
    ++directories.questions;
    return directories.users[folder];
}

std::string SystemFolder()
{
    return test::DirectoriesDouble::Current().system;
}

std::string SystemLibraryFolder()
{
    return test::DirectoriesDouble::Current().libraries;
}

std::string SpellingInFolder(const std::string&, const std::string& name)
{
    return name;
}

}  // namespace qx::platform

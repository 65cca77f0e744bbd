#include "platform/directories.h"
#include "support/temporary_folder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <pwd.h>
#include <tuple>
#include <unistd.h>

namespace qx::platform {
namespace {

constexpr const char* kVariables[] = {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME",
                                      "XDG_CACHE_HOME"};

class UserFolders : public testing::Test {
  protected:
    UserFolders()
    {
        for (const char* name : kVariables)
            ::unsetenv(name);
    }
    void SetHome(const std::string& path) { ::setenv("HOME", path.c_str(), 1); }

    test::TemporaryFolder m_folder;
};

TEST_F(UserFolders, AreInTheHomeFolderOrWhereTheEnvironmentSays)
{
    SetHome("/home/somebody/");
    const std::tuple<const char*, UserFolder, const char*> folders[] = {
        {"XDG_CONFIG_HOME", UserFolder::AppData, "/home/somebody/.config"},
        {"XDG_DATA_HOME", UserFolder::LocalAppData, "/home/somebody/.local/share"},
        {"XDG_STATE_HOME", UserFolder::Cookies, "/home/somebody/.local/state"},
        {"XDG_CACHE_HOME", UserFolder::InternetCache, "/home/somebody/.cache"},
    };
    for (const auto& [variable, folder, usual] : folders) {
        EXPECT_EQ(FindUserFolder(folder), usual);
        ::setenv(variable, "/some/where//", 1);
        EXPECT_EQ(FindUserFolder(folder), "/some/where") << variable;
        for (const char* ignored : {"", "relative/folder"}) {
            ::setenv(variable, ignored, 1);
            EXPECT_EQ(FindUserFolder(folder), usual) << variable;
        }
    }
}

TEST_F(UserFolders, DocumentsAreWhereTheUserPutThem)
{
    SetHome("/home/somebody");
    ::setenv("XDG_CONFIG_HOME", m_folder.Path().c_str(), 1);
    struct Case {
        const char *line, *expected;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"", "/home/somebody/Dokumente"},
             {"XDG_DOCUMENTS_DIR=\"$HOME/\"", "/home/somebody"},
             {"XDG_DOCUMENTS_DIR=\"/data/documents/\"", "/data/documents"},
             {"XDG_DOCUMENTS_DIR=\"relative\"", "/home/somebody/Documents"},
             {"XDG_DOCUMENTS_DIR=\"", "/home/somebody/Documents"},
             {"XDG_DOCUMENTS_DIR=", "/home/somebody/Documents"},
             {"#XDG_DOCUMENTS_DIR=\"/data\"", "/home/somebody/Documents"},
         }) {
        m_folder.Write("user-dirs.dirs", std::string("# comment\n") + c.line + "\n");
        EXPECT_EQ(FindUserFolder(UserFolder::Documents), c.expected) << c.line;
    }
}

TEST_F(UserFolders, AccountTellsTheHomeFolder)
{
    const passwd* account = ::getpwuid(::getuid());
    ASSERT_NE(account, nullptr);
    EXPECT_EQ(FindUserFolder(UserFolder::AppData), std::string(account->pw_dir) + "/.config");
}

TEST_F(UserFolders, NamesInAnotherSpellingAreFound)
{
    m_folder.Write("KVL.INI", "");
    EXPECT_EQ(SpellingInFolder(m_folder.Path(), "Kvl.ini"), "KVL.INI");
    EXPECT_EQ(SpellingInFolder(m_folder.Path(), "Other.ini"), "Other.ini");
    m_folder.Write("Kvl.ini", "");
    EXPECT_EQ(SpellingInFolder(m_folder.Path(), "Kvl.ini"), "Kvl.ini");
    EXPECT_EQ(SpellingInFolder("/no/such/folder", "Kvl.ini"), "Kvl.ini");
}

}  // namespace
}  // namespace qx::platform

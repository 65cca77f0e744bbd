// One table of cases for the Windows functions and for our own: both give the same.
#include "platform/profile.h"

#include "support/guarded_buffer.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qx::platform {
namespace {

using test::GuardedBuffer;
using test::TemporaryFolder;

class Profile : public testing::Test {
  protected:
    void SetFile(std::string_view text) { m_folder.Write("p.ini", text); }
    std::string File() const { return m_folder.Read("p.ini"); }
    const char* Path() const { return m_path.c_str(); }

    // What a call put into the buffer, with '|' for NUL; behind it there is a NUL, behind a list
    // that was cut there are two.
    static std::string Taken(GuardedBuffer& buffer, DWORD length, bool isList)
    {
        std::string text(buffer.data(), length);
        std::replace(text.begin(), text.end(), '\0', '|');
        const std::size_t room = buffer.size() - length;
        const std::size_t nuls = isList && room == 2 ? 2 : std::min<std::size_t>(room, 1);
        EXPECT_EQ(std::string(buffer + length, nuls), std::string(nuls, '\0')) << text;
        return text;
    }
    std::string Get(const char* section, const char* key, DWORD size = 100,
                    const char* defaultValue = "none")
    {
        GuardedBuffer buffer(size);
        const DWORD length = ProfileString(section, key, defaultValue, buffer, size, Path());
        return Taken(buffer, length, !section || !key);
    }
    std::string GetSection(const char* section, DWORD size = 200)
    {
        GuardedBuffer buffer(size);
        return Taken(buffer, ProfileSection(section, buffer, size, Path()), true);
    }
    bool Put(const char* section, const char* key, const char* value)
    {
        return WriteProfileString(section, key, value, Path());
    }

  private:
    TemporaryFolder m_folder;
    std::string m_path = m_folder.Path("p.ini");
};

TEST_F(Profile, FindsValues)
{
    SetFile(
        "outside=1\r\n; comment=1\r\n[ Plain Section ]\r\n key = value \r\nKEY=second\r\n;off=1\r\n"
        "alone\r\nempty=\r\n\tblanks\t=\t a b \t\r\nsign=a=b\r\ndouble=\" x \"\r\nsingle='y'\r\n"
        "mixed=\"z'\r\nopen=\"z\r\nquote=\"\r\npair=\"\"\r\ninner=a\"b\"\r\n#hash=2\r\n\r\n"
        "[other] ; comment\r\nlast=1\r\n[PLAIN section]\r\nlost=1\r\n[unfinished\r\nlost=2\r\n"
        "[bracket]]\r\nin=3\r\n[no end]\nlf=4\nfinal=5");
    struct Case {
        const char *section, *key, *expected;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"pLAIN sECTION", "Key", "value"},
             {"  Plain Section ", " key ", "value"},
             {"Plain  Section", "key", "none"},
             {"Plain Section", "off", "none"},
             {"Plain Section", "alone", "none"},
             {"Plain Section", "blanks", "a b"},
             {"Plain Section", "sign", "a=b"},
             {"Plain Section", "double", " x "},
             {"Plain Section", "mixed", "\"z'"},
             {"Plain Section", "quote", "\""},
             {"Plain Section", "pair", ""},
             {"Plain Section", "inner", "a\"b\""},
             {"Plain Section", "#hash", "2"},
             {"Plain Section", "lost", "none"},
             {"unfinished", "lost", "none"},
             {"bracket]", "in", "3"},
             {"no end", "lf", "4"},
         })
        EXPECT_EQ(Get(c.section, c.key), c.expected) << c.section << " " << c.key;
}

TEST_F(Profile, DefaultLosesFinalBlanksAndQuotes)
{
    SetFile("[s]\r\n");
    EXPECT_EQ(Get("s", "k", 50, "  two  "), "  two");
    EXPECT_EQ(Get("s", "k", 50, "'two'"), "two");
    EXPECT_EQ(Get("s", "k", 50, nullptr), "");
    EXPECT_EQ(Get("s", "k", 4, "abcdef"), "abc");
    EXPECT_EQ(Get("s", nullptr, 50, "nothing"), "nothing");
    EXPECT_EQ(Get("absent", nullptr, 50, "nothing"), "nothing");
}

TEST_F(Profile, CutsValuesToTheBuffer)
{
    SetFile("[s]\r\nk=value\r\n");
    const char* expected[] = {"", "", "v", "va", "val", "valu", "value", "value"};
    for (DWORD size = 0; size < std::size(expected); ++size)
        EXPECT_EQ(Get("s", "k", size), expected[size]) << "size " << size;
}

TEST_F(Profile, ListsKeysAndSections)
{
    SetFile(
        "[s]\r\n b = 1\r\n;c=1\r\nalone\r\na=2\r\nB=3\r\ne=\r\n\r\n[empty]\r\n[ t ]\r\nx=1\r\n"
        "[S]\r\ny=1\r\n");
    EXPECT_EQ(Get("s", nullptr), "b|a|B|e|");
    EXPECT_EQ(Get("S", nullptr), "b|a|B|e|");
    EXPECT_EQ(Get("empty", nullptr, 100, ""), "");
    EXPECT_EQ(Get(nullptr, nullptr), "s|empty|t|S|");
    EXPECT_EQ(Get(nullptr, "ignored"), "s|empty|t|S|");
    EXPECT_EQ(GetSection("s"), "b=1|alone|a=2|B=3|e=|");
    EXPECT_EQ(GetSection("empty"), "");
    EXPECT_EQ(GetSection("absent"), "");
}

// A list that is cut ends with two NULs, which the result does not count.
TEST_F(Profile, CutsListsToTheBuffer)
{
    SetFile("[one]\r\nabc='1'\r\nde=2\r\n[two]\r\n");
    const std::string keys = "abc|de|", sections = "one|two|", lines = "abc='1'|de=2|";
    for (DWORD size = 0; size < 17; ++size) {
        const std::size_t room = size < 3 ? 0 : size - 2;
        EXPECT_EQ(Get("one", nullptr, size, ""), keys.substr(0, room)) << size;
        EXPECT_EQ(Get(nullptr, nullptr, size, ""), sections.substr(0, room)) << size;
        EXPECT_EQ(GetSection("one", size), lines.substr(0, room)) << size;
    }
}

TEST_F(Profile, MissingFile)
{
    EXPECT_EQ(Get("s", "k"), "none");
    EXPECT_EQ(Get("s", nullptr), "none");
    EXPECT_EQ(Get(nullptr, nullptr), "");
    EXPECT_EQ(GetSection("s"), "");
    EXPECT_TRUE(Put("s", "k", nullptr));
    EXPECT_TRUE(Put("s", nullptr, nullptr));
    EXPECT_FALSE(std::filesystem::exists(Path()));
    EXPECT_TRUE(Put("s", "k", "v"));
    EXPECT_EQ(File(), "[s]\r\nk=v\r\n");
}

TEST_F(Profile, Writes)
{
    struct Case {
        const char *before, *section, *key, *value, *after;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"", "s", "k", "v", "[s]\r\nk=v\r\n"},
             {"[s]\r\nk=v", "S", "l", "w", "[s]\r\nk=v\r\nl=w\r\n"},
             {"[s]\r\nk=v", "t", "l", "w", "[s]\r\nk=v\r\n[t]\r\nl=w\r\n"},
             {"[s]\r\nk=v\r\n[t]\r\n", "s", "l", "w", "[s]\r\nk=v\r\nl=w\r\n[t]\r\n"},
             {"[s]\r\nKey=v\r\n[t]\r\n", "s", "kEY", "w", "[s]\r\nKey=w\r\n[t]\r\n"},
             {"[s]\r\nk=v\r\nk=w\r\n", "s", "k", "x", "[s]\r\nk=x\r\nk=w\r\n"},
             {"[s]\r\nk=v\r\n", "s", "k", "\" v \"", "[s]\r\nk=\" v \"\r\n"},
             {"[s]\r\nk\r\nl=1\r\n", "s", "k", "v", "[s]\r\nk=v\r\nl=1\r\n"},
             {"[s]\r\nk=v\r\nl=w\r\n", "s", "k", nullptr, "[s]\r\nl=w\r\n"},
             {"[s]\r\nk=v\r\nk=w\r\n", "s", "K", nullptr, "[s]\r\nk=w\r\n"},
             {"[s]\r\nk=v\r\n[t]\r\nl=w\r\n", "S", nullptr, nullptr, "[t]\r\nl=w\r\n"},
             {"[s]\r\na=1\r\n[t]\r\n[S]\r\nb=2\r\n", "s", nullptr, nullptr,
              "[t]\r\n[S]\r\nb=2\r\n"},
             {"[s]\r\nk=v\r\n", "t", nullptr, nullptr, "[s]\r\nk=v\r\n"},
         }) {
        SetFile(c.before);
        EXPECT_TRUE(Put(c.section, c.key, c.value)) << c.before;
        EXPECT_EQ(File(), c.after) << c.before;
    }
}

TEST_F(Profile, CommentsUnknownLinesAndOrderSurvive)
{
    SetFile(
        "; top\r\nunknown\r\n[b]\r\n; about z\r\nz=1\r\nalone\r\na=2\r\n; end of b\r\n[a]\r\n"
        "x=1\r\n;y=2\r\n");
    EXPECT_TRUE(Put("b", "z", "changed"));
    EXPECT_TRUE(Put("b", "new", "1"));
    EXPECT_TRUE(Put("a", "x", nullptr));
    EXPECT_TRUE(Put("c", "n", "1"));
    EXPECT_EQ(File(),
              "; top\r\nunknown\r\n[b]\r\n; about z\r\nz=changed\r\nalone\r\na=2\r\n; end of b\r\n"
              "new=1\r\n[a]\r\n;y=2\r\n[c]\r\nn=1\r\n");
}

TEST_F(Profile, WritesSeveralChangesInOrder)
{
    SetFile("[s]\r\nold=1\r\n[t]\r\nk=1\r\n");
    const ProfileEdit edits[] = {
        {"t", nullptr, nullptr}, {"s", "a", "1"}, {"s", "old", nullptr}, {"s", "A", "2"}};
    EXPECT_TRUE(EditProfile(edits, Path()));
    EXPECT_EQ(File(), "[s]\r\na=2\r\n");
}

TEST_F(Profile, RefusesToWriteNowhere)
{
    EXPECT_FALSE(Put(nullptr, "k", "v"));
    EXPECT_FALSE(WriteProfileString("s", "k", "v", (std::string(Path()) + "/no/x.ini").c_str()));
    EXPECT_FALSE(std::filesystem::exists(Path()));
}

}  // namespace
}  // namespace qx::platform

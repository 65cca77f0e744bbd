#include "platform/profile.h"
#include "support/guarded_buffer.h"
#include "support/temporary_folder.h"

#include <qxutility/config/ini_file.h>

#include <gtest/gtest.h>

namespace qx {
namespace {

using test::GuardedBuffer;

class IniFunctions : public testing::Test {
  protected:
    std::string File(std::string_view text) { return m_folder.Write("t.ini", text); }

    test::TemporaryFolder m_folder;
};

TEST_F(IniFunctions, BigStrings)
{
    const std::string big(30000, 'b');
    const std::string path = File(
        "[S]\r\nk=v\r\nK=capital\r\n  spaced  =  out  \r\nquoted=\"q\"\r\nalone\r\n"
        "empty=\r\nbig=" +
        big + "\r\n[T]\r\nother=1\r\n");
    struct Case {
        const char *section, *key, *defaultValue;
        DWORD size, result;
        std::string expected;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"S", "k", "d", 10, 1, "v"},
             {"S", "K", "d", 10, 7, "capital"},
             {"s", "spaced", "d", 10, 3, "out"},
             {"S", "quoted", "d", 10, 3, "\"q\""},
             {"S", "big", "d", 40000, 30000, big},
             {"S", "big", "d", 5, 30000, "bbbb"},
             {"S", "BIG", "default", 10, 7, "default"},
             {"S", "alone", "d", 10, 1, "d"},
             {"S", "other", "d", 10, 1, "d"},
             {"S", "ke", nullptr, 10, 0, ""},
             {"S", "absent", "default", 4, 3, "def"},
             {"absent", "k", "d", 10, 1, "d"},
         }) {
        GuardedBuffer out(c.size);
        EXPECT_EQ(
            GetPrivateProfileBigString(c.section, c.key, c.defaultValue, out, c.size, path.c_str()),
            c.result)
            << c.key;
        EXPECT_EQ(out.data(), c.expected) << c.key;
    }
}

TEST_F(IniFunctions, BigStringWithoutFile)
{
    for (const std::string& path : {m_folder.Path("missing.ini"), File(""), m_folder.Path()}) {
        GuardedBuffer out(10);
        EXPECT_EQ(GetPrivateProfileBigString("S", "k", "default", out, 10, path.c_str()), 7u)
            << path;
        EXPECT_STREQ(out.data(), "default");
        EXPECT_EQ(GetPrivateProfileBigString("S", "k", "default", nullptr, 0, path.c_str()), 0u);
    }
}

TEST_F(IniFunctions, MergeOverwritesAndKeeps)
{
    const std::string from = m_folder.Write(
        "from.ini", "; c\r\n[S]\r\nk=new\r\nadded='1'\r\nempty=\r\n[New]\r\nn=2\r\n[Empty]\r\n");
    const std::string to =
        m_folder.Write("to.ini", "[s]\r\nK=old\r\nkept=1\r\nempty=old\r\n[T]\r\nt=1\r\n");
    MergeINIFiles(from.c_str(), to.c_str());
    EXPECT_EQ(m_folder.Read("to.ini"),
              "[s]\r\nK=new\r\nkept=1\r\nempty=\r\nadded=1\r\n[T]\r\nt=1\r\n[New]\r\nn=2\r\n");
    MergeINIFiles(from.c_str(), m_folder.Path("made.ini").c_str());
    EXPECT_EQ(m_folder.Read("made.ini"), "[S]\r\nk=new\r\nadded=1\r\nempty=\r\n[New]\r\nn=2\r\n");
    MergeINIFiles(m_folder.Path("missing.ini").c_str(), m_folder.Path("none.ini").c_str());
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("none.ini")));
}

TEST_F(IniFunctions, MergeUsesBuffersOfFixedSizes)
{
    std::string text = "[S]\r\nlong=" + std::string(1000, 'v') + "\r\n";
    for (int i = 100; i < 200; ++i)
        text += "key-number-" + std::to_string(i) + "=1\r\n";  // 15 bytes each in a list
    const std::string from = m_folder.Write("from.ini", text), to = m_folder.Path("to.ini");
    MergeINIFiles(from.c_str(), to.c_str());
    const char* path = to.c_str();
    EXPECT_EQ(platform::ProfileValue("S", "long", "", 2000, path), std::string(259, 'v'));
    EXPECT_EQ(platform::ProfileValue("S", "key-number-166", "", 10, path), "1");
    EXPECT_EQ(platform::ProfileValue("S", "key-number-168", "none", 10, path), "none");
    char keys[2000];
    const DWORD length = platform::ProfileString("S", nullptr, "", keys, sizeof keys, path);
    EXPECT_LE(length, 1022u) << "a name that was cut is none";
}

TEST_F(IniFunctions, CustomColors)
{
    const std::string path = m_folder.Path("c.ini");
    COLORREF colors[16], read[16];
    for (int i = 0; i < 16; ++i)
        colors[i] = static_cast<COLORREF>(i * 0x111111);
    WriteCustomColors(colors, path.c_str());
    EXPECT_EQ(
        m_folder.Read("c.ini"),
        "[ID]\r\nColors=000000 111111 222222 333333 444444 555555 666666 777777 888888 999999 "
        "AAAAAA BBBBBB CCCCCC DDDDDD EEEEEE FFFFFF\r\n");
    ReadCustomColors(read, path.c_str());
    EXPECT_TRUE(std::equal(colors, colors + 16, read));
}

TEST_F(IniFunctions, ColorsThatTheFileDoesNotHaveAreWhite)
{
    struct Case {
        const char* value;
        COLORREF first, second, third;
    };
    constexpr COLORREF kWhite = 0xFFFFFF;
    for (const Case& c : std::initializer_list<Case>{
             {"", kWhite, kWhite, kWhite},
             {"1", 1, kWhite, kWhite},
             {"x 2", kWhite, 2, kWhite},
             {"0x10,7 3", 0x10, 3, kWhite},
             {"1  2", 1, 2, 2},  // after the first of two blanks, the second is skipped as well
         }) {
        const std::string path = File(std::string("[ID]\r\nColors=") + c.value + "\r\n");
        COLORREF colors[16];
        ReadCustomColors(colors, path.c_str());
        EXPECT_EQ(colors[0], c.first) << c.value;
        EXPECT_EQ(colors[1], c.second) << c.value;
        EXPECT_EQ(colors[2], c.third) << c.value;
        EXPECT_EQ(colors[15], kWhite) << c.value;
    }
    COLORREF colors[16] = {};
    ReadCustomColors(colors, m_folder.Path("missing.ini").c_str());
    EXPECT_EQ(std::count(colors, colors + 16, kWhite), 16);
}

}  // namespace
}  // namespace qx

#include "config/ini_text.h"
#include "config/process.h"
#include "support/guarded_buffer.h"
#include "support/language_fixture.h"
#include "support/temporary_folder.h"

#include <qxutility/config/ini_file.h>

#include <algorithm>
#include <cctype>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace qx {
namespace {

using test::GuardedBuffer;
using test::TemporaryFolder;

class IniFile : public testing::Test {
  protected:
    INIFile Load(std::string_view text) { return INIFile(m_folder.Write("t.ini", text).c_str()); }

    // What the buffer form leaves in `size` bytes, '|' for NUL, and what it returns.
    static std::string Get(const INIFile& ini, const char* section, const char* key, DWORD size,
                           const char* defaultValue = "none", const CLanguage* language = nullptr,
                           DWORD lcid = 0)
    {
        GuardedBuffer buffer(size);
        const DWORD result =
            ini.GetPrivateProfileStringA(section, key, defaultValue, buffer, size, language, lcid);
        std::string text(buffer.data(), size);
        std::replace(text.begin(), text.end(), '\0', '|');
        return std::to_string(result) + " " + text.substr(0, text.find('?'));
    }
    static const char* Pointer(const INIFile& ini, const char* section, const char* key,
                               const CLanguage* language = nullptr, DWORD lcid = 0)
    {
        return ini.GetPrivateProfileStringA(section, key, "unused", language, lcid);
    }

    TemporaryFolder m_folder;
};

TEST_F(IniFile, ReadsSectionsAndKeys)
{
    const INIFile ini = Load(
        "ignored = before the first section\r\n[A]\r\nk = v \r\n\t two words \t=\ta b\t\r\n"
        "sign=a=b\r\nempty=\r\n=no name\r\nquoted=\"q\"\r\n;comment=kept\r\nK=last\r\n"
        "[B] x=on the header's line\r\n[ A ]\r\nspaced=3\r\n[a]\r\nagain=4\r\n"
        "[over\r\nlines]z=5\n[]\nnameless=6\n[C][D]\nd=7");
    EXPECT_TRUE(ini.Exists());
    const char* const cases[][3] = {
        {"A", "k", "last"},          {"a", "TWO WORDS", "a b"}, {"A", "sign", "a=b"},
        {"A", "", "no name"},        {"A", "quoted", "\"q\""},  {"A", ";comment", "kept"},
        {"A", "again", "4"},         {" a ", "spaced", "3"},    {"B", "x", "on the header's line"},
        {"over\r\nlines", "z", "5"}, {"", "nameless", "6"},     {"D", "d", "7"},
        {"A", "ignored", ""},
    };
    for (const auto& [section, key, value] : cases)
        EXPECT_STREQ(Pointer(ini, section, key), value) << section << " " << key;
}

// As signed characters are below the blank, a name that starts with one loses it.
TEST_F(IniFile, CharactersAbove127AtTheStartOfALineAreSkipped)
{
    const INIFile ini = Load("[S]\xE9\xE8t\xE9=1\n\xD6l=2\n \xC4\xD6\xFC x=3\n");
    EXPECT_STREQ(Pointer(ini, "S", "t\xE9"), "1");
    EXPECT_STREQ(Pointer(ini, "S", "l"), "2");
    EXPECT_STREQ(Pointer(ini, "S", "x"), "3");
}

TEST_F(IniFile, FaultsKeepWhatStandsBefore)
{
    const struct {
        const char* text;
        bool succeeds;
        const char* value;  // of key k in section S
    } cases[] = {
        {"", true, ""},
        {"[", false, ""},
        {"[S]\nk=v\n[T", false, "v"},
        {"[S]\nk=v\nalone\nl=w\n", false, "v"},
        {"[S]\nk=v\n; a comment\n", false, "v"},
        {"[S]\nk=v", true, "v"},
    };
    for (const auto& c : cases) {
        const INIFile ini = Load(c.text);
        EXPECT_EQ(ini.Exists(), c.succeeds) << c.text;
        EXPECT_STREQ(Pointer(ini, "S", "k"), c.value) << c.text;
    }
}

TEST_F(IniFile, ReadReplacesWhatWasThere)
{
    INIFile ini = Load("[S]\nk=v\n");
    EXPECT_FALSE(ini.Read(m_folder.Path("missing.ini").c_str()));
    EXPECT_FALSE(ini.Exists());
    EXPECT_STREQ(Pointer(ini, "S", "k"), "");
    EXPECT_TRUE(ini.Read(m_folder.Write("u.ini", "[S]\nl=w\n").c_str()));
    EXPECT_STREQ(Pointer(ini, "S", "l"), "w");
    EXPECT_FALSE(ini.Read(m_folder.Path().c_str())) << "a folder";
    EXPECT_FALSE(ini.Read(nullptr));
    EXPECT_FALSE(INIFile().Exists());
}

TEST_F(IniFile, CopiesOwnWhatTheyCopy)
{
    INIFile first = Load("[S]\nk=v\n");
    const INIFile copy(first);
    INIFile assigned;
    assigned = first;
    assigned = *&assigned;
    first.Read("");
    for (const INIFile* ini : {&copy, static_cast<const INIFile*>(&assigned)}) {
        EXPECT_TRUE(ini->Exists());
        EXPECT_STREQ(Pointer(*ini, "S", "k"), "v");
    }
}

TEST_F(IniFile, CutsValuesAndDefaultsToTheBuffer)
{
    const INIFile ini = Load("[S]\nk=v\nlong=value\nempty=\n");
    EXPECT_EQ(Get(ini, "S", "k", 10), "2 v|");
    EXPECT_EQ(Get(ini, "S", "empty", 10), "4 none|");
    const char* values[] = {"0 ",     "1 |",     "2 v|",     "3 va|",
                            "4 val|", "5 valu|", "6 value|", "6 value|"};
    const char* defaults[] = {"0 ",     "1 |",     "2 n|",    "3 no|",
                              "4 non|", "4 none|", "4 none|", "4 none|"};
    for (DWORD size = 0; size < std::size(values); ++size) {
        EXPECT_EQ(Get(ini, "S", "long", size), values[size]) << size;
        EXPECT_EQ(Get(ini, "S", "absent", size), defaults[size]) << size;
    }
    EXPECT_EQ(Get(ini, "S", "absent", 5, nullptr), "0 |");
    EXPECT_EQ(ini.GetPrivateProfileStringA("S", "k", "none", nullptr, 10, nullptr, 0), 0u);
}

TEST_F(IniFile, ListsKeysInAlphabeticalOrder)
{
    const INIFile ini = Load("[S]\nbb=1\nB=2\nb_=3\nab=4\nBB=5\n[T]\n");
    EXPECT_EQ(Get(ini, "s", nullptr, 20), "12 ab|B|b_|bb||");
    EXPECT_EQ(Get(ini, "S", nullptr, 12), "12 ab|B|b_|bb||");
    EXPECT_EQ(Get(ini, "S", nullptr, 11), "11 ab|B|b_|bb|");
    EXPECT_EQ(Get(ini, "S", nullptr, 5), "5 ab|B|");
    EXPECT_EQ(Get(ini, "S", nullptr, 3), "3 ab|");
    EXPECT_EQ(Get(ini, "S", nullptr, 2, "d"), "1 d|") << "too small for a list";
    EXPECT_EQ(Get(ini, "T", nullptr, 9), "4 none|");
    Pointer(ini, "T", "asked for");
    EXPECT_EQ(Get(ini, "T", nullptr, 9), "4 none|") << "only what the file holds";
}

TEST_F(IniFile, TheLanguagesOwnSectionComesFirst)
{
    const test::TestLanguage german("IDS\t09-01\t07-01\r\nL\tEnglish\tDeutsch\r\n", test::kGerman);
    Process().language = german.language;
    const INIFile ini = Load(
        "[S]\nboth=plain\nplain=plain\nempty=plain\nn=1\nx=1.5\n"
        "[S - Deutsch]\nboth=deutsch\nempty=\nn=2\nx=2.5\n[T]\nk=v\n");
    const CLanguage* language = &german.language;
    for (const auto& [key, value] :
         {std::pair{"both", "deutsch"}, {"plain", "plain"}, {"empty", "plain"}, {"absent", ""}}) {
        EXPECT_STREQ(Pointer(ini, "S", key, language), value) << key;
        EXPECT_STREQ(Pointer(ini, "S", key, nullptr, test::kGerman), value) << key;
    }
    EXPECT_STREQ(Pointer(ini, "S", "both"), "plain");
    EXPECT_STREQ(Pointer(ini, "S", "both", nullptr, test::kEnglish), "plain");
    EXPECT_EQ(Get(ini, "S", "both", 20, "", language), "8 deutsch|");
    EXPECT_EQ(Get(ini, "S", nullptr, 30, "", language), "16 both|empty|n|x||");
    EXPECT_EQ(Get(ini, "T", nullptr, 30, "", language), "3 k||");
    const struct {
        const CLanguage* language;
        DWORD lcid;
        int n;
    } cases[] = {{language, 0, 2}, {nullptr, test::kGerman, 1}, {language, test::kEnglish, 2}};
    for (const auto& c : cases) {
        EXPECT_EQ(ini.GetPrivateProfileIntA("S", "n", 0, c.language, c.lcid), c.n);
        EXPECT_EQ(ini.GetPrivateProfileDouble("S", "x", 0, c.language, c.lcid), c.n + 0.5);
    }
    Process().language = CLanguage();
}

TEST_F(IniFile, Numbers)
{
    const INIFile ini = Load(
        "[S]\ni= 12 pieces\nminus=-7\nx=2.5e3 bar\ntext=abc\nhuge=99999999999\n"
        "deep=-99999999999\nlong=" +
        std::string(100, '0') + "5\nempty=\n" + "longer=" + std::string(126, '0') + "15\n");
    const std::pair<const char*, int> whole[] = {{"i", 12},
                                                 {"minus", -7},
                                                 {"text", 0},
                                                 {"absent", 1},
                                                 {"huge", 2147483647},
                                                 {"empty", 1},
                                                 {"deep", -2147483647 - 1},
                                                 {"long", 0}};  // 63 characters
    for (const auto& [key, value] : whole)
        EXPECT_EQ(ini.GetPrivateProfileIntA("S", key, 1, nullptr, 0), value) << key;
    const std::pair<const char*, double> real[] = {
        {"x", 2500}, {"text", 0}, {"absent", 1.25}, {"long", 5}, {"longer", 1}};  // 127 characters
    for (const auto& [key, value] : real)
        EXPECT_EQ(ini.GetPrivateProfileDouble("S", key, 1.25, nullptr, 0), value) << key;
}

TEST_F(IniFile, AMillionKeys)
{
    std::string text = "[all]\n";
    for (int i = 0; i < 1000000; ++i)
        text += "key" + std::to_string(i) + "=" + std::to_string(i) + "\n";
    const INIFile ini = Load(text);
    ASSERT_TRUE(ini.Exists());
    for (const char* number : {"0", "77777", "999999"})
        EXPECT_STREQ(Pointer(ini, "ALL", ("KEY" + std::string(number)).c_str()), number);
    EXPECT_STREQ(Pointer(ini, "all", "key1000000"), "");
}

TEST_F(IniFile, LongNamesAndValues)
{
    const std::string name(100000, 'n'), value(5000000, 'v');
    const INIFile ini = Load("[" + name + "]\n" + name + "=" + value);
    EXPECT_EQ(Pointer(ini, name.c_str(), name.c_str()), value);
    EXPECT_EQ(Pointer(ini, name.c_str(), (name + "n").c_str()), std::string());
    std::string list(name.size() + 3, '?');
    EXPECT_EQ(ini.GetPrivateProfileStringA(name.c_str(), nullptr, "", list.data(),
                                           static_cast<DWORD>(list.size()), nullptr, 0x407),
              name.size() + 2);
}

// The reading as it is described, step by step, on ordered maps.
struct NameOrder {
    bool operator()(const std::string& a, const std::string& b) const
    {
        const std::size_t length = std::min(a.size(), b.size());
        for (std::size_t i = 0; i < length; ++i) {
            const int x = Lower(a[i]), y = Lower(b[i]);
            if (x != y)
                return x < y;
        }
        return a.size() < b.size();
    }
    static int Lower(char c)
    {
        return static_cast<signed char>(c) < 0 ? static_cast<signed char>(c) : std::tolower(c);
    }
};
using Section = std::map<std::string, std::string, NameOrder>;
using Sections = std::map<std::string, Section, NameOrder>;

std::string Trimmed(std::string text)
{
    text.erase(0, text.find_first_not_of(" \t\r\n"));
    text.erase(std::min(text.size(), text.find_last_not_of(" \t\r\n") + 1));
    return text;
}

bool ReadAsDescribed(const std::string& text, Sections& sections)
{
    const auto skip = [&](std::size_t i) {
        while (i < text.size() && (static_cast<signed char>(text[i]) < 33 || text[i] == 127))
            ++i;
        return i;
    };
    for (std::size_t i = text.find('['); i < text.size();) {
        const std::size_t close = text.find(']', i);
        if (close == std::string::npos)
            return false;
        Section& section = sections[text.substr(i + 1, close - i - 1)];
        for (i = skip(close + 1); i < text.size() && text[i] != '[';) {
            const std::size_t lineEnd = std::min(text.find('\n', i), text.size());
            const std::string line = text.substr(i, lineEnd - i);
            const std::size_t equals = line.find('=');
            if (equals == std::string::npos)
                return false;
            section[Trimmed(line.substr(0, equals))] = Trimmed(line.substr(equals + 1));
            i = skip(lineEnd);
        }
    }
    return true;
}

void ExpectSame(const Sections& expected, const IniText& ini)
{
    for (const auto& [name, section] : expected) {
        std::string list;
        for (const auto& [key, value] : section) {
            EXPECT_EQ(ini.Find(name, key), value);
            EXPECT_EQ(ini.Find(name, key).data()[value.size()], '\0');
            list += key + '\0';
        }
        EXPECT_EQ(ini.KeyList(name), list);
    }
}

TEST(IniText, ReadsRandomTextsAsDescribed)
{
    std::mt19937 random(20080305);
    const std::string parts[] = {
        "[", "]",   "=",    "=",    "\n",   "\n", "\r\n",        " ",           "\t",   "a", "A",
        "b", "key", "\xE9", "\x7F", "\x01", ";",  "SectionName", "sectionname", "\xC3", "Z", "_"};
    for (int run = 0; run < 20000; ++run) {
        std::string text;
        for (auto i = random() % 40; i > 0; --i)
            text += parts[random() % std::size(parts)];
        Sections expected;
        IniText ini;
        EXPECT_EQ(ini.Read(text), ReadAsDescribed(text, expected));
        ExpectSame(expected, ini);
        ASSERT_FALSE(testing::Test::HasFailure()) << testing::PrintToString(text);
    }
}

// A NUL ends a name or a value, as it does for whoever reads the result.
TEST(IniText, NulBytes)
{
    using namespace std::string_literals;
    IniText ini;
    EXPECT_TRUE(ini.Read("\0[S\0x]\0\0k\0y = v\0w\r\n\0l=\0\0\n"s));
    EXPECT_EQ(ini.Find("S", "k"), "v");
    EXPECT_EQ(ini.Find("S", "l"), "");
    EXPECT_EQ(ini.KeyList("s"), "k\0l\0"s);
}

TEST(IniText, RandomBytes)
{
    std::mt19937 random(7);
    for (int run = 0; run < 2000; ++run) {
        std::string text(random() % 300, '\0');
        for (char& c : text)
            c = static_cast<char>(random());
        text.insert(text.size() / 3, "[s]").insert(text.size() / 2, "=\n");
        IniText ini;
        ini.Read(text);
        const std::string list = ini.KeyList("s");
        for (std::size_t i = 0; i < list.size(); i += std::strlen(&list[i]) + 1)
            EXPECT_EQ(std::strlen(ini.Find("s", &list[i]).data()), ini.Find("s", &list[i]).size());
    }
}

}  // namespace
}  // namespace qx

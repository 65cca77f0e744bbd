#include "config/list_items.h"
#include "config/plain_table.h"
#include "config/process.h"
#include "doubles/locale_double.h"
#include "doubles/resources_double.h"
#include "support/guarded_buffer.h"
#include "support/temporary_folder.h"

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <tuple>

using qx::test::GuardedBuffer;
using qx::test::LocaleDouble;
using qx::test::PlainTable;
using qx::test::ResourcesDouble;
using qx::test::TemporaryFolder;

namespace {

const HINSTANCE kModule = reinterpret_cast<HINSTANCE>(0x10);
const HINSTANCE kOther = reinterpret_cast<HINSTANCE>(0x20);
constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407, kFrench = 0x040C, kCanadianFrench = 0x0C0C,
                kMaori = 0x0481;

constexpr char kTable[] =
    "IDS\t09-01\t07-01\t12-01\r\n"
    "L\tEnglish\tDeutsch\tFran\347ais\r\n"
    "1\tOpen\t\326ffnen\tOuvrir\r\n"
    "2\tOne%0d%0atwo%09three %\tEins%0D%0Azwei\t\r\n"
    "3\tName:\tName des Rohrs:\tNom du tuyau :\r\n"
    "4\tSize\tGr\xF6\337e\tTaille\r\n"
    "04\tnever\tnie\tjamais\r\n"
    "4\tsecond\tzweite\tseconde\r\n"
    "5\tEmpty in German\t\tVide\r\n"
    "5\tSecond of 5\tZweiter\tSecond\r\n"
    "-2\tMinus\tMinus zwei\tMoins\r\n"
    "2147483647\tLargest\tGr\xF6\337te\tPlus grand\r\n"
    "4000000000\tno number\tkeine\taucun\r\n"
    "6\tSIZE\tzu sp\xE4t\ttrop tard\r\n"
    "7\tQuoted 'text'\t\"Text\"\tTexte\r\n"
    "8\tline%0d%0aend\tZeilenende\tfin\r\n"
    "9\tzero%00cut\tab%00cd\t\r\n"
    "10\t12,5\tkeine Zahl\t";

CTableReader Reader(const std::string& bytes)
{
    const TemporaryFolder folder;
    return CTableReader(folder.Write("table.dat", bytes).c_str(), '\t', nullptr, nullptr);
}

// Locales, and a language object attached to a table of texts.
class Language : public testing::Test {
  protected:
    Language()
    {
        for (const DWORD lcid : {kGerman, kFrench, kCanadianFrench})
            m_locales.installed[lcid] = {",", ".", "", " EUR", "13.11.2008", "13. November"};
        m_locales.installed[kMaori] = {};
        language.Attach(kModule, &m_table);
    }
    ~Language() override { language.Detach(kModule); }

    std::string Text(std::string english, DWORD lcid = 0)
    {
        std::string out;
        m_translated = language.Text(english, out, lcid);
        return (m_translated ? "+" : "-") + out;
    }

    LocaleDouble m_locales;
    CTableReader m_table = Reader(kTable);
    CLanguage language;
    bool m_translated = false;
};

}  // namespace

TEST_F(Language, SelectsAColumn)
{
    const struct {
        DWORD lcid;
        int result;
        DWORD language;
        const char* open;
    } cases[] = {
        {kGerman, 0, kGerman, "\326ffnen"},
        {kCanadianFrench, 0, kCanadianFrench, "Ouvrir"},
        {kMaori, -1, kEnglish, "Open"},  // no column
        {0x0408, -1, kEnglish, "Open"},  // not installed
    };
    for (const auto& each : cases) {
        EXPECT_EQ(each.result, language.SetLanguage(each.lcid)) << each.lcid;
        EXPECT_EQ(each.language, language.GetLanguage()) << each.lcid;
        EXPECT_EQ(each.open, language.String(nullptr, 1)) << each.lcid;
    }
    EXPECT_EQ(0, language.SetLanguage(12, 3));
    EXPECT_EQ(kCanadianFrench, language.GetLanguage());
    EXPECT_EQ(0x0407U, CLanguage::WEB_GetDefaultLCID(7));
}

TEST_F(Language, AcceptsAnyLocaleWithoutATable)
{
    language.SetStringTable(nullptr);
    EXPECT_EQ(0, language.SetLanguage(kMaori));
    EXPECT_EQ(kMaori, language.GetLanguage());
    language.SetStringTable(&m_table);
    EXPECT_EQ("1", language.String(nullptr, 1));  // no such column: the first one
}

TEST_F(Language, HasColumnsOfThreeDigitLanguages)
{
    CTableReader table = Reader("IDS\t09-01\t129-01\r\n1\tOpen\tHuaki");
    language.SetStringTable(&table);
    EXPECT_EQ(0, language.SetLanguage(kMaori));
    EXPECT_EQ("Huaki", language.String(nullptr, 1));
}

TEST_F(Language, FetchesStrings)
{
    language.SetLanguage(kGerman);
    const std::pair<unsigned, const char*> cases[] = {
        {1, "\326ffnen"},
        {2, "Eins\r\nzwei"},
        {4, "Gr\366\337e"},  // the first of two; "04" is not the number 4
        {5, "Zweiter"},      // the first that is not empty
        {9, "ab"},
        {11, "###"},
        {0, "###"},
        {0x7FFFFFFF, "Gr\366\337te"},
        {0xFFFFFFFE, "Minus zwei"},
        {4000000000, "###"},  // its text is that of a negative number
    };
    for (const auto& [id, expected] : cases) {
        char* text = nullptr;
        EXPECT_EQ(std::strlen(expected), language.String(nullptr, id, text)) << id;
        EXPECT_STREQ(expected, text) << id;
        delete[] text;
        EXPECT_EQ(expected, language.String(kModule, id)) << id;
    }
    language.SetLanguage(kFrench);
    EXPECT_EQ("###", language.String(nullptr, 2));
    char* text = nullptr;
    EXPECT_EQ(16U, language.EnglishString(nullptr, 2, text));
    EXPECT_STREQ("One\r\ntwo\tthree %", text);
    delete[] text;
}

TEST_F(Language, CutsStringsAtTheBuffer)
{
    const std::tuple<unsigned, std::size_t, const char*, unsigned> cases[] = {
        {1, 5, "Open", 4},
        {1, 4, "Ope", 4},
        {1, 1, "", 4},
        {99, 3, "##", 3},
        {2, 6, "One\r\n", 16}};
    for (const auto& [id, size, out, length] : cases) {
        GuardedBuffer buffer(size);
        EXPECT_EQ(length, language.String(nullptr, id, buffer, static_cast<int>(size))) << id;
        EXPECT_STREQ(out, buffer) << id << " in " << size;
    }
    GuardedBuffer none(0);
    EXPECT_EQ(4U, language.String(nullptr, 1, none, 0));
    EXPECT_EQ(4U, language.String(nullptr, 1, none, -1));
}

TEST_F(Language, FetchesStringsOfOtherModules)
{
    ResourcesDouble resources;
    resources.strings[{kOther, 1}] = "resource 1";
    resources.strings[{kModule, 2}] = std::string(300, 'x');
    EXPECT_EQ("resource 1", language.String(kOther, 1));
    EXPECT_EQ(1U, CLanguage::pLanguages->count(kOther));  // a null entry

    CTableReader table = Reader("IDS\t09-01\r\n1\tother");
    CLanguage other;
    other.Attach(kOther, &table);
    EXPECT_EQ("other", language.String(kOther, 1));
    other.Detach(kModule);  // its own entry goes
    EXPECT_EQ(0U, CLanguage::pLanguages->count(kOther));
    EXPECT_EQ(1U, CLanguage::pLanguages->count(kModule));

    language.SetStringTable(nullptr);
    EXPECT_EQ(std::string(300, 'x'), language.String(nullptr, 2));
    char buffer[9] = "as it is", *text = nullptr;
    EXPECT_EQ(0U, language.String(nullptr, 3, buffer, sizeof buffer));
    EXPECT_STREQ("as it is", buffer);
    EXPECT_EQ(0U, language.String(nullptr, 3, text));
    EXPECT_STREQ("", text);
    delete[] text;
}

TEST_F(Language, DropsTheMapOfTablesWhenItIsEmpty)
{
    ASSERT_NE(nullptr, CLanguage::pLanguages);
    {
        const CLanguage another;
    }
    ASSERT_NE(nullptr, CLanguage::pLanguages);
    language.Detach(nullptr);
    {
        const CLanguage another;
    }
    EXPECT_EQ(nullptr, CLanguage::pLanguages);
    language.Detach(nullptr);
    EXPECT_EQ("", language.String(kOther, 1));
    language.Attach(kOther, &m_table);
    EXPECT_EQ(1U, CLanguage::pLanguages->size());
}

TEST_F(Language, CopiesEverything)
{
    language.SetLanguage(kGerman);
    const CLanguage copy = language;
    language.SetLanguage(kEnglish);
    EXPECT_EQ(kGerman, copy.GetLanguage());
    EXPECT_EQ("\326ffnen", copy.String(kModule, 1));
}

TEST_F(Language, TranslatesWordings)
{
    language.SetLanguage(kGerman);
    const struct {
        const char *english, *result;
    } cases[] = {
        {"oPEN", "+\326ffnen"},
        {"Open:", "+\326ffnen:"},
        {"Name:", "+Name des Rohrs:"},  // found with its colon, which is not doubled
        {"Name", "-Name"},
        {"line\r\nend", "+Zeilenende"},
        {"'Open'", "+\326ffnen"},
        {"Quoted 'text", "+Text"},
        {"Empty in German", "-Empty in German"},
        {"Missing:", "-Missing:"},
        {"", "+"},
        {"C:\\Size", "+C:\\Size"},
        {"12.5", "+12.5"},  // a number in the process's language, which is English
        {"12,5", "+keine Zahl"},
        {"\tno text", "+\tno text"},  // a tab ends a number
        {"zero%00cut", "+ab"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.result, Text(each.english)) << each.english;
}

TEST_F(Language, TranslatesBetweenLanguages)
{
    EXPECT_EQ("+Open", Text("Open"));
    EXPECT_EQ("+Ouvrir", Text("Open", kFrench));
    language.SetLanguage(kGerman);
    EXPECT_EQ("+Ouvrir", Text("\326ffnen", kFrench));
    EXPECT_EQ("+Open", Text("\326FFNEN", kEnglish));
    EXPECT_EQ("-\366ffnen", Text("\366ffnen", kEnglish));  // no case but that of A to Z
    EXPECT_EQ("+1", Text("\326ffnen", kMaori));            // no column: the first one
    language.SetStringTable(nullptr);
    EXPECT_EQ("+Open:", Text("Open:"));
}

TEST_F(Language, CutsTranslationsAtTheBuffer)
{
    language.SetLanguage(kGerman);
    const struct {
        const char* english;
        int size;
        const char *out, *rest;
        bool found;
    } cases[] = {
        {"Size:", 8, "Gr\366\337e:", "Size", true},
        {"Size:", 7, "Gr\366\337e", "Size", true},  // room for one more, but it takes no colon
        {"Size:", 5, "Gr\366\337", "Size", true},
        {"Size:", 4, "Siz", "Size", false},  // the key is cut as well
        {"Missing:", 8, "Missing", "Missing", false},
        {"Missing:", 1, "", "Missing", false},
        {"Name:", 5, "Name", "Name", false},  // no room for the colon in the key
        {"C:\\x", 4, "C:\\", "C:\\x", true},
    };
    for (const auto& each : cases) {
        GuardedBuffer english(std::strlen(each.english) + 1), out(std::size_t(each.size));
        english = each.english;
        EXPECT_EQ(each.found, language.Text(english, out, each.size, 0)) << each.english;
        EXPECT_STREQ(each.out, out) << each.english << " in " << each.size;
        EXPECT_STREQ(each.rest, english) << each.english << " in " << each.size;
    }
    char inPlace[20] = "Size:";
    EXPECT_TRUE(language.Text(inPlace, inPlace, sizeof inPlace, 0));
    EXPECT_STREQ("Gr\366\337e:", inPlace);
    GuardedBuffer english(6), none(0);
    EXPECT_FALSE(language.Text(english = "Sizes", none, 0, 0));
}

TEST_F(Language, NamesLanguages)
{
    language.SetLanguage(kCanadianFrench);
    EXPECT_EQ("Deutsch", language.GetLanguageName(kGerman));
    EXPECT_EQ("English", language.GetLanguageName(0));
    EXPECT_EQ("", language.GetLanguageName());  // Canadian French has no column of its own
    EXPECT_EQ("", language.GetLanguageName(kMaori));
    const std::tuple<DWORD, std::size_t, const char*> cases[] = {
        {kGerman, 8, "Deutsch"}, {kGerman, 7, "Englis"}, {kGerman, 1, ""}, {0, 20, "Fran\347ais"}};
    for (const auto& [lcid, size, expected] : cases) {
        GuardedBuffer name(size);
        EXPECT_EQ(name.data(), language.GetLanguageName(name, static_cast<int>(size), lcid));
        EXPECT_STREQ(expected, name) << lcid << " in " << size;
    }
    language.SetStringTable(nullptr);
    char name[20];
    EXPECT_STREQ("English", language.GetLanguageName(name, sizeof name, kGerman));
    EXPECT_EQ("English", language.GetLanguageName(kGerman));
}

TEST_F(Language, ListsLanguagesUpToATestingOne)
{
    const struct {
        const char *table, *listed;
    } cases[] = {
        {kTable, "English 409,Deutsch 407*,Fran\347ais 40c,"},
        {"IDS\t09-01\t07-01\t12-01\t16-01\r\nL\tEnglish\tTesting\tFran\347ais\tItaliano",
         "English 409,"},
        {"IDS\t12-03\tother\t07-01\r\nL\tQu\351bec", "Qu\351bec c0c, 0, 407*,"},
        {"IDS", ""},
        {"", ""},
    };
    for (const auto& each : cases) {
        const TemporaryFolder folder;
        qx::Table table('\t');
        table.LoadFile(folder.Write("table.dat", each.table).c_str());
        std::string listed;
        for (const auto& one : qx::ListLanguages(qx::IndexedTable(table), "07-01")) {
            char lcid[16];
            std::snprintf(lcid, sizeof lcid, " %x", unsigned(one.lcid));
            listed += one.name + lcid + (one.current ? "*," : ",");
        }
        EXPECT_EQ(each.listed, listed) << each.table;
    }
}

TEST_F(Language, AnswersAsAPlainScanDoes)
{
    const std::vector<std::string> keys = {"1",     "2",     "3",          "L",         "",  "01",
                                           "'2'",   "-1",    "7x",         "+1",        "0", "00",
                                           "65999", "70000", "2147483648", "4294967295"};
    const std::vector<std::string> texts = {
        "",      "Open",  "open", "Open:",    "'Open'",       "close",         "CLOSE:",
        "a%0ab", "a%0Ab", "\xE4", "\xC4",     "Long wording", "long wording:", "'",
        ":",     "\"q",   "%",    "abcdefgh", "ABCDEFGH"};
    const std::vector<unsigned> ids = {0, 1, 2, 3, 7, 65999, 70000, 0x80000000, 0xFFFFFFFF};
    std::mt19937 random(43);
    const auto pick = [&random](const auto& from) { return from[random() % from.size()]; };
    const std::string columns[] = {"IDS", "09-01", "07-01"};
    for (int round = 0; round < 300; ++round) {
        std::vector<std::string> lines = {"IDS\t09-01\t07-01"};
        for (auto rows = 1 + random() % 30; rows > 0; --rows) {
            std::string line = pick(keys);
            for (auto more = random() % 3; more > 0; --more)
                line += '\t' + pick(texts);
            lines.push_back(line.empty() ? "x" : line);
        }
        std::string bytes = lines[0];
        for (std::size_t i = 1; i < lines.size(); ++i)
            bytes += "\r\n" + lines[i];
        CTableReader table = Reader(bytes);
        const PlainTable plain('\t', lines);
        language.SetStringTable(&table);
        language.SetLanguage(kGerman);
        const auto find = [&](const char* to, const char* from, const std::string& key) {
            return plain.Query(1, true, from != columns[0], to, {{from, key}});
        };
        const auto shown = [](std::string text) {
            for (std::size_t at; (at = PlainTable::Lower(text).find("%0a")) != text.npos;)
                text.replace(at, 3, "\n");
            return text;
        };
        for (const unsigned id : ids) {
            const auto [count, text] = find("07-01", "IDS", std::to_string(static_cast<int>(id)));
            EXPECT_EQ(count ? shown(text) : "###", language.String(nullptr, id)) << id << " in\n"
                                                                                 << bytes;
        }
        for (const std::string& text : texts) {
            const std::string english = shown(text);
            const bool colon = english.ends_with(':');
            const std::string key = colon ? text.substr(0, text.size() - 1) : text;
            auto found = find("07-01", "09-01", key);
            if (found.first == 0 && colon)
                found = find("07-01", "09-01", plain.Clean(key) + ":");
            std::string expected = "-" + english;
            if (english.empty())
                expected = "+";
            else if (found.first)
                expected =
                    "+" + shown(found.second) + (colon && !found.second.ends_with(':') ? ":" : "");
            EXPECT_EQ(expected, Text(english)) << english << " in\n" << bytes;
        }
        language.SetStringTable(&m_table);
    }
}

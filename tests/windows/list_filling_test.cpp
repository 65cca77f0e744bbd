#include "support/language_fixture.h"
#include "support/win32_ui.h"

#include <qxutility/config/startup.h>

#include <gmock/gmock.h>

using namespace qx::test;
using testing::ElementsAre;
using Texts = std::vector<std::string>;

static HWND MakeBox(HWND parent, bool combo, bool sorted)
{
    const DWORD sort = combo ? CBS_SORT : LBS_SORT;
    return MakeChild(parent, combo ? "ComboBox" : "ListBox", "",
                     (combo ? CBS_DROPDOWNLIST : 0) | (sorted ? sort : 0), 1);
}

TEST(Fill, KeepsTheOrderExceptOfALastItemThatIsSorted)
{
    struct Case {
        const char* list;
        bool sortedBox, addLastSorted;
        Texts items;
    };
    const Case cases[] = {
        {"c\tb\ta\t", false, false, {"c", "b", "a"}}, {"c\tb\ta\t", true, false, {"c", "b", "a"}},
        {"c\tb\ta\t", false, true, {"c", "b", "a"}},  {"b\tc\ta\t", true, true, {"a", "b", "c"}},
        {"b\tc\ta", true, true, {"a", "b", "c"}},     {"a\t\tb\t", false, false, {"a", "", "b"}},
        {"alone\t", false, true, {"alone"}},          {"", false, false, {}},
    };
    const TestWindow window("Fill");
    for (const Case& c : cases) {
        for (const bool combo : {true, false}) {
            const HWND box = MakeBox(window, combo, c.sortedBox);
            CTableReader::Fill(combo, box, c.list, '\t', c.addLastSorted);
            EXPECT_EQ(c.items, ItemsOf(box))
                << '"' << c.list << "\" combo " << combo << " sorted " << c.sortedBox;
            ::DestroyWindow(box);
        }
    }
}

TEST(Fill, ShowsNumbersInTheUsersForm)
{
    const TestWindow window("Fill");
    const std::pair<DWORD, Texts> cases[] = {
        {kGerman, {"1,5", ",25", "v.1", "2,75"}},
        {kEnglish, {"1.5", ".25", "v.1", "2.75"}},
    };
    for (const auto& [lcid, items] : cases) {
        QXUtility_SetLanguage(lcid);
        for (const bool combo : {true, false}) {
            const HWND box = MakeBox(window, combo, false);
            const std::string list = "1.5;.25;v.1;2.75;";
            CTableReader::Fill(combo, box, list.c_str(), ';', true);
            EXPECT_EQ(items, ItemsOf(box)) << lcid;
            EXPECT_EQ("1.5;.25;v.1;2.75;", list);
            ::DestroyWindow(box);
        }
    }
}

TEST(Fill, TakesAQueryResultOfManyItems)
{
    std::string content = "IDS\tvalue\r\n", list;
    Texts expected;
    for (int i = 0; i < 3'000; ++i) {
        expected.push_back("item " + std::to_string(i));
        content += std::to_string(i) + '\t' + expected.back() + "\r\n";
    }
    const TableFile file(content);
    const CTableReader table(file.Path().c_str(), '\t', nullptr, nullptr);
    char* result = nullptr;
    ASSERT_EQ(3'000, table.Query(result, 0, 0, "value", nullptr));
    const TestWindow window("Fill");
    const HWND box = MakeBox(window, false, false);
    CTableReader::Fill(false, box, result, '\t', false);
    EXPECT_EQ(expected, ItemsOf(box));
    delete[] result;
}

struct Listed {
    std::string name;
    DWORD lcid;
    bool operator==(const Listed&) const = default;
};

static std::vector<Listed> ListedIn(HWND combo)
{
    std::vector<Listed> listed;
    for (const std::string& name : ItemsOf(combo)) {
        const LRESULT data = ::SendMessageA(combo, CB_GETITEMDATA, listed.size(), 0);
        listed.push_back({name, static_cast<DWORD>(data)});
    }
    return listed;
}

TEST(LanguageList, NamesEveryLanguageAndSelectsTheCurrentOne)
{
    static const char kTable[] =
        "IDS\t09-01\t07-01\t12-01\t10-01\t16-01\r\n"
        "L\tEnglish\tDeutsch\tFran\347ais\tTesting\tItaliano\r\n";
    const TestWindow window("Languages");
    for (const auto& [lcid, selected] : {std::pair{kEnglish, 0}, {kGerman, 1}, {kFrench, 2}}) {
        const TestLanguage test(kTable, lcid);
        const HWND combo = MakeBox(window, true, false);
        EXPECT_EQ(6, test.language.LanguageList(combo));
        EXPECT_THAT(ListedIn(combo),
                    ElementsAre(Listed{"English", kEnglish}, Listed{"Deutsch", kGerman},
                                Listed{"Fran\347ais", kFrench}))
            << "the language being tested and those behind it are not offered";
        EXPECT_EQ(selected, ::SendMessageA(combo, CB_GETCURSEL, 0, 0)) << lcid;
        ::DestroyWindow(combo);
    }
}

TEST(LanguageList, IsEmptyWithoutATable)
{
    const TestWindow window("Languages");
    const HWND combo = MakeBox(window, true, false);
    EXPECT_EQ(0, CLanguage().LanguageList(combo));
    EXPECT_THAT(ItemsOf(combo), ElementsAre());
}

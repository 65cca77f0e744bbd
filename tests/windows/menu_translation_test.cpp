#include "support/language_fixture.h"
#include "support/win32_ui.h"

#include <gmock/gmock.h>

using namespace qx::test;
using Texts = std::vector<std::string>;
using testing::ElementsAre;

// In code page 1252. "Datei" carries a mnemonic of its own; wordings are found in any case.
static const char kTable[] =
    "IDS\t09-01\t07-01\t12-01\r\n"
    "L\tEnglish\tDeutsch\tFran\347ais\r\n"
    "\tFile\t&Datei\t&Fichier\r\n"
    "\tOpen\t\326ffnen\tOuvrir\r\n"
    "\tRecent files\tZuletzt benutzt\tFichiers r\351cents\r\n"
    "\tClear list\tListe leeren\tVider la liste\r\n"
    "\tEXIT\tBeenden\tQuitter\r\n";

enum Command : UINT { kOpen = 101, kExit, kFirstFile, kClear };

// A bar with File > { Open, Recent files > { a.pip, Clear list }, separator, Exit }.
struct TestMenu {
    TestMenu()
    {
        ::AppendMenuA(recent, MF_STRING, kFirstFile, "a.pip");
        ::AppendMenuA(recent, MF_STRING, kClear, "&Clear list");
        ::AppendMenuA(file, MF_STRING, kOpen, "&Open\tCtrl+O");
        ::AppendMenuA(file, MF_POPUP, reinterpret_cast<UINT_PTR>(recent), "&Recent files");
        ::AppendMenuA(file, MF_SEPARATOR, 0, nullptr);
        ::AppendMenuA(file, MF_STRING, kExit, "E&xit");
        ::AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(file), "&File");
    }
    TestMenu(const TestMenu&) = delete;
    TestMenu& operator=(const TestMenu&) = delete;
    ~TestMenu() { ::DestroyMenu(bar); }

    Texts All() const
    {
        Texts texts;
        for (HMENU menu : {bar, file, recent}) {
            for (const std::string& text : TextsOf(menu))
                texts.push_back(text);
        }
        return texts;
    }

    HMENU bar = ::CreateMenu();
    HMENU file = ::CreatePopupMenu();
    HMENU recent = ::CreatePopupMenu();
};

static const Texts kEnglishTexts = {"&File", "&Open\tCtrl+O", "&Recent files", "-",
                                    "E&xit", "a.pip",         "&Clear list"};

TEST(MenuTranslation, ReachesEveryLevel)
{
    const std::pair<DWORD, Texts> cases[] = {
        {kGerman,
         {"&Datei", "\326ffnen\tCtrl+O", "Zuletzt benutzt", "-", "Beenden", "a.pip",
          "Liste leeren"}},
        {kFrench,
         {"&Fichier", "Ouvrir\tCtrl+O", "Fichiers r\351cents", "-", "Quitter", "a.pip",
          "Vider la liste"}},
        {kEnglish, kEnglishTexts},
    };
    for (const auto& [lcid, expected] : cases) {
        const TestLanguage test(kTable, lcid);
        const TestMenu menu;
        test.language.Menu(menu.bar, 0);
        EXPECT_EQ(expected, menu.All()) << "locale " << lcid;
    }
}

// With a locale, the wordings on the screen are those of the current language.
TEST(MenuTranslation, GoesFromTheCurrentLanguageToAnother)
{
    const TestLanguage test(kTable, kGerman);
    const TestMenu menu;
    ::ModifyMenuA(menu.file, kExit, MF_BYCOMMAND, kExit, "Beenden");
    test.language.Menu(menu.bar, kFrench);
    EXPECT_EQ("Quitter", TextsOf(menu.file)[3]);
    test.language.Menu(nullptr, 0);
}

TEST(MenuTranslation, LeavesSubmenusWorking)
{
    const TestLanguage test(kTable, kGerman);
    const TestMenu menu;
    const TestWindow window("Menu");
    ::SetMenu(window, menu.bar);
    test.language.Menu(menu.bar, 0);

    EXPECT_EQ(menu.file, ::GetSubMenu(menu.bar, 0));
    EXPECT_EQ(menu.recent, ::GetSubMenu(menu.file, 1));
    // Down to "Zuletzt benutzt", into it, down to "Liste leeren".
    EXPECT_EQ(kClear,
              ChooseWithKeys(menu.file, window, {VK_DOWN, VK_DOWN, VK_RIGHT, VK_DOWN, VK_RETURN}));
    ::SetMenu(window, nullptr);
}

static MENUITEMINFOA InfoOf(HMENU menu, UINT position)
{
    MENUITEMINFOA info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_ID | MIIM_STATE | MIIM_FTYPE | MIIM_CHECKMARKS | MIIM_DATA | MIIM_BITMAP;
    ::GetMenuItemInfoA(menu, position, TRUE, &info);
    return info;
}

TEST(MenuTranslation, KeepsStateMarksAndData)
{
    const TestLanguage test(kTable, kGerman);
    const TestMenu menu;
    const HBITMAP bitmap = ::CreateBitmap(13, 13, 1, 1, nullptr);
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STATE | MIIM_FTYPE | MIIM_CHECKMARKS | MIIM_DATA | MIIM_BITMAP;
    item.fState = MFS_CHECKED | MFS_GRAYED | MFS_DEFAULT;
    item.fType = MFT_STRING | MFT_RADIOCHECK;
    item.hbmpChecked = item.hbmpUnchecked = item.hbmpItem = bitmap;
    item.dwItemData = 4711;
    ::SetMenuItemInfoA(menu.file, 3, TRUE, &item);

    test.language.Menu(menu.bar, 0);

    const MENUITEMINFOA after = InfoOf(menu.file, 3);
    EXPECT_EQ("Beenden", TextsOf(menu.file)[3]);
    EXPECT_EQ(kExit, after.wID);
    EXPECT_EQ(item.fState, after.fState);
    EXPECT_EQ(item.fType, after.fType);
    EXPECT_EQ(bitmap, after.hbmpChecked);
    EXPECT_EQ(bitmap, after.hbmpUnchecked);
    EXPECT_EQ(bitmap, after.hbmpItem);
    EXPECT_EQ(4711u, after.dwItemData);
    ::DeleteObject(bitmap);
}

// Once an item has had dots, the rest of its level gets them; other levels do not.
TEST(MenuTranslation, DotsStayForTheRestOfTheLevel)
{
    const TestLanguage test(kTable, kGerman);
    const TestMenu menu;
    ::ModifyMenuA(menu.file, kOpen, MF_BYCOMMAND, kOpen, "&Open...\tCtrl+O");
    test.language.Menu(menu.bar, 0);
    EXPECT_THAT(TextsOf(menu.file),
                ElementsAre("\326ffnen...\tCtrl+O", "Zuletzt benutzt...", "-", "Beenden..."));
    EXPECT_THAT(TextsOf(menu.recent), ElementsAre("a.pip", "Liste leeren"));
    EXPECT_THAT(TextsOf(menu.bar), ElementsAre("&Datei"));
}

TEST(MenuTranslation, SkipsItemsThatShowNoTextAndCutsOthersAt269Characters)
{
    const TestLanguage test(kTable, kGerman);
    const HMENU menu = ::CreatePopupMenu();
    const HBITMAP bitmap = ::CreateBitmap(13, 13, 1, 1, nullptr);
    ::AppendMenuA(menu, MF_BITMAP, 1, reinterpret_cast<LPCSTR>(bitmap));
    ::AppendMenuA(menu, MF_OWNERDRAW, 2, "Open");
    ::AppendMenuA(menu, MF_STRING, 3, "");
    ::AppendMenuA(menu, MF_STRING, 0, "Open");  // an identifier of 0 counts as a separator
    ::AppendMenuA(menu, MF_STRING, 4, std::string(5'000, 'x').c_str());
    ::AppendMenuA(menu, MF_STRING, 5, ("xyz\t" + std::string(5'000, 'k')).c_str());

    const auto before = {InfoOf(menu, 0), InfoOf(menu, 1)};
    test.language.Menu(menu, 0);

    UINT position = 0;
    for (const MENUITEMINFOA& item : before) {
        const MENUITEMINFOA after = InfoOf(menu, position++);
        EXPECT_EQ(item.fType, after.fType) << position;
        EXPECT_EQ(item.hbmpItem, after.hbmpItem) << position;
        EXPECT_EQ(item.dwItemData, after.dwItemData) << position;
    }
    EXPECT_EQ("", TextsOf(menu)[2]);
    EXPECT_EQ("Open", TextsOf(menu)[3]);
    EXPECT_EQ(std::string(269, 'x'), TextsOf(menu)[4]);
    EXPECT_EQ(269U, TextsOf(menu)[5].size()) << "its keys included";
    ::DestroyMenu(menu);
    ::DeleteObject(bitmap);
}

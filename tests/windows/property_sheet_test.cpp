// Real property sheets: their pages, their texts, turning to a page by message.
#include "support/win32_ui.h"

#include <qxutility/config/startup.h>
#include <qxutility/ui/dialog_fields.h>

#include <cstring>
#include <gmock/gmock.h>

using namespace qx::test;
using testing::ElementsAre;

static constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407;
static constexpr UINT kTakenOver = 2701;

static INT_PTR CALLBACK DoNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

namespace {

struct PageTemplate {
    DLGTEMPLATE header{WS_CHILD | WS_CAPTION, 0, 0, 0, 0, 180, 90};
    WORD menu = 0, windowClass = 0, title = 0;
};

// Runs a modal sheet of two pages; `look` is called when it stands.
INT_PTR RunSheet(HWND owner, const std::function<void(HWND sheet)>& look)
{
    static const PageTemplate page;
    HPROPSHEETPAGE pages[2];
    const char* const titles[] = {"First", "Second"};
    for (int i = 0; i < 2; ++i) {
        PROPSHEETPAGEA record;
        PropSheetPageFirst(nullptr, &record, 0, DoNothing, 0, false, titles[i]);
        record.dwFlags |= PSP_DLGINDIRECT;
        record.pResource = &page.header;
        pages[i] = ::CreatePropertySheetPageA(&record);
    }
    PROPSHEETHEADERA header{};
    header.dwSize = PROPSHEETHEADERA_V1_SIZE;
    header.dwFlags = PSH_USECALLBACK | PSH_HASHELP;
    header.hwndParent = owner;
    header.pszCaption = "Toolbar";
    header.nPages = 2;
    header.phpage = pages;
    header.pfnCallback = PropSheetProc;
    ModalAnswer answer([&](HWND sheet) {
        look(sheet);
        Press(sheet, IDCANCEL);
    });
    return ::PropertySheetA(&header);
}

HWND CurrentPage(HWND sheet)
{
    return reinterpret_cast<HWND>(::SendMessageA(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
}

HWND PageAt(HWND sheet, int index)
{
    return reinterpret_cast<HWND>(
        ::SendMessageA(sheet, PSM_INDEXTOHWND, static_cast<WPARAM>(index), 0));
}

class PropertySheets : public testing::Test {
  protected:
    ~PropertySheets() override { QXUtility_SetLanguage(kEnglish); }

    TestWindow m_owner{"Owner"};
};

}  // namespace

TEST_F(PropertySheets, FillPageRecords)
{
    PROPSHEETPAGEA page;
    std::memset(&page, 0xAA, sizeof page);
    const auto module = reinterpret_cast<HINSTANCE>(0x10000);
    PropSheetPageFirst(module, &page, 123, DoNothing, 77, true, "Units");
    EXPECT_EQ(sizeof(void*) == 4 ? 48u : 88u, page.dwSize);
    EXPECT_EQ(DWORD{PSP_HASHELP | PSP_PREMATURE | PSP_USETITLE}, page.dwFlags);
    EXPECT_EQ(module, page.hInstance);
    EXPECT_EQ(MAKEINTRESOURCEA(123), page.pszTemplate);
    EXPECT_STREQ("Units", page.pszTitle);
    EXPECT_EQ(&DoNothing, page.pfnDlgProc);
    EXPECT_EQ(77, page.lParam);
    EXPECT_EQ(nullptr, page.pszHeaderSubTitle);
    EXPECT_EQ(0xAA, reinterpret_cast<unsigned char*>(&page)[page.dwSize]) << "not the caller's";

    PropSheetPage(module, &page, 123, DoNothing, 77);
    EXPECT_EQ(DWORD{PSP_HASHELP}, page.dwFlags);
    EXPECT_EQ(nullptr, page.pszTitle);
}

TEST_F(PropertySheets, AreTranslatedAndHaveNoQuestionMark)
{
    QXUtility_SetLanguage(kGerman);
    std::string caption, cancel, apply;
    LONG style = -1, extended = -1;
    RunSheet(m_owner, [&](HWND sheet) {
        caption = TextOf(sheet);
        cancel = TextOfItem(sheet, IDCANCEL);
        apply = TextOfItem(sheet, 0x3021);
        style = ::GetWindowLongA(sheet, GWL_STYLE);
        extended = ::GetWindowLongA(sheet, GWL_EXSTYLE);
    });
    EXPECT_EQ("Symbolleiste", caption);
    EXPECT_EQ("Abbrechen", cancel);
    EXPECT_EQ("\334&bernehmen", apply);
    EXPECT_EQ(0, style & DS_CONTEXTHELP);
    EXPECT_EQ(0, extended & WS_EX_CONTEXTHELP);
}

TEST_F(PropertySheets, TurnToAPageByMessage)
{
    std::vector<LRESULT> answers;
    bool turned = false, stayed = false;
    RunSheet(m_owner, [&](HWND sheet) {
        answers.push_back(::SendMessageA(sheet, kTurnToPage, 0, 0));
        answers.push_back(::SendMessageA(sheet, kTurnToPage, 1, 0));
        turned =
            PumpUntil([&] { return PageAt(sheet, 1) && CurrentPage(sheet) == PageAt(sheet, 1); });
        answers.push_back(::SendMessageA(sheet, kTurnToPage, 1, 0));
        ::SendMessageA(sheet, kTurnToPage, 4711, 0);
        PumpWaiting();
        stayed = CurrentPage(sheet) == PageAt(sheet, 1);
    });
    EXPECT_THAT(answers, ElementsAre(0, 1, 0));
    EXPECT_TRUE(turned);
    EXPECT_TRUE(stayed);
}

TEST_F(PropertySheets, AreNotTakenOverByAForeignMessage)
{
    bool stands = false;
    RunSheet(m_owner, [&](HWND sheet) {
        ::SendMessageA(sheet, kTakenOver, 0xBAD, 0xBAD);
        ::SendMessageA(sheet, kTakenOver, 0, 0);
        stands = CurrentPage(sheet) != nullptr && ::SendMessageA(sheet, kTurnToPage, 0, 0) == 0;
    });
    EXPECT_TRUE(stands);
}

TEST_F(PropertySheets, GiveTheirProcedureBackWhenTheyEnd)
{
    for (int round = 0; round < 20; ++round) {
        bool seen = false;
        RunSheet(m_owner, [&](HWND sheet) {
            PropSheetProc(sheet, PSCB_INITIALIZED, 0);  // a second time
            seen = ::IsWindow(sheet);
        });
        EXPECT_TRUE(seen);
    }
}

TEST_F(PropertySheets, MayBeDestroyedByAnyoneAndTwice)
{
    for (const bool withOwner : {false, true}) {
        const HWND owner = ::CreateWindowA("Static", "", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200,
                                           nullptr, nullptr, nullptr, nullptr);
        HWND seen = nullptr;
        RunSheet(owner, [&](HWND sheet) {
            seen = sheet;
            ::SendMessageA(sheet, kTurnToPage, 1, 0);  // is posted, and comes too late
            ::DestroyWindow(withOwner ? owner : sheet);
            ::DestroyWindow(withOwner ? owner : sheet);
        });
        EXPECT_TRUE(seen);
        EXPECT_FALSE(::IsWindow(seen));
        ::DestroyWindow(owner);
    }
}

// Numbers and texts in the controls of real dialogs, typing, and placing windows.
#include "support/guarded_buffer.h"
#include "support/win32_ui.h"
#include "support/window_spy.h"

#include <qxutility/config/startup.h>
#include <qxutility/ui/dialog_fields.h>

#include <algorithm>
#include <cmath>
#include <gmock/gmock.h>

using namespace qx::test;
using testing::ElementsAre;
using testing::IsEmpty;

static constexpr int kEdit = 7, kMissing = 8;
static constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407;

namespace {

// A window with an edit control, and the process's language for as long as it lives.
class DialogFields : public testing::Test {
  protected:
    ~DialogFields() override { QXUtility_SetLanguage(kEnglish); }

    std::string Shown() const { return TextOf(m_edit); }
    void Enter(const char* text) { ::SetWindowTextA(m_edit, text); }

    TestWindow m_window{"Fields"};
    HWND m_edit = MakeChild(m_window, "Edit", "", 0, kEdit);
};

using TypedNumbers = DialogFields;

}  // namespace

TEST_F(DialogFields, ShowNumbersInTheUsersForm)
{
    const std::pair<double, const char*> cases[] = {
        {1.5, "1,5"},     {123456789.123, "123456789"}, {1234567.891, "1234567,89"},
        {1e10, "1e+010"}, {1.5e-7, "1,5e-007"},         {0, "0"}};
    for (const auto& [value, german] : cases) {
        for (const DWORD language : {kEnglish, kGerman}) {
            QXUtility_SetLanguage(language);
            SetDlgItemDouble(m_window, kEdit, value);
            std::string expected = german;
            if (language == kEnglish)
                std::replace(expected.begin(), expected.end(), ',', '.');
            EXPECT_EQ(expected, Shown());
        }
    }
    SetDlgItemDouble(m_window, kEdit, 0.1f);
    EXPECT_EQ("0,1", Shown());
    SetDlgItemDouble(m_window, kEdit, std::nan(""));
    EXPECT_EQ(std::string::npos, Shown().find_first_of("0123456789")) << Shown();
}

TEST_F(DialogFields, ReadNumbersInTheUsersForm)
{
    const std::pair<const char*, double> cases[] = {
        {"1,5", 1.5},   {"1.5", 1.5},
        {" 12 mm", 12}, {"-1e3", -1000},
        {"none", 0},    {"", 0},
        {"1e", 0},      {"1234567890123456789012", 1234567890123456789.0}};  // 19 characters
    QXUtility_SetLanguage(kGerman);
    for (const auto& [text, value] : cases) {
        Enter(text);
        EXPECT_EQ(value, GetDlgItemDouble(m_window, kEdit)) << text;
    }
    Enter((std::string(19, '7') + std::string(100'000, 'x')).c_str());
    EXPECT_EQ(7777777777777777777.0, GetDlgItemDouble(m_window, kEdit));
}

TEST_F(DialogFields, TellWhetherANumberHasChanged)
{
    double value = 1.5;
    Enter("1.50");
    EXPECT_FALSE(GetDlgItemDoubleChanged(m_window, kEdit, value));
    Enter("1.6");
    EXPECT_TRUE(GetDlgItemDoubleChanged(m_window, kEdit, value));
    EXPECT_EQ(1.6, value);
    EXPECT_TRUE(GetDlgItemDoubleChanged(m_window, kMissing, value));
    EXPECT_EQ(0, value);
    EXPECT_FALSE(GetDlgItemDoubleChanged(m_window, kMissing, value));
}

TEST_F(DialogFields, TellWhetherATextHasChanged)
{
    GuardedBuffer text(6), none(1);
    text = "";
    const struct {
        const char* entered;
        bool changed;
        const char* text;
    } cases[] = {{"Pump", true, "Pump"},
                 {"Pump", false, "Pump"},
                 {"pump", true, "pump"},
                 {"Pumping", true, "Pumpi"},
                 {"", true, ""}};
    for (const auto& c : cases) {
        Enter(c.entered);
        EXPECT_EQ(c.changed, GetDlgItemTextChanged(m_window, kEdit, text, 5)) << c.entered;
        EXPECT_STREQ(c.text, text);
        EXPECT_FALSE(GetDlgItemTextChanged(m_window, kMissing, text, 5));
        EXPECT_STREQ(c.text, text) << "no such control";
    }
    none = "";
    Enter("Pump");
    EXPECT_FALSE(GetDlgItemTextChanged(m_window, kEdit, none, 0));
}

TEST_F(DialogFields, HoldTextsAndWholeNumbers)
{
    const std::string longText(20'000, 'x');
    QXDialog::SetItemText(m_edit, longText);
    EXPECT_EQ(longText, QXDialog::GetItemText(m_edit));
    EXPECT_EQ(longText, QXDialog::dlg_retriever<std::string>::getData(m_window, kEdit));
    Enter("-12");
    EXPECT_EQ(-12, QXDialog::dlg_retriever<int>::getData(m_window, kEdit));
    Enter("twelve");
    EXPECT_EQ(0, QXDialog::dlg_retriever<int>::getData(m_window, kEdit));
    SetDlgItemNull(m_window, kEdit);
    EXPECT_EQ("", Shown());
    SetDlgItemLimit(m_window, kEdit, 12);
    EXPECT_EQ(12, ::SendMessageA(m_edit, EM_GETLIMITTEXT, 0, 0));
}

TEST_F(DialogFields, DoNothingWithoutTheirControl)
{
    SetDlgItemLimit(m_window, kMissing, 1);
    SetDlgItemNull(m_window, kMissing);
    SetDlgItemDouble(m_window, kMissing, 1.5);
    MakeKeyPress(m_window, kMissing);
    ClearKeyPress(m_window, kMissing);
    EXPECT_EQ(0, GetDlgItemDouble(m_window, kMissing));
    EXPECT_FALSE(GoodNumber(m_window, kMissing, true, true, true));
    EXPECT_EQ("", QXDialog::dlg_retriever<std::string>::getData(m_window, kMissing));
    EXPECT_EQ("", QXDialog::GetItemText(nullptr));
}

TEST_F(TypedNumbers, AreCutInTheControl)
{
    struct Case {
        DWORD language;
        const char* text;
        const char* left;
        bool good;
        std::size_t caret;
    };
    const Case cases[] = {
        {kEnglish, "12a4", "12", true, 2}, {kEnglish, "-5", "", false, 0},
        {kEnglish, ".5", "0.5", true, 3},  {kGerman, ",5", "0,5", true, 3},
        {kEnglish, "12 ", "12", true, 2},  {kEnglish, "1e5e", "1e5", true, 3},
        {kEnglish, "0", "", false, 0},
    };
    for (const Case& c : cases) {
        QXUtility_SetLanguage(c.language);
        Enter(c.text);
        EXPECT_EQ(c.good, GoodNumber(m_window, kEdit, true, false, false)) << c.text;
        EXPECT_EQ(c.left, Shown()) << c.text;
        EXPECT_EQ(MAKELONG(c.caret, c.caret), ::SendMessageA(m_edit, EM_GETSEL, 0, 0)) << c.text;
    }
}

TEST_F(TypedNumbers, AreReadAsFarAsTheControlsLimit)
{
    Enter("12345678901234567890a");
    EXPECT_TRUE(GoodNumber(m_window, kEdit, true, true, true)) << "18 characters are looked at";
    EXPECT_EQ("12345678901234567890a", Shown());
    SetDlgItemLimit(m_window, kEdit, 3);
    Enter(".25");
    EXPECT_TRUE(GoodNumber(m_window, kEdit, true, true, true));
    EXPECT_EQ("0.2", Shown());
    Enter(std::string(100'000, 'x').c_str());
    EXPECT_FALSE(GoodNumber(m_window, kEdit, true, true, true));
    EXPECT_EQ("", Shown());
}

TEST_F(TypedNumbers, ControlMayGoWhileItsTextIsChanged)
{
    Enter(".5x");
    const Spy spy(m_window, [&](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
        if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE)
            ::DestroyWindow(m_edit);
        return {};
    });
    GoodNumber(m_window, kEdit, true, true, true);
    EXPECT_FALSE(::IsWindow(m_edit));
}

TEST(DialogPlacement, CentresWindowsOverOthers)
{
    const TestWindow outer("Outer", 500, 400), inner("Inner", 201, 101);
    RECT area, place;
    ::GetClientRect(outer, &area);
    CenterWindow(inner, outer);
    ::GetWindowRect(inner, &place);
    POINT expected{(area.right - 201) / 2, (area.bottom - 101) / 2};
    ::ClientToScreen(outer, &expected);
    EXPECT_EQ(expected.x, place.left);
    EXPECT_EQ(expected.y, place.top);
    EXPECT_EQ(201, place.right - place.left);

    CenterWindow(inner, nullptr);
    ::GetWindowRect(inner, &place);
    EXPECT_EQ((::GetSystemMetrics(SM_CXSCREEN) - 201) / 2, place.left);
}

TEST(DialogPlacement, ShrinksTheAreaOfATool)
{
    const TestWindow window("Tool", 300, 240);
    RECT whole, area;
    ::GetWindowRect(window, &whole);
    CenterTool(window, area);
    EXPECT_EQ(whole.left + 50, area.left);
    EXPECT_EQ(whole.right - 50, area.right);
    EXPECT_EQ(whole.top + 40, area.top);
    EXPECT_EQ(whole.bottom - 40, area.bottom);
}

TEST(DialogPlacement, MovesTheChildrenOfADialog)
{
    const TestWindow window("Children");
    const HWND children[] = {MakeChild(window, "Edit", "", 0, 1),
                             MakeChild(window, "Edit", "", 0, 2)};
    ::MoveWindow(children[1], 30, 50, 70, 20, FALSE);
    ::EnumChildWindows(window, MoveDialogChildren, -25);
    std::vector<LONG> places;
    for (const HWND child : children) {
        RECT place;
        ::GetWindowRect(child, &place);
        ::MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
        places.insert(places.end(), {place.left, place.top, place.right, place.bottom});
    }
    EXPECT_THAT(places, ElementsAre(-15, 10, 185, 130, 5, 50, 75, 70));
}

static INT_PTR CALLBACK DoNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

TEST(DialogBox, ReportsThatItCannotBeCreated)
{
    const struct {
        DWORD language;
        const char *title, *text;
    } cases[] = {{kEnglish, "Error!", "A window of the program could not be opened."},
                 {kGerman, "Fehler", "Ein Fenster des Programms konnte nicht ge\366ffnet werden."}};
    for (const auto& c : cases) {
        QXUtility_SetLanguage(c.language);
        std::string title, text;
        ModalAnswer answer([&](HWND box) {
            title = TextOf(box);
            text = MessageOf(box);
            Press(box, IDOK);
        });
        const TestWindow owner("Owner");
        EXPECT_GT(0, ShowDialogBox(::GetModuleHandleA(nullptr), owner, DoNothing, 4711, 0));
        EXPECT_EQ(1, answer.Count());
        EXPECT_EQ(c.title, title);
        EXPECT_THAT(text, testing::StartsWith(c.text));
        EXPECT_THAT(text, testing::EndsWith(" Dialog"));
    }
    QXUtility_SetLanguage(kEnglish);
}

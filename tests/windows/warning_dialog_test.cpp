// The dialog of warnings on the screen.
#include "support/temporary_folder.h"
#include "support/win32_ui.h"

#include <qxutility/config/language.h>
#include <qxutility/config/startup.h>
#include <qxutility/config/table_reader.h>
#include <qxutility/ui/warning_list.h>

#include <gmock/gmock.h>

using namespace qx::test;
using testing::ElementsAre;
using testing::HasSubstr;

static constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407;
static constexpr int kExplanation = 1001, kList = 1002, kHelp = 6, kSave = 1003;
static constexpr int kFileName = 0x47C;  // of the dialog that asks for a file

namespace {

class WarningDialog : public testing::Test {
  protected:
    ~WarningDialog() override { QXUtility_SetLanguage(kEnglish); }

    static QXWarningList ListOf(int count, const char* folder = nullptr)
    {
        QXWarningList warnings(nullptr, 0, 0, nullptr, folder);
        for (int i = 0; i < count; ++i)
            warnings.add("Pipe %s is too long", std::to_string(i).c_str());
        return warnings;
    }
    // Shows the list, looks at the dialog and closes it.
    void Show(QXWarningList& warnings, const std::function<void(HWND dialog)>& look)
    {
        ModalAnswer answer([&](HWND dialog) {
            look(dialog);
            Press(dialog, IDOK);
        });
        warnings.display(m_owner);
        EXPECT_EQ(1, answer.Count());
    }
    // Saves the list as `path`; returns the texts of the boxes that this shows.
    std::vector<std::string> Save(QXWarningList& warnings, const std::string& path, int end = IDOK)
    {
        std::vector<std::string> boxes;
        ModalAnswer answer([&](HWND dialog) {
            if (::GetDlgItem(dialog, kFileName)) {
                ::SetDlgItemTextA(dialog, kFileName, path.c_str());
                return Press(dialog, end);
            }
            boxes.push_back(MessageOf(dialog));
            Press(dialog, ::GetDlgItem(dialog, IDYES) ? IDYES : IDOK);
        });
        warnings.SaveList(m_owner);
        return boxes;
    }

    TestWindow m_owner{"Owner", 700, 500};
};

int HeightOf(HWND window)
{
    RECT area;
    ::GetWindowRect(window, &area);
    return area.bottom - area.top;
}

}  // namespace

TEST_F(WarningDialog, ShowsWarningsInTheUsersLanguage)
{
    const struct {
        DWORD language;
        const char *caption, *explanation, *save;
    } cases[] = {{kEnglish, "Warnings", "Please read these warnings", "&Save..."},
                 {kGerman, "Warnungen", "Bitte lesen Sie diese Warnungen", "&Speichern..."}};
    for (const auto& c : cases) {
        QXUtility_SetLanguage(c.language);
        QXWarningList warnings = ListOf(2);
        Show(warnings, [&](HWND dialog) {
            EXPECT_EQ(c.caption, TextOf(dialog));
            EXPECT_THAT(TextOfItem(dialog, kExplanation), testing::StartsWith(c.explanation));
            EXPECT_EQ(c.save, TextOfItem(dialog, kSave));
            EXPECT_THAT(ItemsOf(::GetDlgItem(dialog, kList)),
                        ElementsAre("Pipe 0 is too long", "Pipe 1 is too long"));
            EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(dialog, kHelp)));
            EXPECT_TRUE(::IsWindowVisible(::GetDlgItem(dialog, kSave)));
        });
    }
}

TEST_F(WarningDialog, OffersHelpWhenThereIsSome)
{
    auto* const help = reinterpret_cast<HTML_HELP*>(this);  // only looked at
    const struct {
        int id;
        HTML_HELP* help;
        bool offered;
    } cases[] = {{7, help, true}, {0, help, false}, {7, nullptr, false}};
    for (const auto& c : cases) {
        QXWarningList warnings(nullptr, 0, c.id, c.help, nullptr);
        warnings.add("a", nullptr);
        Show(warnings, [&](HWND dialog) {
            EXPECT_EQ(c.offered, ::IsWindowVisible(::GetDlgItem(dialog, kHelp)) != 0) << c.id;
        });
    }
}

TEST_F(WarningDialog, ShowsTheTextOfTheApplicationAsItIs)
{
    CLanguage host;
    const TemporaryFolder folder;
    const std::string text = "Pipes & pumps: " + std::string(300, 'x');
    const std::string table =
        folder.Write("table.dat", "IDS\t09-01\t07-01\r\n30\t" + text + "\t" + text + "\r\n");
    CTableReader reader(table.c_str(), '\t', nullptr, nullptr);
    const HINSTANCE module = ::GetModuleHandleA(nullptr);
    host.Attach(module, &reader);
    for (const DWORD language : {kEnglish, kGerman}) {
        QXUtility_SetLanguage(language);
        QXWarningList warnings(module, 30, 0, nullptr, nullptr);
        warnings.add("a", nullptr);
        Show(warnings, [&](HWND dialog) { EXPECT_EQ(text, TextOfItem(dialog, kExplanation)); });
    }
    host.Detach(module);
}

TEST_F(WarningDialog, IsNotShownForAnEmptyList)
{
    ModalAnswer answer([](HWND dialog) { Press(dialog, IDOK); });
    ListOf(0).display(m_owner);
    EXPECT_EQ(0, answer.Count());
}

TEST_F(WarningDialog, HasRoomForFourRowsAtLeastAndForItsTemplateAtMost)
{
    std::map<int, int> lists, dialogs;
    LRESULT row = 0;
    for (const int count : {1, 4, 6, 20, 1000}) {
        QXWarningList warnings = ListOf(count);
        Show(warnings, [&](HWND dialog) {
            const HWND list = ::GetDlgItem(dialog, kList);
            row = ::SendMessageA(list, LB_GETITEMHEIGHT, 0, 0);
            lists[count] = HeightOf(list);
            dialogs[count] = HeightOf(dialog);
        });
    }
    EXPECT_EQ(4 * row + 2 * ::GetSystemMetrics(SM_CXEDGE), lists[1]);
    EXPECT_EQ(lists[1], lists[4]);
    EXPECT_EQ(lists[4] + 2 * row, lists[6]);
    EXPECT_GT(lists[20], lists[6]);
    EXPECT_EQ(lists[20], lists[1000]);
    EXPECT_EQ(dialogs[20] - dialogs[1], lists[20] - lists[1]);
}

TEST_F(WarningDialog, TakesManyAndLongWarnings)
{
    QXWarningList warnings = ListOf(10'000);
    warnings.add(std::string(100'000, 'x').c_str(), nullptr);
    Show(warnings, [&](HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, kList);
        EXPECT_EQ(10'001, ::SendMessageA(list, LB_GETCOUNT, 0, 0));
        EXPECT_EQ(100'000, ::SendMessageA(list, LB_GETTEXTLEN, 10'000, 0));
        RECT area;
        ::GetClientRect(list, &area);
        EXPECT_GT(::SendMessageA(list, LB_GETHORIZONTALEXTENT, 0, 0), area.right);
    });
}

TEST_F(WarningDialog, SavesALineForEachWarning)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("list");
    QXWarningList warnings = ListOf(2, folder.Path().c_str());
    EXPECT_THAT(Save(warnings, path, IDCANCEL), ElementsAre());
    EXPECT_FALSE(std::filesystem::exists(folder.Path("list.TXT")));
    EXPECT_THAT(Save(warnings, path), ElementsAre());
    EXPECT_EQ("Pipe 0 is too long\r\nPipe 1 is too long\r\n", folder.Read("list.TXT"));
    EXPECT_EQ(1u, Save(warnings, path).size()) << "asks before a file is overwritten";
}

TEST_F(WarningDialog, TellsThatAFileIsRefusedAndStays)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("held.log");
    QXWarningList warnings = ListOf(2);
    const HANDLE held =
        ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    std::vector<std::string> boxes;
    bool stands = false;
    ModalAnswer answer([&](HWND dialog) {
        if (::GetDlgItem(dialog, kList)) {
            ::SendMessageA(dialog, WM_COMMAND, kSave, 0);
            stands = ::SendDlgItemMessageA(dialog, kList, LB_GETCOUNT, 0, 0) == 2;
            Press(dialog, IDCANCEL);
        } else if (::GetDlgItem(dialog, kFileName)) {
            ::SetDlgItemTextA(dialog, kFileName, path.c_str());
            Press(dialog, IDOK);
        } else {
            boxes.push_back(MessageOf(dialog));
            Press(dialog, ::GetDlgItem(dialog, IDYES) ? IDYES : IDOK);
        }
    });
    warnings.display(m_owner);
    ::CloseHandle(held);
    EXPECT_TRUE(stands);
    ASSERT_FALSE(boxes.empty());
    EXPECT_THAT(boxes.back(), HasSubstr("The warnings could not be saved to\n" + path));
}

TEST_F(WarningDialog, SurvivesItsEndFromOutside)
{
    const HWND owner = ::CreateWindowA("Static", "", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                                       nullptr, nullptr, nullptr);
    for (const HWND victim : {HWND{nullptr}, owner}) {
        QXWarningList warnings = ListOf(3);
        ModalAnswer answer([&](HWND dialog) {
            if (!::GetDlgItem(dialog, kList))
                return Press(dialog, IDOK);
            ::DestroyWindow(victim ? victim : dialog);
            ::DestroyWindow(victim ? victim : dialog);
        });
        warnings.display(owner);
    }
    EXPECT_FALSE(::IsWindow(owner));
}

TEST_F(WarningDialog, SurvivesItsEndWhileTheFileIsAskedFor)
{
    const TemporaryFolder folder;
    QXWarningList warnings = ListOf(3, folder.Path().c_str());
    HWND list = nullptr;
    ModalAnswer answer([&](HWND dialog) {
        if (::GetDlgItem(dialog, kList)) {
            list = dialog;
            ::SendMessageA(dialog, WM_COMMAND, kSave, 0);
        } else {
            ::DestroyWindow(list);
            warnings.clear();
        }
    });
    warnings.display(m_owner);
    EXPECT_EQ(2, answer.Count());
    EXPECT_FALSE(::IsWindow(list));
}

// The dialog that opens a file, on the screen.
#include "support/guarded_buffer.h"
#include "support/temporary_folder.h"
#include "support/win32_ui.h"

#include <qxutility/config/startup.h>
#include <qxutility/ui/browse_box.h>

#include <algorithm>
#include <cstring>
#include <gmock/gmock.h>

using namespace qx::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

static constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407;
enum {
    kDescription = 1000,
    kName = 1001,
    kAnchor = 1003,
    kList = 1128,
    kHelp = 1129,
    kFolder = 2505,
    kFolderButton = 2515
};

namespace {

// A box that describes some files and leaves others out.
struct Catalogs : CBrowseBox {
    using CBrowseBox::CBrowseBox;
    using CBrowseBox::ChangeDirectories;
    using CBrowseBox::ChangeDirectory;

    bool ApproveFile(const char* path, char* description) override
    {
        std::strcpy(description, std::strstr(path, "Pumps") ? "Pumps & more\t7 kW" : "");
        return !std::strstr(path, "secret");
    }
    void Help() override { ++helps; }

    int helps = 0;
};

std::string Slashless(std::string path)
{
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

class BrowseBox : public testing::Test {
  protected:
    BrowseBox()
    {
        for (const char* name :
             {"b.dat", "Alpha.dat", "Pumps.dat", "secret.dat", "beta.dat", "c.txt"})
            m_folder.Write(name, "x");
        std::filesystem::create_directory(m_folder.Path("old"));
        std::filesystem::create_directory(m_folder.Path("folder.dat"));
        m_folder.Write("old/older.dat", "x");
    }
    ~BrowseBox() override { QXUtility_SetLanguage(kEnglish); }

    std::string Folder(const char* name = "") const { return Slashless(m_folder.Path(name)); }
    static std::vector<std::string> Names(HWND dialog)
    {
        const HWND list = ::GetDlgItem(dialog, kList);
        const auto count = ::SendMessageA(list, LB_GETCOUNT, 0, 0);
        std::vector<std::string> names;
        for (WPARAM i = 0; i < static_cast<WPARAM>(count); ++i)
            names.push_back(
                reinterpret_cast<const CBrowseEntry*>(::SendMessageA(list, LB_GETITEMDATA, i, 0))
                    ->name);
        return names;
    }
    static void SelectRow(HWND dialog, int row)
    {
        const HWND list = ::GetDlgItem(dialog, kList);
        ::SetFocus(list);
        ::SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
        ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(kList, LBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(list));
    }
    static void Type(HWND dialog, const std::string& text)
    {
        ::SetFocus(::GetDlgItem(dialog, kName));
        ::SetDlgItemTextA(dialog, kName, text.c_str());
    }
    // Shows the box; `act` works in the dialog, which is then cancelled unless it ends. Message
    // boxes are noted and confirmed.
    int Show(CBrowseBox& box, const std::function<void(HWND dialog)>& act)
    {
        boxes.clear();
        ModalAnswer answer([&](HWND dialog) {
            if (::GetDlgItem(dialog, kList)) {
                act(dialog);
                Press(dialog, IDCANCEL);
            } else {
                boxes.push_back(MessageOf(dialog));
                Press(dialog, IDOK);
            }
        });
        return box.Display(m_owner);
    }
    // What pressing OK for a typed text leads to.
    int Open(CBrowseBox& box, const std::string& text)
    {
        return Show(box, [&](HWND dialog) {
            Type(dialog, text);
            ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
            m_namesAfter = Names(dialog);
            m_folderAfter = TextOfItem(dialog, kFolder);
        });
    }

    TemporaryFolder m_folder;
    TestWindow m_owner{"Owner", 700, 500};
    std::vector<std::string> boxes, m_namesAfter;
    std::string m_folderAfter;
};

std::string FileOf(const CBrowseBox& box)
{
    GuardedBuffer text(MAX_PATH);
    box.GetFile(text);
    return text.data();
}

std::string PathOf(const CBrowseBox& box)
{
    GuardedBuffer text(MAX_PATH);
    box.GetPath(text);
    return text.data();
}

}  // namespace

TEST_F(BrowseBox, ListsTheApprovedFilesByName)
{
    Catalogs box((Folder() + "\\").c_str(), "*.dat");
    Show(box, [&](HWND dialog) {
        EXPECT_THAT(Names(dialog), ElementsAre("Alpha.dat", "b.dat", "beta.dat", "Pumps.dat"));
        EXPECT_EQ(Folder(), TextOfItem(dialog, kFolder));
        EXPECT_EQ(::GetDlgItem(dialog, kName), ::GetFocus());
        const HWND list = ::GetDlgItem(dialog, kList);
        EXPECT_EQ(::GetSystemMetrics(SM_CYSMICON) + 4,
                  ::SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
        EXPECT_EQ(::GetSystemMetrics(SM_CYICON) + 4, ::SendMessageA(list, LB_GETITEMHEIGHT, 3, 0));
    });
}

TEST_F(BrowseBox, ShowsItsTextsInTheUsersLanguage)
{
    QXUtility_SetLanguage(kGerman);
    Catalogs box(Folder().c_str(), "*.dat");
    Show(box, [&](HWND dialog) {
        EXPECT_EQ("\326ffnen", TextOf(dialog));
        EXPECT_EQ("Dateien in diesem Ordner:", TextOfItem(dialog, kDescription));
        EXPECT_EQ("Abbrechen", TextOfItem(dialog, IDCANCEL));
        EXPECT_EQ("&Ordner w\344hlen...", TextOfItem(dialog, kFolderButton));
    });
    box.SetCaption("Catalogs & more");
    box.SetDescription("Viewing catalogs in");
    box.SetOkay("Save");
    box.SetCancel(std::string(100, 'x').c_str());
    Show(box, [&](HWND dialog) {
        EXPECT_EQ("Catalogs & more", TextOf(dialog));
        EXPECT_EQ("Angezeigte Kataloge in", TextOfItem(dialog, kDescription));
        EXPECT_EQ("&Speichern", TextOfItem(dialog, IDOK));
        EXPECT_EQ(std::string(19, 'x'), TextOfItem(dialog, IDCANCEL));
    });
}

TEST_F(BrowseBox, KeepsTheAmpersandsOfAPath)
{
    QXUtility_SetLanguage(kGerman);
    std::filesystem::create_directory(m_folder.Path("R&D"));
    Catalogs box(Folder("R&D").c_str(), "*.dat");
    Show(box, [&](HWND dialog) { EXPECT_EQ(Folder("R&D"), TextOfItem(dialog, kFolder)); });
}

TEST_F(BrowseBox, SetsItsButtonsFromTheRight)
{
    for (const bool help : {false, true}) {
        Catalogs box(Folder().c_str(), "*.dat");
        if (help)
            box.AddHelpButton();
        Show(box, [&](HWND dialog) {
            RECT anchor, okay, cancel, helping;
            ::GetWindowRect(::GetDlgItem(dialog, kAnchor), &anchor);
            ::GetWindowRect(::GetDlgItem(dialog, IDOK), &okay);
            ::GetWindowRect(::GetDlgItem(dialog, IDCANCEL), &cancel);
            ::GetWindowRect(::GetDlgItem(dialog, kHelp), &helping);
            EXPECT_EQ(help, ::IsWindowVisible(::GetDlgItem(dialog, kHelp)) != 0);
            EXPECT_EQ(anchor.right, help ? helping.right : cancel.right);
            EXPECT_EQ(anchor.top, cancel.top);
            EXPECT_GT(cancel.left, okay.right);
            if (help) {
                EXPECT_EQ(helping.left - cancel.right, cancel.left - okay.right);
                ::SendMessageA(dialog, WM_COMMAND, kHelp, 0);
                EXPECT_EQ(1, box.helps);
            }
        });
    }
}

TEST_F(BrowseBox, SelectsFromTheListAndByTyping)
{
    Catalogs box(Folder().c_str(), "*.dat");
    Show(box, [&](HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, kList), okay = ::GetDlgItem(dialog, IDOK);
        Type(dialog, "");
        EXPECT_FALSE(::IsWindowEnabled(okay));
        SelectRow(dialog, 2);
        EXPECT_TRUE(::IsWindowEnabled(okay));
        EXPECT_EQ("beta.dat", TextOfItem(dialog, kName));
        EXPECT_EQ("beta.dat", FileOf(box));
        Type(dialog, "report");
        EXPECT_EQ(LB_ERR, ::SendMessageA(list, LB_GETCURSEL, 0, 0));
        EXPECT_EQ("report.dat", FileOf(box));
        Type(dialog, "report.DAT");
        EXPECT_EQ("report.DAT", FileOf(box));
        EXPECT_EQ(Folder() + "\\", PathOf(box));
        Type(dialog, "D:\\x\\y");
        EXPECT_EQ("y.dat", FileOf(box));
        EXPECT_EQ("D:\\x\\", PathOf(box));
        Type(dialog, std::string(100'000, 'x'));
        EXPECT_EQ(259u, FileOf(box).size());
    });
}

TEST_F(BrowseBox, SelectsByTheFirstLetter)
{
    Catalogs box(Folder().c_str(), "*.dat");
    Show(box, [&](HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, kList);
        ::SetFocus(list);
        std::vector<std::string> names;
        for (const char key : {'p', 'b', 'B', 'b', 'z'}) {
            ::SendMessageA(list, WM_CHAR, static_cast<WPARAM>(key), 1);
            names.push_back(TextOfItem(dialog, kName));
        }
        EXPECT_THAT(names, ElementsAre("Pumps.dat", "b.dat", "beta.dat", "b.dat", "b.dat"));
    });
}

TEST_F(BrowseBox, OpensWhatIsTyped)
{
    const struct {
        std::string text;
        int result;
        std::string file, path, folder;
    } cases[] = {
        {"b", IDOK, "b.dat", Folder() + "\\", Folder()},
        {"PUMPS.DAT", IDOK, "Pumps.dat", Folder() + "\\", Folder()},
        {Folder("old\\older.dat"), IDOK, "older.dat", Folder("old") + "\\", Folder("old")},
        {"old", IDCANCEL, "", Folder("old") + "\\", Folder("old")},
        {Folder("old"), IDCANCEL, "", Folder("old") + "\\", Folder("old")},
    };
    for (const auto& c : cases) {
        Catalogs box(Folder().c_str(), "*.dat");
        EXPECT_EQ(c.result, Open(box, c.text)) << c.text;
        EXPECT_EQ(0, ::lstrcmpiA(c.file.c_str(), FileOf(box).c_str())) << FileOf(box);
        EXPECT_EQ(c.path, PathOf(box)) << c.text;
        EXPECT_EQ(c.folder, m_folderAfter) << c.text;
        EXPECT_THAT(boxes, IsEmpty()) << c.text;
    }
}

TEST_F(BrowseBox, TellsWhatCannotBeOpened)
{
    for (const char* text : {"none", "secret", "c.txt", ""}) {
        Catalogs box(Folder().c_str(), "*.dat");
        EXPECT_EQ(IDCANCEL, Open(box, text)) << text;
        ASSERT_EQ(1u, boxes.size()) << text;
        EXPECT_THAT(boxes[0], HasSubstr("in the folder\n" + Folder() + "\n"));
    }
    Catalogs box(Folder().c_str(), "*.dat");
    EXPECT_EQ(IDCANCEL, Open(box, "Q:\\nowhere\\a.dat"));
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("in the folder\nQ:\\nowhere\n")));
}

TEST_F(BrowseBox, KeepsItsFolderWhenTheOtherDoesNotExist)
{
    Catalogs box(Folder().c_str(), "*.dat");
    for (const std::string& folder : {Folder("nowhere"), std::string(), std::string(5'000, 'x')}) {
        Show(box, [&](HWND dialog) {
            EXPECT_FALSE(box.ChangeDirectory(dialog, folder.c_str()));
            EXPECT_EQ(Folder(), TextOfItem(dialog, kFolder));
            EXPECT_EQ(4u, Names(dialog).size());
        });
        EXPECT_THAT(boxes, ElementsAre(HasSubstr("cannot be opened")));
    }
    Show(box, [&](HWND dialog) { box.ChangeDirectories(dialog, (Folder("old") + "\\").c_str()); });
    EXPECT_EQ(Folder("old") + "\\", PathOf(box));
    EXPECT_THAT(boxes, IsEmpty());
}

TEST_F(BrowseBox, SurvivesAFolderThatVanishes)
{
    const std::string gone = Folder("old");
    Catalogs box(gone.c_str(), "*.dat");
    Show(box, [&](HWND dialog) {
        SelectRow(dialog, 0);
        std::filesystem::remove_all(gone);
        ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    });
    EXPECT_EQ(1u, boxes.size());
    Show(box, [&](HWND dialog) { EXPECT_THAT(Names(dialog), IsEmpty()); });
}

TEST_F(BrowseBox, PassesTheWheelOnToTheList)
{
    for (int i = 0; i < 100; ++i)
        m_folder.Write("many" + std::to_string(i) + ".dat", "");
    Catalogs box(Folder().c_str(), "*.dat");
    Show(box, [&](HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, kList);
        ::SendMessageA(dialog, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        EXPECT_GT(::SendMessageA(list, LB_GETTOPINDEX, 0, 0), 0);
        ::SendMessageA(list, WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -WHEEL_DELTA), 0);
        ::SendMessageA(dialog, WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -WHEEL_DELTA), 0);
    });
}

TEST_F(BrowseBox, DatesFilesByTheirLastChange)
{
    const std::string path = m_folder.Write("dated.dat", "x");
    const SYSTEMTIME time{2008, 3, 0, 5, 23, 59, 59, 0};
    FILETIME fileTime;
    ::SystemTimeToFileTime(&time, &fileTime);
    const HANDLE file =
        ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ::SetFileTime(file, nullptr, nullptr, &fileTime);
    ::CloseHandle(file);
    CBrowseBox box(Folder().c_str(), "dated.dat");
    GuardedBuffer text(20);
    EXPECT_TRUE(box.GetDate(path.c_str(), text));
    EXPECT_STREQ("03/05/08", text);
    EXPECT_FALSE(box.GetDate(Folder("none").c_str(), text));
    Show(box, [&](HWND dialog) {
        const LRESULT data = ::SendDlgItemMessageA(dialog, kList, LB_GETITEMDATA, 0, 0);
        EXPECT_STREQ("03/05/08", reinterpret_cast<const CBrowseEntry*>(data)->date);
    });
}

TEST_F(BrowseBox, ChoosesFolders)
{
    for (const int button : {int{IDOK}, int{IDCANCEL}}) {
        GuardedBuffer path(MAX_PATH);
        path = Folder("old").c_str();
        std::string title;
        ModalAnswer answer([&](HWND dialog) {
            title = MessageOf(dialog);
            Press(dialog, button);
        });
        EXPECT_EQ(button == IDOK, BrowseFolder(m_owner, path));
        EXPECT_EQ(0, ::lstrcmpiA(Folder("old").c_str(), path)) << path.data();
        EXPECT_EQ("Select a folder and choose OK.", title);
    }
}

// Ends the dialog, twice, when it is asked about something.
struct Breaker : CBrowseBox {
    enum Moment { Approving, Dating, Verifying, Helping, Changing };
    Breaker(const char* folder, Moment when) : CBrowseBox(folder, "*.dat"), moment(when) {}

    bool Break(Moment now)
    {
        if (now == moment && armed) {
            ::DestroyWindow(dialog);
            ::DestroyWindow(dialog);
        }
        return true;
    }
    bool ApproveFile(const char* path, char* description) override
    {
        return CBrowseBox::ApproveFile(path, description) && Break(Approving);
    }
    bool GetDate(const char* path, char* text) override
    {
        return CBrowseBox::GetDate(path, text) && Break(Dating);
    }
    bool VerifyOkay(HWND, const char*) override { return Break(Verifying); }
    void Help() override { Break(Helping); }
    void ChangePath(HWND) override { Break(Changing); }
    void Refill() { ChangeDirectory(dialog, nullptr); }

    Moment moment;
    bool armed = false;
    HWND dialog = nullptr;
};

TEST_F(BrowseBox, SurvivesItsEndInsideItsOwnQuestions)
{
    for (const auto moment : {Breaker::Approving, Breaker::Dating, Breaker::Verifying,
                              Breaker::Helping, Breaker::Changing}) {
        Breaker box(Folder().c_str(), moment);
        bool ended = false;
        Show(box, [&](HWND dialog) {
            box.dialog = dialog;
            box.armed = true;
            box.Refill();
            Type(dialog, "b");
            for (const WPARAM command : {WPARAM{kHelp}, WPARAM{kFolderButton}, WPARAM{IDOK}})
                ::SendMessageA(dialog, WM_COMMAND, command, 0);
            ended = !::IsWindow(dialog);
        });
        EXPECT_TRUE(ended) << moment;
        EXPECT_THAT(boxes, IsEmpty());
    }
}

TEST_F(BrowseBox, SurvivesTheEndOfItsOwner)
{
    const HWND owner = ::CreateWindowA("Static", "", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                                       nullptr, nullptr, nullptr);
    Catalogs box(Folder().c_str(), "*.dat");
    ModalAnswer answer([&](HWND dialog) {
        if (::GetDlgItem(dialog, kList))
            ::DestroyWindow(owner);
        else
            Press(dialog, IDOK);
    });
    box.Display(owner);
    EXPECT_FALSE(::IsWindow(owner));
}

TEST_F(BrowseBox, LeavesNothingBehindWhenItIsOpenedManyTimes)
{
    Catalogs box(Folder().c_str(), "*.dat");
    const auto rounds = [&](int count) {
        for (int i = 0; i < count; ++i)
            Show(box, [&](HWND dialog) {
                ::RedrawWindow(dialog, nullptr, nullptr,
                               RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
                box.ChangeDirectory(dialog, nullptr);
            });
    };
    rounds(5);
    const ObjectCounts before = CountObjects();
    rounds(60);
    EXPECT_EQ(before, CountObjects());
}

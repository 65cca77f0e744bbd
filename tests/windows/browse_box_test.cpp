// The dialog that opens a file, on the screen.
#include "support/guarded_buffer.h"
#include "support/temporary_folder.h"
#include "support/win32_ui.h"
#include "support/window_spy.h"

#include <qxutility/config/startup.h>
#include <qxutility/ui/browse_box.h>

#include <cstring>
#include <gmock/gmock.h>
#include <memory>

using namespace qx::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

static constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407;
static constexpr int kDescription = 1000, kName = 1001, kAnchor = 1003, kList = 1128, kHelp = 1129;
static constexpr int kFolder = 2505, kFolderButton = 2515;

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

    std::string Folder(const char* name = "") const
    {
        return std::filesystem::path(m_folder.Path(name)).make_preferred().string();
    }
    static std::vector<std::string> Names(HWND dialog)
    {
        const HWND list = ::GetDlgItem(dialog, kList);
        std::vector<std::string> names;
        for (int i = 0; i < ::SendMessageA(list, LB_GETCOUNT, 0, 0); ++i)
            names.push_back(EntryOf(dialog, i).name);
        return names;
    }
    static const CBrowseEntry& EntryOf(HWND dialog, int row)
    {
        return *reinterpret_cast<const CBrowseEntry*>(
            ::SendDlgItemMessageA(dialog, kList, LB_GETITEMDATA, static_cast<WPARAM>(row), 0));
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
            m_folderAfter = TextOfItem(dialog, kFolder);
        });
    }

    TemporaryFolder m_folder;
    TestWindow m_owner{"Owner", 700, 500};
    std::vector<std::string> boxes;
    std::string m_folderAfter;
};

std::string TextFrom(const CBrowseBox& box, void (CBrowseBox::*get)(char*) const)
{
    GuardedBuffer text(MAX_PATH);
    (box.*get)(text);
    return text.data();
}

std::string FileOf(const CBrowseBox& box)
{
    return TextFrom(box, &CBrowseBox::GetFile);
}

std::string PathOf(const CBrowseBox& box)
{
    return TextFrom(box, &CBrowseBox::GetPath);
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
    std::filesystem::create_directory(m_folder.Path("R&D"));
    Catalogs box(Folder("R&D").c_str(), "*.dat");
    Show(box, [&](HWND dialog) {
        EXPECT_EQ(Folder("R&D"), TextOfItem(dialog, kFolder)) << "with its ampersand";
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

TEST_F(BrowseBox, SetsItsButtonsFromTheRight)
{
    const auto area = [](HWND dialog, int id) {
        RECT place;
        ::GetWindowRect(::GetDlgItem(dialog, id), &place);
        return place;
    };
    for (const bool help : {false, true}) {
        Catalogs box(Folder().c_str(), "*.dat");
        if (help)
            box.AddHelpButton();
        Show(box, [&](HWND dialog) {
            const RECT okay = area(dialog, IDOK), cancel = area(dialog, IDCANCEL);
            const RECT last = help ? area(dialog, kHelp) : cancel;
            EXPECT_EQ(help, ::IsWindowVisible(::GetDlgItem(dialog, kHelp)) != 0);
            EXPECT_EQ(area(dialog, kAnchor).right, last.right);
            EXPECT_EQ(area(dialog, kAnchor).top, cancel.top);
            RECT edges{};
            ::GetClientRect(dialog, &edges);
            ::MapWindowPoints(dialog, nullptr, reinterpret_cast<POINT*>(&edges), 2);
            EXPECT_EQ((edges.right - area(dialog, kAnchor).right) / 2, cancel.left - okay.right);
            EXPECT_TRUE(!help || last.left - cancel.right == cancel.left - okay.right);
            ::SendMessageA(dialog, WM_COMMAND, kHelp, 0);
        });
        EXPECT_EQ(1, box.helps);
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
        EXPECT_EQ(Folder() + "\\report.DAT", PathOf(box) + FileOf(box));
        Type(dialog, "D:\\x\\y");
        EXPECT_EQ("D:\\x\\y.dat", PathOf(box) + FileOf(box));
        Type(dialog, std::string(100'000, 'x'));
        EXPECT_EQ(259u, FileOf(box).size());
    });
}

TEST_F(BrowseBox, SelectsByTheFirstLetter)
{
    Catalogs box(Folder().c_str(), "*.dat");
    Show(box, [&](HWND dialog) {
        ::SetFocus(::GetDlgItem(dialog, kList));
        std::string names;
        for (const char key : {'p', 'b', 'B', 'b', 'z'}) {
            ::SendDlgItemMessageA(dialog, kList, WM_CHAR, static_cast<WPARAM>(key), 1);
            names += TextOfItem(dialog, kName) + " ";
        }
        EXPECT_EQ("Pumps.dat b.dat beta.dat b.dat b.dat ", names);
    });
}

TEST_F(BrowseBox, OpensWhatIsTyped)
{
    const struct {
        std::string text;
        int result;
        std::string file, folder;
    } cases[] = {
        {"b", IDOK, "b.dat", Folder()},
        {"PUMPS.DAT", IDOK, "Pumps.dat", Folder()},
        {"old", IDCANCEL, "", Folder("old")},
        {Folder("old"), IDCANCEL, "", Folder("old")},
        {Folder("old\\older.dat"), IDOK, "older.dat", Folder("old")},
    };
    for (const auto& c : cases) {
        Catalogs box(Folder().c_str(), "*.dat");
        EXPECT_EQ(c.result, Open(box, c.text)) << c.text;
        EXPECT_EQ(0, ::lstrcmpiA(c.file.c_str(), FileOf(box).c_str())) << FileOf(box);
        EXPECT_EQ(c.folder + "\\", PathOf(box)) << c.text;
        EXPECT_EQ(c.folder, m_folderAfter) << c.text;
        EXPECT_THAT(boxes, IsEmpty()) << c.text;
    }
}

TEST_F(BrowseBox, TellsWhatCannotBeOpened)
{
    for (const std::string text : {"none", "secret", "c.txt", "", "Q:\\nowhere\\a.dat"}) {
        Catalogs box(Folder().c_str(), "*.dat");
        EXPECT_EQ(IDCANCEL, Open(box, text)) << text;
        const std::string folder = text[0] == 'Q' ? "Q:\\nowhere" : Folder();
        EXPECT_THAT(boxes, ElementsAre(HasSubstr("in the folder\n" + folder + "\n"))) << text;
    }
}

TEST_F(BrowseBox, KeepsItsFolderWhenTheOtherDoesNotExist)
{
    Catalogs box(Folder().c_str(), "*.dat");
    for (const std::string& folder : {Folder("nowhere"), std::string(5'000, 'x')}) {
        Show(box, [&](HWND dialog) {
            EXPECT_FALSE(box.ChangeDirectory(dialog, folder.c_str()));
            EXPECT_EQ(Folder(), TextOfItem(dialog, kFolder));
            EXPECT_EQ(4u, Names(dialog).size());
        });
        EXPECT_THAT(boxes, ElementsAre(HasSubstr("cannot be opened")));
    }
    Show(box, [&](HWND dialog) {
        box.ChangeDirectories(dialog, (Folder("old") + "\\").c_str());
        EXPECT_THAT(Names(dialog), ElementsAre("older.dat"));
    });
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
        ::SendMessageA(dialog, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        EXPECT_GT(::SendDlgItemMessageA(dialog, kList, LB_GETTOPINDEX, 0, 0), 0);
        int turns = 0;
        const Spy spy(::GetDlgItem(dialog, kList),
                      [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
                          turns += message == WM_MOUSEWHEEL;
                          return {};
                      });
        ::SendMessageA(dialog, WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -WHEEL_DELTA), 0);
        EXPECT_EQ(1, turns) << "the list hands this one back to the dialog";
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
    EXPECT_FALSE(box.GetDate(Folder("none").c_str(), text));
    Show(box, [&](HWND dialog) { EXPECT_STREQ("03/05/08", EntryOf(dialog, 0).date); });
}

// Ends the dialog, twice, when it is asked about something.
struct Breaker : CBrowseBox {
    enum Moment : int { Approving, Dating, Verifying, Helping, Changing };
    Breaker(const char* folder, Moment when) : CBrowseBox(folder, "*.dat"), moment(when) {}

    bool Break(Moment now)
    {
        for (int i = 0; i < 2 && armed && now == moment; ++i)
            ::DestroyWindow(dialog);
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
    for (int moment = Breaker::Approving; moment <= Breaker::Changing; ++moment) {
        Breaker box(Folder().c_str(), Breaker::Moment{moment});
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
    auto owner = std::make_unique<TestWindow>("Short-lived");
    Catalogs box(Folder().c_str(), "*.dat");
    ModalAnswer answer([&](HWND) { owner.reset(); });
    box.Display(*owner);
    EXPECT_EQ(nullptr, owner);
}

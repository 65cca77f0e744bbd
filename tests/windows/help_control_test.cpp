// Help through a control of the test's own, registered as the machine's.
//
// The control is loaded once in a process, or that fails once: the tests of that run in a process
// each, some of them with the system's own control disabled (see CMakeLists.txt).
#include "help_control/help_control.h"

#include "support/temporary_folder.h"
#include "support/win32_ui.h"

#include <qxutility/config/help.h>
#include <qxutility/ui/warning_list.h>

#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>

using namespace qx::test;

static const std::string kControl =
    (std::filesystem::current_path() / "test_help_control.ocx").string();

namespace {

// The machine's entry of the control, as it was before when the object goes.
class RegisteredControl {
  public:
    explicit RegisteredControl(const std::string& path)
    {
        DWORD size = sizeof m_before;
        ::RegGetValueA(HKEY_CLASSES_ROOT, kKey, nullptr, RRF_RT_ANY | RRF_NOEXPAND, &m_type,
                       m_before, &size);
        Set(REG_EXPAND_SZ, path.c_str());
    }
    RegisteredControl(const RegisteredControl&) = delete;
    RegisteredControl& operator=(const RegisteredControl&) = delete;
    ~RegisteredControl() { Set(m_type, m_before); }

  private:
    static void Set(DWORD type, const char* path)
    {
        ::RegSetKeyValueA(HKEY_CLASSES_ROOT, kKey, nullptr, type, path,
                          static_cast<DWORD>(std::strlen(path)) + 1);
    }

    static constexpr char kKey[] = "CLSID\\{ADB880A6-D8FF-11CF-9377-00AA003B7A11}\\InprocServer32";
    DWORD m_type = REG_SZ;
    char m_before[MAX_PATH] = "";
};

class HelpControl : public testing::Test {
  protected:
    HelpControl()
    {
        // With a part that the environment fills in, as in the system's own entry.
        ::SetEnvironmentVariableA("QX_TEST_FOLDER",
                                  std::filesystem::current_path().string().c_str());
        static const RegisteredControl registered("%QX_TEST_FOLDER%\\test_help_control.ocx");
        m_help.AddType("Main", "main.chm", "main_window");
        m_help.AddType("Dialog", "dialogs.chm", "small");
        m_help.SetWindow(m_owner);
        m_help.Open("Main", 1);  // loads it, at the latest
        Calls();
    }
    static std::string Calls()
    {
        const HMODULE control = ::GetModuleHandleA(kControl.c_str());
        const auto take = reinterpret_cast<TakeHelpCalls*>(
            reinterpret_cast<void*>(::GetProcAddress(control, "TakeCalls")));
        EXPECT_NE(nullptr, take) << kControl << " was not loaded";
        return take ? take() : "";
    }

    TestWindow m_window{"Owner"};
    HWND m_owner = MakeChild(m_window, "Static", "", 0, 55);
    HTML_HELP m_help;
};

}  // namespace

TEST_F(HelpControl, IsAskedForPagesSearchesAndContents)
{
    EXPECT_EQ(m_owner, m_help.Open("Main", 0xFFFFFFFF));
    EXPECT_EQ(m_owner, m_help.Search("Main", "pump % curve"));
    EXPECT_EQ(m_owner, m_help.Contents("Dialog"));
    EXPECT_EQ(
        "15 main.chm>main_window 4294967295 for 55\n"
        "0 main.chm 0 for 55\n"
        "3 main.chm pump % curve for 55\n"
        "18 (none) 0\n"
        "0 dialogs.chm 0 for 55\n"
        "1 dialogs.chm 0 for 55\n",
        Calls());
}

TEST_F(HelpControl, ShowsThePageOfTheWarningsWhenTheirHelpButtonIsPressed)
{
    constexpr int kHelpButton = 6;
    QXWarningList warnings(nullptr, 0, 77, &m_help, nullptr);
    warnings.add("Pipe 1 is too long", nullptr);
    ModalAnswer answer([](HWND dialog) {
        Press(dialog, kHelpButton);
        Press(dialog, IDOK);
    });
    warnings.display(m_window);
    EXPECT_EQ("18 (none) 0\n15 dialogs.chm>small 77 for 55\n", Calls());
}

TEST(HelpControlByItself, DISABLED_EveryRequestFailsWithoutOneAndNothingIsTriedAgain)
{
    HTML_HELP help;
    help.DisableErrors();
    help.AddType("Main", "main.chm", "w");
    {
        const RegisteredControl missing("C:\\no\\such\\control.ocx");
        EXPECT_EQ(nullptr, help.Open("Main", 1));
    }
    const RegisteredControl there(kControl);
    EXPECT_EQ(nullptr, help.Open("Main", 1));
    EXPECT_EQ(nullptr, ::GetModuleHandleA(kControl.c_str()));
}

// A bare name would be looked for beside the program first, where the test's control is.
TEST(HelpControlByItself, DISABLED_ABareNameInTheRegistryIsNotTaken)
{
    const RegisteredControl bare("test_help_control.ocx");
    HTML_HELP help;
    help.DisableErrors();
    help.AddType("Main", "main.chm", "w");
    EXPECT_EQ(nullptr, help.Open("Main", 1));
    EXPECT_EQ(nullptr, ::GetModuleHandleA(kControl.c_str()));
}

// Not one of that name from the current folder.
TEST(HelpControlByItself, DISABLED_TheOneInTheSystemsFolderIsTakenWhenNoneIsRegistered)
{
    char system[MAX_PATH], loaded[MAX_PATH] = "";
    ::GetSystemDirectoryA(system, sizeof system);
    const TemporaryFolder folder;
    std::filesystem::copy_file(kControl, folder.Path("hhctrl.ocx"));
    const RegisteredControl none("");
    std::filesystem::current_path(folder.Path());
    HTML_HELP().DisableErrors();  // its end closes windows
    std::filesystem::current_path(system);
    ::GetModuleFileNameA(::GetModuleHandleA("hhctrl.ocx"), loaded, sizeof loaded);
    EXPECT_STRCASEEQ((std::string(system) + "\\hhctrl.ocx").c_str(), loaded);
}

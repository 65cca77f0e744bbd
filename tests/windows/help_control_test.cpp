// Help through a control of the test's own, registered as the machine's.
//
// The control is loaded once in a process, or that fails once: the tests of that run in a process
// each, some of them with the system's own control disabled (see CMakeLists.txt).
#include "help_control/help_control.h"

#include "support/temporary_folder.h"
#include "support/win32_ui.h"

#include <qxutility/config/help.h>
#include <qxutility/config/language.h>
#include <qxutility/ui/warning_list.h>

#include <cstring>
#include <filesystem>
#include <gmock/gmock.h>
#include <htmlhelp.h>
#include <optional>

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
        m_help->AddType("Main", "main.chm", "main_window");
        m_help->AddType("Dialog", "dialogs.chm", "small");
        m_help->SetWindow(m_owner);
        m_help->DisableErrors();
        m_help->Open("Main", 1);  // loads it, at the latest
        m_help->EnableErrors();
        Calls();
        Answer(m_owner);
    }
    template <typename Call>
    static Call* Function(const char* name)
    {
        const HMODULE control = ::GetModuleHandleA(kControl.c_str());
        EXPECT_NE(nullptr, control) << kControl << " was not loaded";
        return reinterpret_cast<Call*>(reinterpret_cast<void*>(::GetProcAddress(control, name)));
    }
    static void Answer(HWND window) { Function<AnswerHelpWith>("AnswerWith")(window); }
    // What the control was asked for since the last call.
    static std::vector<HelpCall> Calls()
    {
        std::vector<HelpCall> calls(100);
        calls.resize(static_cast<std::size_t>(Function<TakeHelpCalls>("TakeCalls")(calls.data())));
        return calls;
    }

    TestWindow m_owner{"Owner"};
    std::optional<HTML_HELP> m_help{std::in_place};
};

}  // namespace

TEST_F(HelpControl, IsAskedForPagesSearchesAndContents)
{
    EXPECT_EQ(m_owner, m_help->Open("Main", 0xFFFFFFFF));
    EXPECT_EQ(m_owner, m_help->Search("main", "pump % curve"));
    EXPECT_EQ(m_owner, m_help->Contents("Dialog"));
    const struct {
        HWND owner;
        const char* target;
        UINT command;
        DWORD data;
    } expected[] = {{m_owner, "main.chm>main_window", HH_HELP_CONTEXT, 0xFFFFFFFF},
                    {nullptr, "(null)", HH_CLOSE_ALL, 0},  // "main" is not "Main"
                    {m_owner, "main.chm", HH_DISPLAY_TOPIC, 0},
                    {m_owner, "main.chm", HH_DISPLAY_SEARCH, 0},
                    {nullptr, "(null)", HH_CLOSE_ALL, 0},
                    {m_owner, "dialogs.chm", HH_DISPLAY_TOPIC, 0},
                    {m_owner, "dialogs.chm", HH_DISPLAY_TOC, 0}};
    const std::vector<HelpCall> calls = Calls();
    ASSERT_EQ(std::size(expected), calls.size());
    for (std::size_t i = 0; i < calls.size(); ++i) {
        EXPECT_EQ(expected[i].owner, calls[i].owner) << i;
        EXPECT_STREQ(expected[i].target, calls[i].target) << i;
        EXPECT_EQ(expected[i].command, calls[i].command) << i;
        EXPECT_EQ(expected[i].data, calls[i].data) << i;
    }
    EXPECT_STREQ("pump % curve", calls[3].query);
    EXPECT_EQ(static_cast<int>(sizeof(HH_FTS_QUERY)), calls[3].querySize);
    EXPECT_TRUE(calls[3].isExecuted);
    EXPECT_TRUE(calls[3].isRestEmpty);
}

TEST_F(HelpControl, ClosesItsWindowsWithTheLastObject)
{
    {
        const HTML_HELP copy(*m_help);
        m_help.reset();
        EXPECT_EQ(0u, Calls().size());
    }
    const std::vector<HelpCall> calls = Calls();
    ASSERT_EQ(1u, calls.size());
    EXPECT_EQ(static_cast<UINT>(HH_CLOSE_ALL), calls[0].command);
}

TEST_F(HelpControl, FailuresAreToldToTheUser)
{
    Answer(nullptr);
    std::string text, caption;
    ModalAnswer answer([&](HWND box) {
        text = MessageOf(box);
        caption = TextOf(box);
        EXPECT_EQ(m_owner, ::GetWindow(box, GW_OWNER));
        Press(box, IDOK);
    });
    EXPECT_EQ(nullptr, m_help->Open("Main", 1));
    EXPECT_EQ("Help", caption);
    EXPECT_THAT(text, testing::StartsWith("The help page could not be opened."));
    m_help->DisableErrors();
    EXPECT_EQ(nullptr, m_help->Open("Main", 1));
    EXPECT_EQ(1, answer.Count());
}

TEST_F(HelpControl, FindsFilesOnTheSearchPathAndInTheUsersLanguage)
{
    const TemporaryFolder folder;
    const std::string plain = folder.Write("Manual.chm", "x");
    const std::string english = folder.Write("Manual_English.chm", "x");
    CLanguage language;
    const LocalizedHelpFileFinder finder{LocalizedFilenameMaker(language)};
    m_help->AddType("Plain", folder.Path("Manual").c_str(), "w");
    m_help->AddType("Localised", folder.Path("Manual").c_str(), &finder, "w");
    m_help->Open("Plain", 1);
    EXPECT_STRCASEEQ((plain + ">w").c_str(), Calls().back().target);
    m_help->Open("Localised", 1);
    EXPECT_STRCASEEQ((english + ">w").c_str(), Calls().back().target);
}

TEST_F(HelpControl, ShowsThePageOfTheWarningsWhenTheirHelpButtonIsPressed)
{
    constexpr int kHelpButton = 6;
    QXWarningList warnings(nullptr, 0, 77, &*m_help, nullptr);
    warnings.add("Pipe 1 is too long", nullptr);
    ModalAnswer answer([](HWND dialog) {
        Press(dialog, kHelpButton);
        Press(dialog, IDOK);
    });
    warnings.display(m_owner);
    const std::vector<HelpCall> calls = Calls();
    ASSERT_EQ(2u, calls.size());
    EXPECT_STREQ("dialogs.chm>small", calls[1].target);
    EXPECT_EQ(77u, calls[1].data);
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

// Print jobs that become a PDF, on printers whose every call can fail.
#include "config/process.h"
#include "doubles/clock_double.h"
#include "doubles/message_box_double.h"
#include "doubles/print_system_double.h"
#include "print/win32/mail_client.h"
#include "support/temporary_folder.h"
#include "support/win32_ui.h"

#include <qxutility/config/ini_file.h>
#include <qxutility/print/print_job.h>

#include <filesystem>
#include <gmock/gmock.h>
#include <optional>

using namespace qx::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char kXChange[] = "PDF-XChange 3.0", kXChangeDe[] = "PDF-XChange DE";
constexpr char kSystems[] = "Microsoft Print to PDF";

struct PdfPrinter : testing::Test {
    PdfPrinter()
    {
        qx::AttachProcess(::LoadLibraryA("QXUtility.dll"));
        ChangeINIFileName(folder.Path("kvl.ini").c_str());
        ::GetEnvironmentVariableA("TMP", m_temporary, sizeof m_temporary);
        ::SetEnvironmentVariableA("TMP", temporary.Path().c_str());
    }
    ~PdfPrinter() override
    {
        ::SetEnvironmentVariableA("TMP", m_temporary);
        qx::DetachProcess();
    }

    std::size_t TemporaryFiles() const
    {
        const std::filesystem::directory_iterator files(temporary.Path());
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

    TemporaryFolder folder, temporary;
    ClockDouble clock;
    MessageBoxDouble boxes;
    MailClient client;

  private:
    char m_temporary[MAX_PATH] = "";
};

// Silent, of one page; whether it was started.
bool PrintPage(QXPrint& print)
{
    if (!print.SetupPrint("Report"))
        return false;
    int result = print.PageStart();
    if (result > 0)
        result = print.PageEnd();
    print.EndPrint(result);
    return true;
}

TEST_F(PdfPrinter, IsToldWhatToDoWithTheReport)
{
    const struct {
        std::vector<std::string> installed;
        std::string device, output;
        std::vector<std::string> escapes;
    } cases[] = {
        {{kSystems, kXChangeDe, kXChange},
         kXChange,
         "",
         {"-5650 Save.App.Run: 0", "-5650 Save.Type: 2", "-5650 Save.ShowSaveDialog: 0",
          "-5650 Save.WhenExists: 1", "-5650 Save.FullFileName: C:\\a.pdf"}},
        {{kSystems, kXChangeDe}, kXChangeDe, "", {"-5500 C:\\a.pdf"}},
        {{kSystems}, kSystems, "C:\\a.pdf", {}},
    };
    for (const auto& c : cases) {
        PrintSystemDouble system;
        system.printers = c.installed;
        QXPrint print;
        for (int job = 1; job <= 2; ++job) {
            print.PDFSetFileName("C:\\a.pdf");
            EXPECT_TRUE(PrintPage(print));
            EXPECT_EQ(c.device, system.device);
            EXPECT_EQ(c.output, system.output);
            EXPECT_EQ(c.escapes, std::exchange(system.escapes, {})) << job;
        }
        print.pdf = false;
        EXPECT_TRUE(PrintPage(print));
        EXPECT_EQ("device", system.device) << c.device;
        EXPECT_EQ("", system.output);
        EXPECT_THAT(system.escapes, IsEmpty());
    }
}

TEST_F(PdfPrinter, AsksForAPathThatIsMissing)
{
    const TestWindow owner("Owner");
    const std::string tooLong(10'000, 'x'), longest(MAX_PATH - 1, 'x');
    const struct {
        const char *path, *used;
    } cases[] = {
        {nullptr, ""}, {"", ""}, {tooLong.c_str(), ""}, {longest.c_str(), longest.c_str()}};
    for (const auto& c : cases) {
        PrintSystemDouble system;
        system.printers = {kSystems};
        QXPrint print;
        print.PDFSetFileName(c.path);
        EXPECT_EQ(*c.used != '\0', PrintPage(print)) << "asks, which a silent job may not";
        print.PDFSetFileName(c.path);
        EXPECT_TRUE(print.SetupPrint(owner, "Report"));
        EXPECT_EQ(c.used, system.output);
        print.EndPrint(1);
    }
}

TEST_F(PdfPrinter, TellsWhereAReportIsMailedFrom)
{
    PrintSystemDouble system;
    system.printers = {kXChange};
    std::string pdf;
    system.onEndDoc = [&] {
        pdf = system.escapes.back().substr(std::strlen("-5650 Save.FullFileName: "));
        std::ofstream(pdf) << "%PDF";
    };
    QXPrint print;
    for (const char* title : {"Pumps", "", static_cast<const char*>(nullptr)}) {
        print.EmailSetTitle(title);
        EXPECT_EQ(1U, TemporaryFiles());
        EXPECT_TRUE(PrintPage(print));
        const std::string name = title && *title ? title : "TheReport.PDF";
        EXPECT_EQ("9 (null) | (null) | " + pdf + ' ' + name + " -1\n", client.Messages());
        EXPECT_EQ(temporary.Path(), std::filesystem::path(pdf).parent_path());
        EXPECT_EQ(0U, TemporaryFiles());
    }
    print.EmailSetTitle("Never printed");
    print.EmailSetTitle("Never printed");
    print.PDFSetFileName("C:\\a.pdf");
    EXPECT_EQ(0U, TemporaryFiles());
    print.EmailSetTitle(std::string(10'000, 't'));
    QXPrint().EmailSetTitle("Never printed");
    EXPECT_EQ(1U, TemporaryFiles());
}

TEST_F(PdfPrinter, IsNotNeededForAMessage)
{
    PrintSystemDouble system;
    QXPrint print;
    const auto send = [&](const char* text) {
        return print.EmailMessage(nullptr, nullptr, nullptr, text, text, text, text);
    };
    EXPECT_EQ(1, send(nullptr));
    EXPECT_EQ(1, send("smtp:me"));
    EXPECT_EQ("9 (null) | (null)\n9 smtp:me | smtp:me | 1: smtp:me smtp:me\n", client.Messages());
    client.SetDefault("");
    boxes.answers = {IDOK};
    EXPECT_EQ(0, send("me"));
}

TEST_F(PdfPrinter, BearsWhatMessagesDoMeanwhile)
{
    PrintSystemDouble system;
    system.printers = {kXChange};
    std::optional<QXPrint> print(std::in_place);
    print->EmailSetTitle("Waited for in vain");
    clock.meanwhile = [&] {
        EXPECT_FALSE(print->SetupPrinter(nullptr, true, "DEF")) << "it is not the user's";
    };
    EXPECT_TRUE(PrintPage(*print));
    EXPECT_EQ("9 (null) | (null)\n", client.Messages());

    print->EmailSetTitle("Given up");
    system.onEndDoc = [&] { print.reset(); };
    EXPECT_TRUE(PrintPage(*print));
    EXPECT_EQ("", client.Messages());
    EXPECT_EQ(0, system.held);
    EXPECT_EQ(0U, TemporaryFiles());
}

// Prints with the n-th call failing, and then on paper; false when there is no n-th call.
bool PrintWithFailure(const char* printer, bool mail, int failAt)
{
    PrintSystemDouble system;
    system.printers = {printer};
    system.failAt = failAt;
    system.mode.dmCopies = 7;
    {
        QXPrint print;
        mail ? print.EmailSetTitle("Pumps") : print.PDFSetFileName("C:\\a.pdf");
        PrintPage(print);
        const std::string failed = std::exchange(system.failed, "");
        system.failAt = 0;
        system.mode.dmCopies = 7;  // again, where the user's printer was not found before
        print.pdf = print.mail = false;
        EXPECT_TRUE(PrintPage(print)) << failed;
        EXPECT_EQ("device", system.device) << failed;
        EXPECT_EQ(7, system.mode.dmCopies) << failed;
        system.failed = failed;
    }
    EXPECT_EQ(0, system.held) << system.failed;
    EXPECT_EQ(0, system.locked) << system.failed;
    return !system.failed.empty();
}

TEST_F(PdfPrinter, LeavesTheUsersPrinterWhicheverCallFails)
{
    for (const char* const printer : {kXChange, kXChangeDe, kSystems}) {
        for (const bool mail : {false, true}) {
            int calls = 0;
            while (PrintWithFailure(printer, mail, calls + 1))
                ++calls;
            EXPECT_GT(calls, 20) << printer;
            EXPECT_EQ(0U, TemporaryFiles()) << printer;
        }
    }
}

// What applications see of the printers.
struct OpenPrint : QXPrint {
    using QXPrint::GetDevMode;
    using QXPrint::GetPrinterDevice;
};

TEST_F(PdfPrinter, IsDescribedInOneBlock)
{
    PrintSystemDouble system;
    system.printers = {kXChange};
    OpenPrint print;
    void *names = nullptr, *mode = nullptr;
    for (const char* const none : {"No such printer", "", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(0, print.GetPrinterDevice(none, &names, &mode));
        EXPECT_EQ(0, print.GetDevMode(none, &mode));
    }
    ASSERT_EQ(1, print.GetPrinterDevice(kXChange, &names, &mode));
    const std::string expected("\x08\0\x0f\0\x1f\0\0\0driver\0PDF-XChange 3.0\0\0", 32);
    EXPECT_EQ(expected, std::string(static_cast<char*>(::GlobalLock(names)), expected.size()));
    ::GlobalUnlock(names);
    qx::win32::FreeGlobal(names);
    qx::win32::FreeGlobal(mode);
}

}  // namespace

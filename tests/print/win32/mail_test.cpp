#include "print/win32/mail.h"

#include "config/process.h"
#include "doubles/clock_double.h"
#include "doubles/directories_double.h"
#include "doubles/message_box_double.h"
#include "doubles/open_document_double.h"
#include "print/win32/mail_client.h"
#include "print/win32/mail_report.h"

#include <filesystem>
#include <gtest/gtest.h>

using namespace qx;
using test::ClockDouble, test::MailClient, test::MessageBoxDouble, test::TemporaryFolder;

namespace {

const HWND kOwner = ::GetDesktopWindow();

struct Mail : testing::Test {
    void Cause(const MailMessage& message, const std::string& expected)
    {
        EXPECT_EQ(expected, SendMail(kOwner, message).value_or("(sent)"));
    }

    MailClient client;
    ClockDouble clock;
    TemporaryFolder folder;
};

TEST_F(Mail, TakesWhatIsGiven)
{
    const std::string pdf = folder.Write("a.pdf", "%PDF");
    const std::string longText(10'000, 'x');
    struct {
        MailMessage message;
        std::string noted;
    } const cases[] = {
        {{}, "owned 9 (null) | (null)\n"},
        {{"", "", "", "", "", ""}, "owned 9  | \n"},
        {{pdf.c_str(), "Pumps %s.pdf", "S", "T", "me", "Me"},
         "owned 9 S | T | 1: SMTP:me Me | " + pdf + " Pumps %s.pdf -1\n"},
        {{nullptr, nullptr, longText.c_str(), nullptr, "smtp:me", nullptr},
         "owned 9 " + longText + " | (null) | 1: smtp:me (null)\n"},
    };
    for (const auto& c : cases) {
        Cause(c.message, "(sent)");
        EXPECT_EQ(c.noted, client.Messages());
    }
    EXPECT_EQ(0u, clock.waited);
}

TEST_F(Mail, WaitsForItsAttachment)
{
    const std::string pdf = folder.Path("late.pdf");
    const MailMessage message{pdf.c_str(), "Late", nullptr, nullptr, nullptr, nullptr};
    Cause(message, "(sent)");  // without it, in the end
    EXPECT_EQ("owned 9 (null) | (null)\n", client.Messages());
    EXPECT_EQ(3750u, clock.waited);

    clock.waited = 0;
    clock.meanwhile = [&] {
        if (clock.waited == 750)
            folder.Write("late.pdf", "");
    };
    Cause(message, "(sent)");
    EXPECT_EQ("owned 9 (null) | (null) | " + pdf + " Late -1\n", client.Messages());
    EXPECT_EQ(750u, clock.waited);
}

TEST_F(Mail, IsHandedOverOrNot)
{
    for (const char* result : {"0", "1", "3"}) {
        client.SetResult(result);
        Cause({}, "(sent)");
    }
    for (const char* result : {"2", "4", "26"}) {
        client.SetResult(result);
        Cause({}, "Can't send: %l");
    }
    ::SetEnvironmentVariableA("QX_FOLDER", "C:\\no\\folder");
    for (const auto& [library, shown] :
         {std::pair{"%QX_FOLDER%\\mail.dll", "C:\\no\\folder\\mail.dll"},
          std::pair{"kernel32.dll", "kernel32.dll"}}) {  // does not send mail
        client.SetLibrary(library);
        Cause({}, shown);
    }
    client.SetDefault("");
    Cause({}, "No Client");
}

TEST_F(Mail, LeavesTheCurrentFolder)
{
    std::filesystem::current_path(folder.Path());
    Cause({}, "(sent)");
    EXPECT_EQ(folder.Path(), std::filesystem::current_path().string());
    std::filesystem::current_path(MailClient::ProgramFolder());
}

TEST_F(Mail, ClientIsNoFileInTheCurrentFolder)
{
    std::filesystem::copy_file(MailClient::ProgramFolder() + "test_mail_client.dll",
                               folder.Path("planted.dll"));
    std::filesystem::current_path(folder.Path());
    client.SetLibrary("planted.dll");
    Cause({}, "planted.dll");
    std::filesystem::current_path(MailClient::ProgramFolder());
}

// ---- Reports

struct MailedReport : Mail {
    MailedReport()
    {
        AttachProcess(::GetModuleHandleA(nullptr));
        directories.users[platform::UserFolder::Documents] = documents.Path();
        directories.system = "C:\\Windows";
        client.SetDefault("");
    }
    ~MailedReport() override { DetachProcess(); }

    std::string pdf = folder.Write("tal1.pdf", "%PDF");
    TemporaryFolder documents;
    test::DirectoriesDouble directories;
    test::OpenDocumentDouble desktop;
};

TEST_F(MailedReport, GoesToTheClient)
{
    client.SetDefault("Client of a test");
    MailReport(kOwner, pdf, "Pumps");
    EXPECT_EQ("owned 9 (null) | (null) | " + pdf + " Pumps -1\n", client.Messages());
    MailReport(nullptr, pdf + ".none", "Pumps");  // a job that was given up
    EXPECT_EQ("9 (null) | (null)\n", client.Messages());
    EXPECT_EQ(3750u, clock.waited);
}

TEST_F(MailedReport, IsWaitedForWhileItIsWritten)
{
    client.SetDefault("Client of a test");
    const HANDLE writer =
        ::CreateFileA(pdf.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                      OPEN_EXISTING, 0, nullptr);
    clock.meanwhile = [&] {
        if (clock.waited == 500)
            ::CloseHandle(writer);
    };
    MailReport(kOwner, pdf, "Pumps");
    EXPECT_EQ(500u, clock.waited);
    EXPECT_EQ("owned 9 (null) | (null) | " + pdf + " Pumps -1\n", client.Messages());
}

TEST_F(MailedReport, IsKeptWhenNobodySendsIt)
{
    client.SetDefault("Client of a test");
    client.SetResult("2");
    documents.Write("A_B.pdf", "another report");
    MessageBoxDouble boxes({IDOK, IDYES});
    MailReport(kOwner, pdf, "A/B.PDF");
    EXPECT_EQ("%PDF", documents.Read("A_B (2).pdf"));
    EXPECT_EQ("another report", documents.Read("A_B.pdf"));
    EXPECT_FALSE(std::filesystem::exists(pdf));
    EXPECT_EQ("C:\\Windows\\explorer.exe|/select,\"" + documents.Path("A_B (2).pdf") + '"',
              desktop.opened.at(0));
    EXPECT_EQ("E-mail Report", boxes.shown.at(0).caption);
    EXPECT_EQ(MB_ICONSTOP, boxes.shown.at(0).style);
    EXPECT_NE(std::string::npos, boxes.shown.at(0).text.find("Cause: Can't send: %l"));
    EXPECT_NE(std::string::npos, boxes.shown.at(1).text.find("as A_B.pdf in your documents"));
}

TEST_F(MailedReport, IsKeptWhereItIsWithoutADocumentsFolder)
{
    directories.users[platform::UserFolder::Documents] = documents.Path("none");
    MessageBoxDouble boxes({IDOK, IDYES});
    MailReport(kOwner, pdf, std::string(10'000, 'x'));
    EXPECT_EQ("%PDF", folder.Read(std::string(100, 'x') + ".pdf"));
}

TEST_F(MailedReport, IsLeftWhenNobodyWantsItOrThereIsNone)
{
    {
        MessageBoxDouble boxes({IDOK, IDNO});
        MailReport(kOwner, pdf, "Pumps");
    }
    {
        MessageBoxDouble boxes({IDOK});
        MailReport(kOwner, pdf + ".none", "Pumps");
    }
    MessageBoxDouble none;
    MailReport(nullptr, pdf, "Pumps");
    EXPECT_TRUE(std::filesystem::exists(pdf));
    EXPECT_TRUE(desktop.opened.empty());
}

TEST_F(MailedReport, ThatCannotBeMovedIsNotSilentlyLost)
{
    const HANDLE writer = ::CreateFileA(pdf.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr);
    MessageBoxDouble boxes({IDOK, IDYES, IDOK});
    MailReport(kOwner, pdf, "Pumps");
    ::CloseHandle(writer);
    EXPECT_NE(std::string::npos, boxes.shown.at(2).text.find(pdf));
}

}  // namespace

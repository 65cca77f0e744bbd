// What a job tells people, PDF drivers and mail clients.
#include "print/job_messages.h"
#include "print/mail_texts.h"
#include "print/pdf_settings.h"

#include <gtest/gtest.h>

using namespace qx;

static std::string Shown(const std::optional<JobMessage>& message)
{
    const char* const icons[] = {"", "!", "?", "", "i"};  // in the order of MB_ICON*
    return message ? std::to_string(message->text) + icons[message->icon / 16] + message->more : "";
}

TEST(JobMessage, SaysWhatWentWrong)
{
    struct {
        int result;
        const char *atStart, *atEnd;
    } const cases[] = {{1, "", ""},           {0, "", "1006, code: 0"},
                       {-4, "1007!", "1007"}, {-1, "1006!", "1006, code: -1"},
                       {-5, "1005!", "1005"}, {-6, "1006!", "1006, code: -6"},
                       {-3, "1006!", "1008"}, {-2, "1006!", "1008"}};
    for (const auto& c : cases) {
        EXPECT_EQ(c.atStart, Shown(StartMessage(c.result))) << c.result;
        EXPECT_EQ(c.atEnd, Shown(EndMessage(c.result, false))) << c.result;
        EXPECT_EQ("1008", Shown(EndMessage(c.result, true))) << c.result;
    }
    EXPECT_EQ("1009i", Shown(SetupMessage(true, 0)));
    EXPECT_EQ("1006!", Shown(SetupMessage(false, 0x1008)));
    EXPECT_EQ("", Shown(SetupMessage(false, 0)));
}

TEST(PdfSettings, AreSentInTheDriversOrder)
{
    const std::string quiet = "-5650 Save.App.Run: 0|-5650 Save.Type: 2|";
    const std::string noDialog = quiet + "-5650 Save.ShowSaveDialog: 0|-5650 Save.WhenExists: 1|";
    const std::string path = "-5650 Save.FullFileName: a b.pdf|", dePath = "-5500 a b.pdf|";
    const char *const xchange = "PDF-XChange 3.0", *const de = "PDF-XChange DE";
    struct {
        const char* device;
        bool pdf, mail, silent;
        std::string sent;
    } const cases[] = {
        {xchange, false, false, false, quiet},          {de, false, false, true, ""},
        {xchange, true, false, false, quiet + path},    {de, true, false, false, dePath},
        {xchange, false, true, false, noDialog + path}, {de, false, true, false, dePath},
        {xchange, false, false, true, noDialog + path}, {"PDF-XChange", true, true, true, ""}};
    for (const auto& c : cases) {
        std::string sent;
        for (const auto& line : PdfSettings(c.device, {c.pdf, c.mail, c.silent, "a b.pdf"}))
            sent += std::to_string(line.escape) + ' ' + line.text + '|';
        EXPECT_EQ(c.sent, sent) << c.device << ' ' << c.pdf << c.mail << c.silent;
    }
}

TEST(Mail, NamesRecipientAndAttachment)
{
    EXPECT_EQ("SMTP:someone", MailAddress("someone"));
    EXPECT_EQ("sMtp:someone", MailAddress("sMtp:someone"));
    EXPECT_EQ("SMTP:smtp", MailAddress("smtp"));
    EXPECT_EQ("TheReport.PDF", AttachmentName(""));
    EXPECT_EQ("Pumps %s.pdf", AttachmentName("Pumps %s.pdf"));
    EXPECT_EQ("C:\\Temp\\tal1.pdf", PdfPathFor("C:\\Temp\\tal1.tmp"));
    EXPECT_EQ("pdf", PdfPathFor("ab"));
}

// What a job tells people, PDF drivers and mail clients.
#include "print/device_names.h"
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

TEST(Mail, NamesTheFileOfAReport)
{
    const struct {
        std::string title, name;
    } cases[] = {{"", "TheReport.pdf"},
                 {"Pumps & pipes", "Pumps & pipes.pdf"},
                 {"a/b\\c:d.PDF", "a_b_c_d.pdf"},
                 {"..\\..", ".._.pdf"},
                 {"Line 3. ", "Line 3.pdf"},
                 {". .", "Report.pdf"},
                 {std::string(10'000, 'x'), std::string(100, 'x') + ".pdf"}};
    for (const auto& c : cases)
        EXPECT_EQ(c.name, ReportFileName(c.title)) << c.title;
    EXPECT_EQ("a.b.pdf", NumberedName("a.b.pdf", 1));
    EXPECT_EQ("a.b (2).pdf", NumberedName("a.b.pdf", 2));
    EXPECT_EQ("a (3)", NumberedName("a", 3));
}

TEST(DeviceNames, StandBehindTheirPlaces)
{
    using namespace std::string_literals;
    EXPECT_EQ("\x08\0\x0b\0\x10\0\0\0dr\0PDF \0\0"s, DeviceNamesBlock("dr", "PDF ", ""));
    const std::string longest(65'535 - 8 - 2, 'x');
    EXPECT_EQ("\x08\0\xfe\xff\xff\xff\0\0"s, DeviceNamesBlock(longest, "", "port")->substr(0, 8));
    EXPECT_FALSE(DeviceNamesBlock(longest, "x", ""));
}

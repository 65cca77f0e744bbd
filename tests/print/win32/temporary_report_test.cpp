#include "doubles/files_double.h"
#include "print/mail_texts.h"
#include "print/win32/mail_report.h"
#include "support/temporary_folder.h"

#include <windows.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

using namespace qx;

// The folder of temporary files, for the time of a test.
class TemporaryFiles {
  public:
    explicit TemporaryFiles(const std::string& folder)
    {
        m_before.resize(::GetEnvironmentVariableA("TMP", m_before.data(), MAX_PATH));
        ::SetEnvironmentVariableA("TMP", folder.c_str());
    }
    TemporaryFiles(const TemporaryFiles&) = delete;
    TemporaryFiles& operator=(const TemporaryFiles&) = delete;
    ~TemporaryFiles() { ::SetEnvironmentVariableA("TMP", m_before.c_str()); }

  private:
    std::string m_before = std::string(MAX_PATH, '\0');
};

TEST(TemporaryReport, TakesNoNameThatIsInUse)
{
    const test::TemporaryFolder folder;
    const TemporaryFiles files(folder.Path());
    test::FilesDouble disk;  // of the files but the placeholders, which the system makes
    for (unsigned number = 0; number <= 0xFFFF; number += 2) {  // every second one is in use
        std::ostringstream name;
        name << "tal" << std::hex << number << ".pdf";
        disk.Put(folder.Path(name.str()), "another report");
    }
    for (int i = 0; i < 10; ++i) {
        const auto report = NewTemporaryReport();
        ASSERT_TRUE(report);
        EXPECT_EQ("(none)", disk.Text(report->pdf)) << report->pdf;
        EXPECT_EQ(PdfPathFor(report->placeholder), report->pdf);
        EXPECT_EQ(0u, std::filesystem::file_size(report->placeholder));
    }
    EXPECT_FALSE(disk.calls.empty());
    for (const std::string& call : disk.calls)  // placeholders of the names in use go again
        EXPECT_TRUE(call.starts_with("remove ") && call.ends_with(".tmp")) << call;
}

TEST(TemporaryReport, NeedsAFolder)
{
    const test::TemporaryFolder folder;
    const TemporaryFiles files(folder.Path("none"));
    EXPECT_FALSE(NewTemporaryReport());
}

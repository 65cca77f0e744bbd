// XML files that no document can hold.
#include "support/temporary_folder.h"

#include <qxutility/formats/xml_document.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <system_error>

// Sparse: its size without the upper half would be that of an ordinary file.
TEST(XmlDisk, FileBeyondFourGibibytesIsRefused)
{
    const qx::test::TemporaryFolder folder;
    const std::string path = folder.Write("large.xml", "<a>text</a>");
    XMLDocument document;
    ASSERT_TRUE(document.OpenFile(path.c_str()));
    ASSERT_TRUE(document.FindElement("a"));
    std::error_code error;
    std::filesystem::resize_file(path, (std::uint64_t{1} << 32) + 11, error);
    if (error)
        GTEST_SKIP() << "no room for a large file: " << error.message();
    EXPECT_FALSE(document.OpenFile(path.c_str()));
    EXPECT_FALSE(document.FirstElement()) << "nothing is left of the text before";
    EXPECT_EQ(0u, document.GetDataLength());
}

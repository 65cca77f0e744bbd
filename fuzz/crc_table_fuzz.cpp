// CRC tables: the check says what it always said. The first byte of an input is for options, the
// rest is the table.
#include "doubles/files_double.h"
#include "formats/oracle/plain_crc.h"
#include "fuzz.h"

#include <qxutility/formats/crc.h>

using qx::fuzz::Require;
using qx::test::PlainCrc;

namespace {

void CheckAsAlways(const std::map<std::string, std::uint32_t>& crcs)
{
    std::size_t told = 0, count = 0;
    const auto progress = [&](std::size_t done, std::size_t files) {
        Require(done == ++told && (count == 0 || files == count), "the progress goes on by one");
        count = files;
        return true;
    };
    Require(CCrc::CheckCRCTable("folder/table.crc", progress) ==
                qx::test::PlainCheck("folder/table.crc", crcs),
            "a table is as right or wrong as it always was");
    Require(told == count, "all files are looked at");
}

// A table that is built of a list of names holds, unless a name ends its line.
void BuildAndCheck(const std::string& names)
{
    const bool isBuilt = CCrc::BuildCRCTable(names.c_str(), "folder/built.crc");
    const std::string_view listed = names.c_str();
    Require(isBuilt == !listed.empty(), "a table is built of every list but the empty one");
    if (isBuilt && listed.find_first_of("\t\r\n") == listed.npos &&
        listed.find("built.crc") == listed.npos)
        Require(CCrc::CheckCRCTable("folder/built.crc"), "a table that was built holds");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    qx::test::FilesDouble disk;
    disk.Put("folder/a.dat", "first");
    disk.Put("folder/b.dat", "");
    const std::map<std::string, std::uint32_t> crcs = {{"a.dat", PlainCrc("first")}};
    if (data[0] & 1)  // a number that fits, which no random change would find
        bytes += std::to_string(PlainCrc(bytes));
    disk.Put("folder/table.crc", bytes);
    // What names the table itself by its own CRC is left out.
    if (bytes.find("table.crc") == bytes.npos)
        CheckAsAlways(crcs);
    BuildAndCheck(bytes);
    return 0;
}

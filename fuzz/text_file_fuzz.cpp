// Line readers: TextFile in all its forms, and GetNextLine. The first byte of an input is for
// options, the rest is the file.
#include "doubles/files_double.h"
#include "formats/oracle/plain_text_reader.h"
#include "fuzz.h"

#include <qxutility/formats/text_file.h>

#include <memory>
#include <string>

using qx::fuzz::Require;

namespace {

// One line, by one of the three forms of ReadLine; of a cut line what was delivered.
std::string Read(TextFile& file, std::size_t form, const std::string& expected, std::size_t room)
{
    const auto line = std::make_unique<char[]>(form == 0 ? expected.size() + 1 : room);
    if (form == 0)
        return file.ReadLine(line.get()), line.get();
    std::string grown = "left over";
    if (form == 1)
        return file.ReadLine(grown), grown;
    Require(file.ReadLine(line.get(), room) == expected.size(), "the length of a cut line is told");
    return room == 0 ? "" : line.get();
}

// Compares with the plain reader, to a little beyond the end of the file; the forms of ReadLine
// take turns, `form` comes first.
void ReadAsAlways(TextFile& file, const std::string& bytes, std::size_t form, std::size_t room)
{
    qx::test::PlainTextReader plain(bytes);
    const auto line = std::make_unique<char[]>(bytes.size() + 1);
    for (int after = 0; after < 3; after += plain.Eof(), ++form) {
        plain.ReadLine(line.get());
        const std::string expected = line.get();
        const bool isCut = form % 3 == 2;
        Require(Read(file, form % 3, expected, room) ==
                    (isCut ? expected.substr(0, std::max<std::size_t>(room, 1) - 1) : expected),
                "a line is the one that it always was");
        Require(file.eof() == plain.Eof(), "the end of the file is where it always was");
    }
}

// No line is longer than the buffer, and there are no more lines than there are CR.
void ReadWithState(const std::string& bytes)
{
    const qx::platform::File file("file", qx::platform::FileMode::Read);
    const int handle = static_cast<int>(qx::test::Disk().opened.size()) - 1;
    const auto buffer = std::make_unique<char[]>(1024), line = std::make_unique<char[]>(1024);
    auto left = std::count(bytes.begin(), bytes.end(), '\r');
    for (bool first = true; GetNextLine(handle, buffer.get(), line.get(), first) == 0;
         first = false)
        Require(left-- > 0, "each line has an end of its own");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    qx::test::FilesDouble disk;
    disk.Put("file", bytes);
    TextFile file("file");
    if (data[0] & 1) {  // restart in the middle
        std::string line;
        file.ReadLine(line);
        file.Restart();
    }
    ReadAsAlways(file, bytes, data[0], data[0] / 2);
    ReadWithState(bytes);
    return 0;
}

#include "formats/oracle/plain_crc.h"
#include "platform/files.h"
#include "support/temporary_folder.h"

#include <qxutility/formats/crc.h>
#include <qxutility/types.h>

#include <cstdio>
#include <gmock/gmock.h>
#include <map>
#include <memory>
#include <random>
#include <utility>
#if QX_WINDOWS
#include <io.h>
#endif

using qx::test::PlainCrc;
using qx::test::TemporaryFolder;

namespace fs = std::filesystem;

namespace {

constexpr char kSeparator = QX_WINDOWS ? '\\' : '/';
constexpr unsigned long kUntouched = 4711;

unsigned long StringCrc(const char* text)
{
    unsigned long crc = kUntouched;
    EXPECT_EQ(0u, CCrc().StringCrc32(text, crc));
    return crc;
}

struct Result {
    unsigned long error, crc;
};
Result FileCrc(const std::string& path)
{
    unsigned long crc = kUntouched, same = kUntouched;
    const unsigned long error = CCrc().FileCrc32Win32(path.c_str(), crc);
    EXPECT_EQ(error, CCrc().FileCrc32Assembly(path.c_str(), same));
    EXPECT_EQ(crc, same);
    return {error, crc};
}

void* HandleOf(std::FILE* file)
{
#if QX_WINDOWS
    return reinterpret_cast<void*>(::_get_osfhandle(::_fileno(file)));
#else
    return reinterpret_cast<void*>(static_cast<std::intptr_t>(::fileno(file)));
#endif
}

// The members that derived classes of applications use.
struct Exposed : CCrc {
    using CCrc::CalcCrc32;
    using CCrc::GetFileSizeQW;
};

class InFolder {
  public:
    explicit InFolder(const std::string& path) : m_before(fs::current_path())
    {
        fs::current_path(path);
    }
    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;
    ~InFolder() { fs::current_path(m_before); }

  private:
    fs::path m_before;
};

// A folder with a few files and a CRC table of them.
class CrcTableTest : public testing::Test {
  protected:
    void SetUp() override
    {
        m_folder.Write("a.dat", "first");
        m_folder.Write("b.dat", std::string(5000, 'b'));
    }
    bool Build(const std::string& names) const
    {
        return CCrc::BuildCRCTable(names.c_str(), Table().c_str());
    }
    bool Check() const { return CCrc::CheckCRCTable(Table().c_str()); }
    std::string Table() const { return m_folder.Path() + kSeparator + "files.crc"; }
    std::string Text() const { return m_folder.Read("files.crc"); }
    void SetText(const std::string& text) const { m_folder.Write("files.crc", text); }
    // A table of lines as they stand, with the CRC that belongs to those with a tab.
    void SetLines(const std::string& lines, const std::string& behind = "") const
    {
        SetText(lines + std::to_string(PlainCrc(lines)) + behind);
    }

    TemporaryFolder m_folder;
};

std::string Line(const std::string& name, std::uint32_t crc)
{
    return name + "\t" + std::to_string(crc) + "\r\n";
}

}  // namespace

TEST(Crc, OfTexts)
{
    EXPECT_EQ(1189282491u, StringCrc("123456789"));
    EXPECT_EQ(0xE8B6D643u, StringCrc("a"));
    EXPECT_EQ(0u, StringCrc(""));
    EXPECT_EQ(0u, StringCrc(nullptr));
    EXPECT_EQ(PlainCrc("\xE4\xF6\xFC"), StringCrc("\xE4\xF6\xFC"));
}

TEST(Crc, StepsByteByByte)
{
    const Exposed crc;
    for (const auto& [byte, entry] : {std::pair(0, 0u), {1, 0x77002C96u}, {255, 0x2D001B8Du}}) {
        unsigned long reg = 0;
        crc.CalcCrc32(static_cast<unsigned char>(byte), reg);
        EXPECT_EQ(entry, reg) << byte;
    }
    unsigned long reg = 0xFFFFFFFF;
    for (const char c : std::string("123456789"))
        crc.CalcCrc32(static_cast<unsigned char>(c), reg);
    EXPECT_EQ(0x46E302BBu, reg ^ 0xFFFFFFFF);
}

TEST(Crc, CopiesOutliveTheirOriginal)
{
    auto original = std::make_unique<CCrc>();
    const CCrc copy = *original;
    original.reset();
    unsigned long crc = kUntouched;
    copy.StringCrc32("123456789", crc);
    EXPECT_EQ(1189282491u, crc);
}

TEST(Crc, OfFilesOfAnySize)
{
    const TemporaryFolder folder;
    std::mt19937 random(1);
    for (const std::size_t size : {0, 1, 4095, 4096, 4097, 262143, 262144, 262145, 1000000}) {
        std::string bytes(size, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        const Result result = FileCrc(folder.Write("file.dat", bytes));
        EXPECT_EQ(0u, result.error) << size;
        EXPECT_EQ(PlainCrc(bytes), result.crc) << size;
    }
}

TEST(Crc, OfWhatCannotBeOpenedIsZeroWithTheSystemsError)
{
    const TemporaryFolder folder;
    constexpr unsigned long kNotFound = 2;  // of errno and of GetLastError alike
    const Result missing = FileCrc(folder.Path("missing.dat"));
    EXPECT_EQ(kNotFound, missing.error);
    EXPECT_EQ(0u, missing.crc);
    for (const std::string& path : {folder.Path(), std::string()}) {
        const Result result = FileCrc(path);
        EXPECT_NE(0u, result.error) << path;
        EXPECT_EQ(0u, result.crc) << path;
    }
    unsigned long crc = kUntouched;
    EXPECT_NE(0u, CCrc().FileCrc32Win32(nullptr, crc));
    EXPECT_EQ(0u, crc);
}

TEST(Crc, OfAFileInUse)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("used.dat", "123456789");
    const qx::platform::File user(path.c_str(), qx::platform::FileMode::ReadExclusive);
    const Result result = FileCrc(path);
    EXPECT_EQ(QX_WINDOWS ? 32u : 0u, result.error);  // ERROR_SHARING_VIOLATION
    EXPECT_EQ(QX_WINDOWS ? 0u : 1189282491u, result.crc);
}

TEST(Crc, SizesOfOpenFiles)
{
    const TemporaryFolder folder;
    std::FILE* const file = std::fopen(folder.Write("file.dat", "12345").c_str(), "rb");
    ASSERT_TRUE(file);
    long long size = -1;
    EXPECT_TRUE(Exposed::GetFileSizeQW(HandleOf(file), size));
    EXPECT_EQ(5, size);
    std::fclose(file);
    EXPECT_FALSE(Exposed::GetFileSizeQW(reinterpret_cast<void*>(-1), size));
    EXPECT_EQ(0, size);
}

TEST(Crc, OfADirectoryIsThatOfTheLastFileFound)
{
    const TemporaryFolder folder;
    folder.Write("a.dat", "first");
    folder.Write("b.dat", "second");
    folder.Write("c.txt", "third");
    const InFolder current(folder.Path());
    unsigned long crc = kUntouched;
    EXPECT_EQ(PlainCrc("second"), CCrc().DirectoryCrc32("*.dat", crc));
    EXPECT_EQ(PlainCrc("third"), CCrc().DirectoryCrc32("?.txt", crc));
    EXPECT_EQ(PlainCrc("first"), CCrc().DirectoryCrc32("a.dat", crc));
    EXPECT_EQ(0u, CCrc().DirectoryCrc32("*.none", crc));
    EXPECT_EQ(0u, CCrc().DirectoryCrc32("", crc));
    EXPECT_EQ(kUntouched, crc);
}

TEST(Crc, OfADirectoryLooksForItsFilesInTheCurrentOne)
{
    const TemporaryFolder folder, other;
    folder.Write("a.dat", "there");
    folder.Write("b.dat", "there too");
    other.Write("b.dat", "here");
    const std::string pattern = folder.Path() + kSeparator + "*.dat";
    unsigned long crc = kUntouched;
    {
        const InFolder current(other.Path());
        EXPECT_EQ(PlainCrc("here"), CCrc().DirectoryCrc32(pattern.c_str(), crc));
    }
    const TemporaryFolder empty;
    const InFolder current(empty.Path());
    EXPECT_EQ(2u, CCrc().DirectoryCrc32(pattern.c_str(), crc));  // the error: not found
}

TEST_F(CrcTableTest, HoldsALineForEachFileAndTheCrcOfThese)
{
    ASSERT_TRUE(Build("a.dat,b.dat"));
    const std::string lines =
        Line("a.dat", PlainCrc("first")) + Line("b.dat", PlainCrc(std::string(5000, 'b')));
    EXPECT_EQ(lines + std::to_string(PlainCrc(lines)), Text());
    EXPECT_TRUE(Check());
}

TEST_F(CrcTableTest, FindsChangedMissingAndNewFiles)
{
    ASSERT_TRUE(Build("a.dat,b.dat,missing.dat"));
    EXPECT_TRUE(Check());
    m_folder.Write("missing.dat", "now there");
    EXPECT_FALSE(Check());
    fs::remove(m_folder.Path("missing.dat"));
    EXPECT_TRUE(Check());
    m_folder.Write("b.dat", std::string(4999, 'b') + "c");
    EXPECT_FALSE(Check());
    fs::remove(m_folder.Path("b.dat"));
    EXPECT_FALSE(Check());
}

TEST_F(CrcTableTest, TakesNamesAsTheyStand)
{
    static constexpr struct {
        const char* names;
        std::vector<std::string> (*listed)();
    } kCases[] = {{"a.dat,",
                   [] {
                       return std::vector<std::string>{"a.dat", ""};
                   }},
                  {",",
                   [] {
                       return std::vector<std::string>{"", ""};
                   }},
                  {" a.dat", [] { return std::vector<std::string>{" a.dat"}; }},
                  {"a.dat,a.dat", [] {
                       return std::vector<std::string>{"a.dat", "a.dat"};
                   }}};
    for (const auto& each : kCases) {
        ASSERT_TRUE(Build(each.names)) << each.names;
        std::string lines;
        for (const std::string& name : each.listed())
            lines += Line(name, name == "a.dat" ? PlainCrc("first") : 0);
        EXPECT_EQ(lines + std::to_string(PlainCrc(lines)), Text()) << each.names;
        EXPECT_TRUE(Check()) << each.names;
    }
}

TEST_F(CrcTableTest, OfNoNamesIsEmptyAndAFailure)
{
    for (const char* names : {"", static_cast<const char*>(nullptr)}) {
        SetText("old");
        EXPECT_FALSE(CCrc::BuildCRCTable(names, Table().c_str()));
        EXPECT_TRUE(fs::exists(Table()));
        EXPECT_EQ("", Text());
        EXPECT_FALSE(Check());
    }
}

TEST_F(CrcTableTest, CannotBeWhereNoFileCanBe)
{
    for (const std::string& path :
         {m_folder.Path(), m_folder.Path("missing") + kSeparator + "t.crc", std::string()}) {
        EXPECT_FALSE(CCrc::BuildCRCTable("a.dat", path.c_str())) << path;
        EXPECT_FALSE(CCrc::CheckCRCTable(path.c_str())) << path;
    }
    EXPECT_FALSE(CCrc::BuildCRCTable("a.dat", nullptr));
    EXPECT_FALSE(CCrc::CheckCRCTable(nullptr));
}

TEST_F(CrcTableTest, ListsFilesOfFoldersBesideIt)
{
    fs::create_directories(m_folder.Path("data"));
    const std::string name = std::string("data") + kSeparator + "c.dat";
    m_folder.Write("data/c.dat", "in a folder");
    ASSERT_TRUE(Build("a.dat," + name));
    EXPECT_THAT(Text(), testing::HasSubstr(Line(name, PlainCrc("in a folder"))));
    EXPECT_TRUE(Check());
}

TEST_F(CrcTableTest, WithoutAFolderBelongsToTheCurrentOne)
{
    const InFolder current(m_folder.Path());
    ASSERT_TRUE(CCrc::BuildCRCTable("a.dat", "files.crc"));
    EXPECT_THAT(Text(), testing::StartsWith(Line("a.dat", PlainCrc("first"))));
    EXPECT_TRUE(CCrc::CheckCRCTable("files.crc"));
}

TEST_F(CrcTableTest, ThatListsItselfNeverMatches)
{
    ASSERT_TRUE(Build("files.crc"));
    EXPECT_THAT(Text(), testing::StartsWith("files.crc\t0\r\n"));  // it was empty then
    EXPECT_FALSE(Check());
}

TEST_F(CrcTableTest, SkipsLinesWithoutATabButTakesTheLastOneAsItsCrc)
{
    const std::string line = Line("a.dat", PlainCrc("first"));
    const std::string crc = std::to_string(PlainCrc(line));
    const struct {
        std::string text;
        bool isUnchanged;
    } cases[] = {{"a remark\r\n" + line + crc, true},
                 {line + "\r\n\r\n" + crc, true},
                 {line + "remark\r\n" + crc, true},
                 {line + crc + "\r\nremark", false},
                 {line + crc + "\r\n", false},  // the line after it is empty
                 {line + crc + "\r", true},
                 {line + "  +" + crc, true},
                 {line + crc + " and more", true},
                 {line + crc + "0", false},
                 {line, false},
                 {line + "no number", false},
                 {line + std::to_string(0x100000000ULL + PlainCrc(line)), false},
                 {crc, false},
                 {"0", true},  // of no files
                 {"a.dat\t\r\n" + std::to_string(PlainCrc("a.dat\t\r\n")), false},
                 {"none\tx\r\n" + std::to_string(PlainCrc("none\tx\r\n")), false}};
    for (const auto& each : cases) {
        SetText(each.text);
        EXPECT_EQ(each.isUnchanged, Check()) << testing::PrintToString(each.text);
    }
}

TEST_F(CrcTableTest, IsCheckedAsAlwaysHoweverDamaged)
{
    const std::map<std::string, std::uint32_t> crcs = {{"a.dat", PlainCrc("first")},
                                                       {"b.dat", PlainCrc(std::string(5000, 'b'))}};
    ASSERT_TRUE(Build("a.dat,b.dat,c.dat,a.dat"));
    const std::string whole = Text();
    static constexpr char kBytes[] = "\t\r\n0123456789-+ ,abdt.\xFF";  // and NUL
    std::mt19937 random(1);
    for (int i = 0; i < 300; ++i) {
        std::string text = whole;
        for (auto damages = random() % 3 + 1; damages > 0; --damages) {
            const std::size_t at = random() % text.size();
            text.replace(at, random() % 3, random() % 3, kBytes[random() % sizeof kBytes]);
        }
        SetText(text);
        ASSERT_EQ(qx::test::PlainCheck(Table().c_str(), crcs), Check())
            << testing::PrintToString(text);
    }
}

TEST_F(CrcTableTest, SurvivesLinesOfMegabytes)
{
    const std::string longName(10'000'000, 'x');
    ASSERT_TRUE(Build("a.dat," + longName));
    EXPECT_TRUE(Check());  // nothing has such a name, then as now
    SetText(longName);
    EXPECT_FALSE(Check());
    SetText(std::string(10'000'000, '\t') + "\r\n1");
    EXPECT_FALSE(Check());
    SetText("a.dat\t" + std::string(10'000'000, '9') + "\r\n1");
    EXPECT_FALSE(Check());
}

TEST_F(CrcTableTest, IsNotReadWhileItIsInUse)
{
    ASSERT_TRUE(Build("a.dat"));
    const qx::platform::File user(Table().c_str(), qx::platform::FileMode::ReadShared);
    EXPECT_EQ(!QX_WINDOWS, Check());
}

TEST_F(CrcTableTest, LargerThanAnyRealOneIsNotRead)
{
    SetLines(Line("a.dat", PlainCrc("first")), "\r");
    EXPECT_TRUE(Check());
    std::error_code error;
    fs::resize_file(Table(), (std::uint64_t{1} << 32) + 10, error);
    if (error)
        GTEST_SKIP() << "no room for a large file: " << error.message();
    EXPECT_FALSE(Check());
}

TEST_F(CrcTableTest, OfTenThousandFilesTellsItsProgress)
{
    constexpr std::size_t kCount = 10000;  // of 100 different ones
    std::string names;
    for (std::size_t i = 0; i < kCount; ++i) {
        const std::string name = std::to_string(i % 100) + ".dat";
        if (i < 100)
            m_folder.Write(name, "file " + name);
        names += (i > 0 ? "," : "") + name;
    }
    std::size_t told = 0;
    const auto progress = [&](std::size_t done, std::size_t count) {
        EXPECT_EQ(kCount, count);
        EXPECT_EQ(++told, done);
        return true;
    };
    ASSERT_TRUE(CCrc::BuildCRCTable(names.c_str(), Table().c_str(), progress));
    EXPECT_EQ(kCount, std::exchange(told, 0));
    EXPECT_TRUE(CCrc::CheckCRCTable(Table().c_str(), progress));
    EXPECT_EQ(kCount, std::exchange(told, 0));

    m_folder.Write("17.dat", "changed");
    EXPECT_FALSE(CCrc::CheckCRCTable(Table().c_str(), progress));
    EXPECT_EQ(kCount, told);  // a difference does not stop the check
}

TEST_F(CrcTableTest, StopsWhenItsProgressIsToldTo)
{
    const auto stopAfterTwo = [](std::size_t done, std::size_t) { return done < 2; };
    EXPECT_FALSE(CCrc::BuildCRCTable("a.dat,b.dat,c.dat", Table().c_str(), stopAfterTwo));
    EXPECT_EQ("", Text());
    ASSERT_TRUE(Build("a.dat,b.dat,c.dat"));
    EXPECT_FALSE(CCrc::CheckCRCTable(Table().c_str(), stopAfterTwo));
}

#include "platform/files.h"

#include "platform/clock.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

namespace qx::test {
namespace {

using namespace platform;

std::string ReadText(File& file, std::size_t size)
{
    std::string text(size, '\0');
    const auto count = file.Read(text.data(), size);
    return count ? text.substr(0, *count) : "(error)";
}

TEST(File, OpensAsItsModeSays)
{
    const struct {
        FileMode mode;
        bool existing, missing;    // opens
        const char* afterWriting;  // "+" to the existing file
    } cases[] = {
        {FileMode::Read, true, false, "old"},          {FileMode::ReadShared, true, false, "old"},
        {FileMode::ReadExclusive, true, false, "old"}, {FileMode::Create, true, true, "+"},
        {FileMode::CreateNew, false, true, "old"},     {FileMode::Append, true, true, "old+"},
    };
    for (const auto& [mode, existing, missing, afterWriting] : cases) {
        SCOPED_TRACE(static_cast<int>(mode));
        const TemporaryFolder folder;
        const std::string path = folder.Write("a", "old");
        File file(path.c_str(), mode);
        EXPECT_EQ(existing, static_cast<bool>(file));
        file.Write("+");
        EXPECT_EQ(existing, file.Close());
        EXPECT_EQ(afterWriting, folder.Read(path));
        EXPECT_EQ(missing, static_cast<bool>(File(folder.Path("b").c_str(), mode)));
        EXPECT_EQ(missing, FileExists(folder.Path("b").c_str()));
    }
}

TEST(File, OpensNoFolderNorNothing)
{
    const TemporaryFolder folder;
    for (const FileMode mode : {FileMode::Read, FileMode::Create, FileMode::Append}) {
        EXPECT_FALSE(File(folder.Path().c_str(), mode));
        EXPECT_FALSE(File(nullptr, mode));
        EXPECT_FALSE(File("", mode));
        EXPECT_FALSE(File(folder.Path("none/file").c_str(), mode));
    }
}

TEST(File, FailsWhenItIsNotOpen)
{
    const TemporaryFolder folder;
    File opened(folder.Write("a", "text").c_str(), FileMode::Read);
    const File taken = std::move(opened);
    File closed(folder.Path("a").c_str(), FileMode::Read);
    EXPECT_TRUE(closed.Close());
    File never;
    char byte;
    // NOLINTNEXTLINE(bugprone-use-after-move): that a moved-from file is not open is the point
    for (File* file : {&opened, &closed, &never}) {
        EXPECT_FALSE(*file);
        EXPECT_EQ(std::nullopt, file->Read(&byte, 1));
        EXPECT_FALSE(file->Write("x") || file->Write("") || file->Seek(0) || file->Flush());
        EXPECT_EQ(std::nullopt, file->Size());
        EXPECT_FALSE(file->Close());
    }
    EXPECT_EQ(4u, taken.Size());
}

TEST(File, ReadsFromWhereItStands)
{
    const TemporaryFolder folder;
    File file(folder.Write("a", std::string_view("12\0\r\n\x1A\xFF", 7)).c_str(), FileMode::Read);
    EXPECT_EQ(7u, file.Size());
    EXPECT_EQ("12", ReadText(file, 2));
    EXPECT_EQ(std::string_view("\0\r\n\x1A\xFF", 5), ReadText(file, 100));
    EXPECT_EQ("", ReadText(file, 1));
    EXPECT_TRUE(file.Seek(1));
    EXPECT_EQ("2", ReadText(file, 1));
    EXPECT_TRUE(file.Seek(1000));
    EXPECT_EQ("", ReadText(file, 1));
    EXPECT_FALSE(file.Seek(~std::uint64_t{0}));
}

TEST(File, AppendsAtTheEndWhoeverElseWrites)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("log");
    File first(path.c_str(), FileMode::Append), second(path.c_str(), FileMode::Append);
    EXPECT_TRUE(first.Write("1") && second.Write("22") && first.Seek(0) && first.Write("3"));
    EXPECT_TRUE(first.Flush() && second.Flush());
    File reader(path.c_str(), FileMode::ReadShared);
    EXPECT_EQ("1223", ReadText(reader, 10));
}

TEST(File, HoldsMoreThanFourGigabytes)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("large");
    constexpr std::uint64_t kFar = 5'000'000'000;
    File writer(path.c_str(), FileMode::Create);
    ASSERT_TRUE(writer.Seek(kFar) && writer.Write("far") && writer.Close());
    File reader(path.c_str(), FileMode::Read);
    EXPECT_EQ(kFar + 3, reader.Size());
    EXPECT_TRUE(reader.Seek(kFar + 1));
    EXPECT_EQ("ar", ReadText(reader, 10));
    const auto entries = ListDirectory(folder.Path().c_str());
    ASSERT_TRUE(entries);
    EXPECT_EQ(kFar + 3, entries->at(0).size);
}

TEST(MoveOver, ReplacesOrMoves)
{
    const TemporaryFolder folder;
    const std::string from = folder.Write("new", "new text"), to = folder.Write("old", "old");
    EXPECT_TRUE(MoveOver(from.c_str(), to.c_str()));
    EXPECT_EQ("new text", folder.Read(to));
    EXPECT_FALSE(FileExists(from.c_str()));
    const std::string other = folder.Path("other");
    EXPECT_TRUE(MoveOver(to.c_str(), other.c_str()));
    EXPECT_EQ("new text", folder.Read(other));
}

TEST(MoveOver, ChangesNothingWhenItFails)
{
    const TemporaryFolder folder;
    const std::string from = folder.Write("new", "new"), to = folder.Write("old", "old");
    ASSERT_TRUE(MakeDirectory(folder.Path("sub").c_str()));
    EXPECT_FALSE(MoveOver(folder.Path("none").c_str(), to.c_str()));
    EXPECT_FALSE(MoveOver(from.c_str(), folder.Path("none/file").c_str()));
    EXPECT_FALSE(MoveOver(from.c_str(), folder.Path("sub").c_str()));
    EXPECT_FALSE(MoveOver(from.c_str(), ""));
    EXPECT_FALSE(MoveOver(from.c_str(), nullptr));
    EXPECT_FALSE(MoveOver(nullptr, to.c_str()));
    EXPECT_EQ("new", folder.Read(from));
    EXPECT_EQ("old", folder.Read(to));
    EXPECT_TRUE(DirectoryExists(folder.Path("sub").c_str()));
}

TEST(Names, AreOfFilesFoldersOrNothing)
{
    const TemporaryFolder folder;
    const struct {
        std::string path;
        bool exists, isFolder;
    } cases[] = {
        {folder.Path(), true, true},
        {folder.Write("file", ""), true, false},
        {folder.Path("none/sub"), false, false},
        {"", false, false},
    };
    for (const auto& [path, exists, isFolder] : cases) {
        EXPECT_EQ(exists, FileExists(path.c_str())) << path;
        EXPECT_EQ(isFolder, DirectoryExists(path.c_str())) << path;
        EXPECT_EQ(isFolder, ListDirectory(path.c_str()).has_value()) << path;
        EXPECT_FALSE(MakeDirectory(path.c_str())) << path;
        EXPECT_EQ(exists && !isFolder, RemoveFile(path.c_str())) << path;
        EXPECT_EQ(isFolder, FileExists(path.c_str())) << path;
    }
    EXPECT_TRUE(MakeDirectory(folder.Path("made").c_str()));
    EXPECT_TRUE(DirectoryExists(folder.Path("made").c_str()));
    EXPECT_FALSE(FileExists(nullptr) || DirectoryExists(nullptr) || ListDirectory(nullptr));
    EXPECT_FALSE(RemoveFile(nullptr) || MakeDirectory(nullptr));
}

TEST(ListDirectory, GivesEveryEntrySorted)
{
    const TemporaryFolder folder;
    const auto empty = ListDirectory(folder.Path().c_str());
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->empty());

    for (const char* name : {"b", "a.txt", "C", ".hidden", "a"})
        folder.Write(name, name);
    ASSERT_TRUE(MakeDirectory(folder.Path("dir").c_str()));
    const auto entries = ListDirectory((folder.Path() + "/").c_str());
    ASSERT_TRUE(entries);
    std::vector<std::string> names;
    for (const auto& entry : *entries)
        names.push_back(entry.name);
    EXPECT_THAT(names, testing::ElementsAre(".hidden", "C", "a", "a.txt", "b", "dir"));
    EXPECT_EQ(5u, entries->at(3).size);
    EXPECT_FALSE(entries->at(3).isDirectory);
    EXPECT_TRUE(entries->at(5).isDirectory);
    EXPECT_LE(std::abs(SecondsSince1970() - entries->at(3).modified), 60);

    EXPECT_FALSE(ListDirectory(folder.Path("a").c_str()));
    EXPECT_FALSE(ListDirectory(folder.Path("*").c_str()));
}

TEST(TemporaryNameBeside, IsNewAndInTheSameFolder)
{
    const TemporaryFolder folder;
    const std::string longName(240, 'n');
    for (const std::string& name : {std::string("log.txt"), longName, std::string()}) {
        const std::string path = folder.Path() + "/" + name;
        const std::string first = TemporaryNameBeside(path.c_str());
        EXPECT_EQ(folder.Path() + "/", first.substr(0, folder.Path().size() + 1));
        EXPECT_FALSE(FileExists(first.c_str()));
        EXPECT_NE(first, TemporaryNameBeside(path.c_str()));
#if QX_WINDOWS
        if (name == longName)
            continue;  // the whole path would be too long
#endif
        EXPECT_TRUE(File(first.c_str(), FileMode::CreateNew)) << first;
    }
    EXPECT_EQ(std::string::npos, TemporaryNameBeside("bare").find_first_of("/\\"));
}

TEST(RemoveTemporariesBeside, RemovesSuchNamesOfThatFileOnly)
{
    const TemporaryFolder folder;
    const std::string log = folder.Write("log", "");
    folder.Write(std::filesystem::path(TemporaryNameBeside(log.c_str())).filename().string(), "");
    const char* const others[] = {"log.txt",           "log.tmp",  "log.0g.tmp",  "log2.00.tmp",
                                  "log.123456789.tmp", "a.12.tmp", "log.12.tmp2", "log..tmp"};
    for (const char* name : others)
        folder.Write(name, "");
    RemoveTemporariesBeside(log.c_str());
    EXPECT_EQ(1 + std::size(others), ListDirectory(folder.Path().c_str())->size());
    for (const char* name : others)
        EXPECT_TRUE(FileExists(folder.Path(name).c_str())) << name;
    RemoveTemporariesBeside(nullptr);
    RemoveTemporariesBeside(folder.Path("none/log").c_str());
}

}  // namespace
}  // namespace qx::test

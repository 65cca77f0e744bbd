// A disk in memory that fails where the test wants it to.
#pragma once

#include "doubles/in_force.h"
#include "platform/files.h"
#include "platform/name_pattern.h"
#include "platform/path_text.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>

namespace qx::test {

// Paths are compared as they stand; any file may be opened any number of times.
struct FilesDouble : InForce<FilesDouble> {
    using Contents = std::shared_ptr<std::string>;
    struct OpenFile {
        std::string path;
        Contents contents;
        platform::FileMode mode;
        std::size_t position = 0;
    };

    std::map<std::string, Contents> files;
    std::set<std::string> folders;             // as far as there are no files in them
    std::size_t capacity = std::string::npos;  // bytes that all files may hold together
    std::vector<OpenFile> opened;              // handles are indices; closed files stay

    // What was called, in order: "open new", "write new", "move new old" ... The kinds are open,
    // read, write, flush, close, move, remove, makedir.
    std::vector<std::string> calls;
    // The n-th call of a kind from now on fails, 1 being the next: failing["write"] = 2.
    std::map<std::string, int> failing;
    // After so many more calls all fail, as if the machine had gone down; never when negative.
    int callsUntilCrash = -1;

    void Put(const std::string& path, std::string_view text)
    {
        files[path] = std::make_shared<std::string>(text);
    }
    // The text of a file, "(none)" when there is no such file.
    std::string Text(const std::string& path) const
    {
        const auto found = files.find(path);
        return found == files.end() ? "(none)" : *found->second;
    }
    std::size_t Used() const
    {
        std::size_t sum = 0;
        for (const auto& [path, contents] : files)
            sum += contents->size();
        return sum;
    }
    // Notes a call; false when it is to fail.
    bool Call(const std::string& kind, const std::string& what)
    {
        calls.push_back(kind + " " + what);
        if (callsUntilCrash == 0)
            return false;
        callsUntilCrash -= callsUntilCrash > 0;
        const auto fault = failing.find(kind);
        return fault == failing.end() || --fault->second != 0;
    }
};

inline FilesDouble& Disk()
{
    return FilesDouble::Current();
}

// The open file of a handle; null for none.
inline FilesDouble::OpenFile* OpenedFile(std::intptr_t handle)
{
    auto& opened = Disk().opened;
    const auto index = static_cast<std::size_t>(handle);
    return index < opened.size() ? &opened[index] : nullptr;
}

inline bool IsForReading(platform::FileMode mode)
{
    using enum platform::FileMode;
    return mode == Read || mode == ReadShared || mode == ReadExclusive;
}

inline std::intptr_t Open(const std::string& path, platform::FileMode mode)
{
    FilesDouble& disk = Disk();
    const bool exists = disk.files.contains(path);
    const bool isRefused =
        IsForReading(mode) ? !exists : exists && mode == platform::FileMode::CreateNew;
    if (!disk.Call("open", path) || path.empty() || isRefused)
        return -1;
    if (!exists)
        disk.Put(path, "");
    if (mode == platform::FileMode::Create || mode == platform::FileMode::CreateExclusive)
        disk.files[path]->clear();
    disk.opened.push_back({path, disk.files[path], mode});
    return static_cast<std::intptr_t>(disk.opened.size()) - 1;
}

}  // namespace qx::test

namespace qx::platform {

File::File(const char* path, FileMode mode) : m_handle(test::Open(path ? path : "", mode)) {}

// Every error is number 2.
File::File(const char* path, FileMode mode, std::uint32_t& systemError) : File(path, mode)
{
    systemError = *this ? 0 : 2;
}

std::optional<std::size_t> File::Read(void* buffer, std::size_t size)
{
    auto* file = test::OpenedFile(m_handle);
    if (!file || !test::Disk().Call("read", file->path) || !test::IsForReading(file->mode))
        return std::nullopt;
    const std::string& text = *file->contents;
    const std::size_t count =
        text.copy(static_cast<char*>(buffer), size, std::min(file->position, text.size()));
    file->position += count;
    return count;
}

// Writes as much as the disk takes.
bool File::Write(std::string_view bytes)
{
    auto* file = test::OpenedFile(m_handle);
    if (!file || !test::Disk().Call("write", file->path) || test::IsForReading(file->mode))
        return false;
    std::string& text = *file->contents;
    if (file->mode == FileMode::Append)
        file->position = text.size();
    const std::size_t room =
        test::Disk().capacity - std::min(test::Disk().capacity, test::Disk().Used());
    const std::string_view fitting = bytes.substr(0, room);
    text.resize(std::max(text.size(), file->position));
    text.replace(file->position, fitting.size(), fitting);
    file->position += fitting.size();
    return fitting.size() == bytes.size();
}

bool File::Seek(std::uint64_t offset)
{
    auto* file = test::OpenedFile(m_handle);
    if (file)
        file->position = static_cast<std::size_t>(offset);
    return file;
}

std::optional<std::uint64_t> SizeOf(std::intptr_t handle)
{
    const auto* file = test::OpenedFile(handle);
    return file ? std::optional<std::uint64_t>(file->contents->size()) : std::nullopt;
}

std::optional<std::uint64_t> File::Size() const
{
    return SizeOf(m_handle);
}

bool File::Flush()
{
    const auto* file = test::OpenedFile(m_handle);
    return file && test::Disk().Call("flush", file->path);
}

bool File::Close()
{
    const auto* file = test::OpenedFile(std::exchange(m_handle, kNone));
    return file && test::Disk().Call("close", file->path);
}

// "." holds the files without a folder.
std::optional<std::vector<DirectoryEntry>> ListDirectory(const char* path)
{
    std::vector<DirectoryEntry> entries;
    std::string folder = path ? path : "";
    if (folder.size() > 1 && folder == FolderPart(folder))
        folder.pop_back();
    for (const auto& [name, contents] : test::Disk().files) {
        const std::string_view parent = FolderPart(name);
        if ((parent.empty() ? "." : parent.substr(0, parent.size() - 1)) == folder)
            entries.push_back({name.substr(parent.size()), false, contents->size(), 0});
    }
    if (entries.empty() && folder != "." && !test::Disk().folders.contains(folder))
        return std::nullopt;
    return entries;
}

std::vector<std::string> FindNames(const char* pattern)
{
    const std::string path = pattern ? pattern : "";
    const std::string folder(FolderPart(path));
    std::vector<std::string> names;
    for (const DirectoryEntry& entry : ListDirectory(folder.empty() ? "." : folder.c_str())
                                           .value_or(std::vector<DirectoryEntry>())) {
        if (MatchesPattern(entry.name, path.substr(folder.size())))
            names.push_back(entry.name);
    }
    return names;
}

bool DirectoryExists(const char* path)
{
    return ListDirectory(path).has_value();
}

bool FileExists(const char* path)
{
    return path && (test::Disk().files.contains(path) || DirectoryExists(path));
}

bool RemoveFile(const char* path)
{
    return path && test::Disk().Call("remove", path) && test::Disk().files.erase(path) == 1;
}

bool MoveOver(const char* from, const char* to)
{
    if (!from || !to || !test::Disk().Call("move", std::string(from) + " " + to))
        return false;
    const auto node = test::Disk().files.extract(from);
    if (node)
        test::Disk().files[to] = node.mapped();
    return !node.empty();
}

bool MakeDirectory(const char* path)
{
    return path && test::Disk().Call("makedir", path) && test::Disk().folders.insert(path).second;
}

// The path with ".tmp" behind it, as often as is needed.
std::string TemporaryNameBeside(const char* path)
{
    std::string name = path ? path : "";
    do
        name += ".tmp";
    while (FileExists(name.c_str()));
    return name;
}

void RemoveTemporariesBeside(const char* path)
{
    for (std::string name = path ? path : ""; FileExists((name += ".tmp").c_str());)
        RemoveFile(name.c_str());
}

std::optional<std::size_t> ReadFrom(int handle, std::uint64_t offset, void* buffer,
                                    std::size_t size)
{
    auto* file = test::OpenedFile(handle);
    if (!file || !test::Disk().Call("read", file->path))
        return std::nullopt;
    file->position = static_cast<std::size_t>(offset);
    const std::size_t start = std::min(file->position, file->contents->size());
    return file->contents->copy(static_cast<char*>(buffer), size, start);
}

}  // namespace qx::platform

#define _FILE_OFFSET_BITS 64  // large files in 32-bit builds too
#include "platform/files.h"

#include "platform/name_pattern.h"
#include "platform/path_text.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace qx::platform {

static_assert(sizeof(off_t) == 8);

// Repeats a system call for as long as a signal interrupts it.
template <typename Call>
static auto Uninterrupted(Call call)
{
    auto result = call();
    while (result == -1 && errno == EINTR)
        result = call();
    return result;
}

static int OpenFlags(FileMode mode)
{
    switch (mode) {
        case FileMode::Create:
        case FileMode::CreateExclusive:
            return O_WRONLY | O_CREAT | O_TRUNC;
        case FileMode::CreateNew:
            return O_WRONLY | O_CREAT | O_EXCL;
        case FileMode::Append:
            return O_WRONLY | O_CREAT | O_APPEND;
        default:
            return O_RDONLY;
    }
}

static int Open(const char* path, int flags)
{
    if (!path)
        return -1;
    return Uninterrupted([=] { return ::open(path, flags | O_CLOEXEC | O_NOCTTY, 0666); });
}

static bool IsDirectory(int descriptor)
{
    struct stat status;
    return ::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode);
}

static int Descriptor(std::intptr_t handle)
{
    return static_cast<int>(handle);
}

File::File(const char* path, FileMode mode) : m_handle(Open(path, OpenFlags(mode)))
{
    if (*this && IsDirectory(Descriptor(m_handle))) {
        Close();
        errno = EISDIR;
    }
}

File::File(const char* path, FileMode mode, std::uint32_t& systemError)
    : File(path ? path : "", mode)
{
    systemError = *this ? 0 : static_cast<std::uint32_t>(errno);
}

static std::optional<std::size_t> ReadAll(int descriptor, void* buffer, std::size_t size)
{
    std::size_t done = 0;
    while (done < size) {
        char* to = static_cast<char*>(buffer) + done;
        const ssize_t count = Uninterrupted([&] { return ::read(descriptor, to, size - done); });
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

std::optional<std::size_t> File::Read(void* buffer, std::size_t size)
{
    if (!*this)
        return std::nullopt;
    return ReadAll(Descriptor(m_handle), buffer, size);
}

bool File::Write(std::string_view bytes)
{
    if (!*this)
        return false;
    while (!bytes.empty()) {
        const ssize_t count = Uninterrupted(
            [&] { return ::write(Descriptor(m_handle), bytes.data(), bytes.size()); });
        if (count <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

static bool SeekTo(int descriptor, std::uint64_t offset)
{
    if (offset > static_cast<std::uint64_t>(std::numeric_limits<off_t>::max()))
        return false;
    return ::lseek(descriptor, static_cast<off_t>(offset), SEEK_SET) != -1;
}

bool File::Seek(std::uint64_t offset)
{
    return *this && SeekTo(Descriptor(m_handle), offset);
}

std::optional<std::uint64_t> SizeOf(std::intptr_t handle)
{
    struct stat status;
    if (::fstat(Descriptor(handle), &status) != 0)
        return std::nullopt;
    return static_cast<std::uint64_t>(status.st_size);
}

std::optional<std::uint64_t> File::Size() const
{
    return *this ? SizeOf(m_handle) : std::nullopt;
}

// Devices and pipes, which have no disk to wait for, say EINVAL or EROFS.
static bool Synchronise(int descriptor)
{
    return Uninterrupted([=] { return ::fsync(descriptor); }) == 0 || errno == EINVAL ||
           errno == EROFS;
}

bool File::Flush()
{
    return *this && Synchronise(Descriptor(m_handle));
}

bool File::Close()
{
    if (!*this)
        return false;
    // An interrupted close has closed the descriptor all the same.
    const int result = ::close(Descriptor(std::exchange(m_handle, kNone)));
    return result == 0 || errno == EINTR;
}

static bool Status(const char* path, struct stat& status)
{
    return path && ::stat(path, &status) == 0;
}

bool FileExists(const char* path)
{
    struct stat status;
    return Status(path, status);
}

bool DirectoryExists(const char* path)
{
    struct stat status;
    return Status(path, status) && S_ISDIR(status.st_mode);
}

bool RemoveFile(const char* path)
{
    return path && ::unlink(path) == 0;
}

bool MakeDirectory(const char* path)
{
    return path && ::mkdir(path, 0777) == 0;
}

// Closes a descriptor at the end of its scope.
struct ScopedDescriptor {
    int value;
    ~ScopedDescriptor()
    {
        if (value >= 0)
            ::close(value);
    }
};

static void SynchroniseFolderOf(const char* path)
{
    const std::string folder(FolderPart(path));
    const ScopedDescriptor descriptor{Open(folder.empty() ? "." : folder.c_str(), O_RDONLY)};
    if (descriptor.value >= 0)
        Synchronise(descriptor.value);
}

bool MoveOver(const char* from, const char* to)
{
    if (!from || !to)
        return false;
    const ScopedDescriptor source{Open(from, O_RDONLY)};
    struct stat old;
    if (source.value < 0 || IsDirectory(source.value) || !Synchronise(source.value))
        return false;
    // A private file stays private when its new version takes its place; what is no file (a device,
    // say) is not replaced by one.
    if (::stat(to, &old) == 0) {
        if (!S_ISREG(old.st_mode))
            return false;
        ::fchmod(source.value, old.st_mode & 07777);
    }
    if (::rename(from, to) != 0)
        return false;
    SynchroniseFolderOf(to);
    return true;
}

// The status of a folder's entry, of a link itself when it leads nowhere; false when it has gone.
static bool EntryStatus(DIR* folder, const char* name, struct stat& status)
{
    const int descriptor = ::dirfd(folder);
    return ::fstatat(descriptor, name, &status, 0) == 0 ||
           ::fstatat(descriptor, name, &status, AT_SYMLINK_NOFOLLOW) == 0;
}

static void AddEntry(std::vector<DirectoryEntry>& entries, DIR* folder, const char* name)
{
    struct stat status;
    const std::string_view text = name;
    if (text == "." || text == ".." || !EntryStatus(folder, name, status))
        return;
    entries.push_back({name, S_ISDIR(status.st_mode), static_cast<std::uint64_t>(status.st_size),
                       static_cast<std::int64_t>(status.st_mtime)});
}

std::optional<std::vector<DirectoryEntry>> ListDirectory(const char* path)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(path ? ::opendir(path) : nullptr, ::closedir);
    if (!folder)
        return std::nullopt;
    std::vector<DirectoryEntry> entries;
    errno = 0;
    while (const dirent* entry = ::readdir(folder.get())) {
        AddEntry(entries, folder.get(), entry->d_name);
        errno = 0;
    }
    if (errno != 0)
        return std::nullopt;
    std::sort(entries.begin(), entries.end(),
              [](const auto& a, const auto& b) { return a.name < b.name; });
    return entries;
}

std::vector<std::string> FindNames(const char* pattern)
{
    const std::string_view path = pattern ? pattern : "";
    const std::string folder(FolderPart(path));
    std::vector<std::string> names;
    for (DirectoryEntry& entry : ListDirectory(folder.empty() ? "." : folder.c_str())
                                     .value_or(std::vector<DirectoryEntry>())) {
        if (MatchesPattern(entry.name, path.substr(folder.size())))
            names.push_back(std::move(entry.name));
    }
    return names;
}

std::optional<std::size_t> ReadFrom(int handle, std::uint64_t offset, void* buffer,
                                    std::size_t size)
{
    if (!SeekTo(handle, offset))
        return std::nullopt;
    return ReadAll(handle, buffer, size);
}

}  // namespace qx::platform

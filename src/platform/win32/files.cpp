#include "platform/files.h"

#include "win32/handle.h"

#include <algorithm>
#include <limits>

namespace qx::platform {

struct OpenArguments {
    DWORD access, sharing, disposition;
};

static OpenArguments ArgumentsOf(FileMode mode)
{
    switch (mode) {
        case FileMode::ReadShared:
            return {GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING};
        case FileMode::ReadExclusive:
            return {GENERIC_READ, 0, OPEN_EXISTING};
        case FileMode::Create:
            return {GENERIC_WRITE, FILE_SHARE_WRITE, CREATE_ALWAYS};
        case FileMode::CreateExclusive:
            return {GENERIC_WRITE, 0, CREATE_ALWAYS};
        case FileMode::CreateNew:
            return {GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW};
        case FileMode::Append:
            return {FILE_APPEND_DATA | SYNCHRONIZE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    OPEN_ALWAYS};
        default:
            return {GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING};
    }
}

static HANDLE Open(const char* path, const OpenArguments& arguments)
{
    if (!path)
        return INVALID_HANDLE_VALUE;
    return ::CreateFileA(path, arguments.access, arguments.sharing, nullptr, arguments.disposition,
                         FILE_ATTRIBUTE_ARCHIVE | FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
}

static HANDLE Handle(std::intptr_t handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

File::File(const char* path, FileMode mode)
    : m_handle(reinterpret_cast<std::intptr_t>(Open(path, ArgumentsOf(mode))))
{
}

File::File(const char* path, FileMode mode, std::uint32_t& systemError)
    : File(path ? path : "", mode)
{
    systemError = *this ? 0 : ::GetLastError();
}

// One call transfers at most this much; a multiple of every block size.
static constexpr std::size_t kLargestPortion = std::size_t{1} << 30;

static DWORD Portion(std::size_t size)
{
    return static_cast<DWORD>(std::min(size, kLargestPortion));
}

// A pipe whose other end is closed, and some devices, report their end as an error.
static bool IsEndOfFile(DWORD error)
{
    return error == ERROR_HANDLE_EOF || error == ERROR_BROKEN_PIPE;
}

static std::optional<std::size_t> ReadAll(HANDLE handle, void* buffer, std::size_t size)
{
    std::size_t done = 0;
    DWORD count = 1;
    while (done < size && count != 0) {
        char* to = static_cast<char*>(buffer) + done;
        if (!::ReadFile(handle, to, Portion(size - done), &count, nullptr)) {
            if (!IsEndOfFile(::GetLastError()))
                return std::nullopt;
            count = 0;
        }
        done += count;
    }
    return done;
}

std::optional<std::size_t> File::Read(void* buffer, std::size_t size)
{
    if (!*this)
        return std::nullopt;
    return ReadAll(Handle(m_handle), buffer, size);
}

bool File::Write(std::string_view bytes)
{
    if (!*this)
        return false;
    while (!bytes.empty()) {
        DWORD count = 0;
        if (!::WriteFile(Handle(m_handle), bytes.data(), Portion(bytes.size()), &count, nullptr) ||
            count == 0)
            return false;
        bytes.remove_prefix(count);
    }
    return true;
}

static bool SeekTo(HANDLE handle, std::uint64_t offset)
{
    if (offset > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
        return false;
    LARGE_INTEGER distance;
    distance.QuadPart = static_cast<std::int64_t>(offset);
    return ::SetFilePointerEx(handle, distance, nullptr, FILE_BEGIN) != 0;
}

bool File::Seek(std::uint64_t offset)
{
    return *this && SeekTo(Handle(m_handle), offset);
}

std::optional<std::uint64_t> SizeOf(std::intptr_t handle)
{
    LARGE_INTEGER size;
    if (!::GetFileSizeEx(Handle(handle), &size))
        return std::nullopt;
    return static_cast<std::uint64_t>(size.QuadPart);
}

std::optional<std::uint64_t> File::Size() const
{
    return *this ? SizeOf(m_handle) : std::nullopt;
}

bool File::Flush()
{
    return *this && ::FlushFileBuffers(Handle(m_handle));
}

bool File::Close()
{
    return *this && ::CloseHandle(Handle(std::exchange(m_handle, kNone)));
}

static DWORD Attributes(const char* path)
{
    return path ? ::GetFileAttributesA(path) : INVALID_FILE_ATTRIBUTES;
}

bool FileExists(const char* path)
{
    return Attributes(path) != INVALID_FILE_ATTRIBUTES;
}

bool DirectoryExists(const char* path)
{
    const DWORD attributes = Attributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool RemoveFile(const char* path)
{
    return path && ::DeleteFileA(path);
}

bool MakeDirectory(const char* path)
{
    return path && ::CreateDirectoryA(path, nullptr);
}

static bool FlushContents(const char* path)
{
    const win32::FileHandle file(
        Open(path, {GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING}));
    return file && ::FlushFileBuffers(file.get());
}

bool MoveOver(const char* from, const char* to)
{
    return from && to && FlushContents(from) &&
           ::MoveFileExA(from, to, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}

static std::int64_t SecondsSince1970(const FILETIME& time)
{
    constexpr std::int64_t kTicksPerSecond = 10'000'000;  // from 1601 on
    constexpr std::int64_t kFrom1601To1970 = 11'644'473'600;
    const auto ticks = static_cast<std::int64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    return ticks / kTicksPerSecond - kFrom1601To1970;
}

static void AddEntry(std::vector<DirectoryEntry>& entries, const WIN32_FIND_DATAA& data)
{
    const std::string_view name = data.cFileName;
    if (name == "." || name == "..")
        return;
    entries.push_back({data.cFileName, (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                       static_cast<std::uint64_t>(data.nFileSizeHigh) << 32 | data.nFileSizeLow,
                       SecondsSince1970(data.ftLastWriteTime)});
}

static std::string AllEntriesOf(const std::string& folder)
{
    const bool isComplete = folder.back() == '/' || folder.back() == ':' || folder.back() == '\\';
    return folder + (isComplete ? "*" : "\\*");
}

std::optional<std::vector<DirectoryEntry>> ListDirectory(const char* path)
{
    // The root of an empty disk has not even "." and "..": nothing is found there.
    if (!DirectoryExists(path))
        return std::nullopt;
    std::vector<DirectoryEntry> entries;
    WIN32_FIND_DATAA data;
    const std::string pattern = AllEntriesOf(path);
    const win32::FindHandle find(::FindFirstFileA(pattern.c_str(), &data));
    if (find) {
        do
            AddEntry(entries, data);
        while (::FindNextFileA(find.get(), &data));
    }
    const DWORD error = ::GetLastError();
    if (error != (find ? ERROR_NO_MORE_FILES : ERROR_FILE_NOT_FOUND))
        return std::nullopt;
    std::sort(entries.begin(), entries.end(),
              [](const auto& a, const auto& b) { return a.name < b.name; });
    return entries;
}

std::vector<std::string> FindNames(const char* pattern)
{
    std::vector<std::string> names;
    WIN32_FIND_DATAA data;
    const win32::FindHandle find(::FindFirstFileA(pattern ? pattern : "", &data));
    if (find) {
        do
            names.emplace_back(data.cFileName);
        while (::FindNextFileA(find.get(), &data));
    }
    return names;
}

std::optional<std::size_t> ReadFrom(int handle, std::uint64_t offset, void* buffer,
                                    std::size_t size)
{
    const HANDLE file = Handle(handle);
    if (!SeekTo(file, offset))
        return std::nullopt;
    return ReadAll(file, buffer, size);
}

}  // namespace qx::platform

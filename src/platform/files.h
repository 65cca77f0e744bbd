// Files and folders as the library needs them.
//
// Paths are NUL-terminated 8-bit texts: in the process's ANSI code page on Windows, as the file
// system has them elsewhere. A null or empty path names nothing and every function fails on it.
// Sizes and offsets are 64-bit in every build. Nothing here shows a message or throws (but for
// memory); system error codes are not passed on, but where a function says so.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qx::platform {

// What others may do meanwhile is enforced on Windows only.
enum class FileMode {
    Read,             // existing file; others may read
    ReadShared,       // existing file; others may read and write, a log that is being written say
    ReadExclusive,    // existing file; nobody else may open it
    Create,           // new or emptied file, for writing; others may write
    CreateExclusive,  // new or emptied file, for writing; nobody else may open it
    CreateNew,        // new file, for writing; fails when there is one; others may read
    Append,           // existing or new, every write goes to its end; others may read and write
};

// An open file, closed by the destructor. Move-only; a moved-from file is not open. Folders cannot
// be opened. Every operation on a file that is not open fails.
class File {
  public:
    File() = default;
    File(const char* path, FileMode mode);  // check with operator bool
    // Also tells why a file did not open: 0 when it did, otherwise the system's error code, of
    // GetLastError on Windows, of errno elsewhere. For an interface that hands it on as a number.
    File(const char* path, FileMode mode, std::uint32_t& systemError);
    File(File&& other) noexcept : m_handle(std::exchange(other.m_handle, kNone)) {}
    File& operator=(File&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    ~File() { Close(); }

    explicit operator bool() const { return m_handle != kNone; }

    // Reads from the current position. The number of bytes read: fewer than asked for at the end of
    // the file only, whatever portions the system delivers; nothing on an error.
    std::optional<std::size_t> Read(void* buffer, std::size_t size);
    // Writes all of the bytes, or returns false; then part of them may have been written.
    bool Write(std::string_view bytes);
    // Sets the position of the next read or write, from the start of the file.
    bool Seek(std::uint64_t offset);
    std::optional<std::uint64_t> Size() const;
    // Everything written is on the disk when this returns true.
    bool Flush();
    // False when a delayed write failed, or nothing was open. The file is closed in any case.
    bool Close();

  private:
    static constexpr std::intptr_t kNone = -1;
    std::intptr_t m_handle = kNone;
};

struct DirectoryEntry {
    std::string name;  // without the folder
    bool isDirectory;
    std::uint64_t size;     // in bytes; of no meaning for a folder
    std::int64_t modified;  // seconds since 1970 UTC
};

bool FileExists(const char* path);       // a file or a folder
bool DirectoryExists(const char* path);  // a folder
bool RemoveFile(const char* path);       // false for a folder, and when there is none
// `from` takes the place of `to` in one step: at every moment, also after a crash, `to` is the old
// or the new file in full. Both lie on one disk; `to` need not exist. When it returns false, `to`
// is unchanged and `from` is still there.
bool MoveOver(const char* from, const char* to);
bool MakeDirectory(const char* path);  // its parent must exist; false when it exists itself
// The entries of a folder, without "." and "..", sorted by the bytes of their names; nothing when
// it cannot be read.
std::optional<std::vector<DirectoryEntry>> ListDirectory(const char* path);
// The names, without the folder, that a pattern finds: a path whose last part may have * for any
// characters and ? for one; *.* finds all. On Windows as the system finds them and in its order,
// with "." and ".."; elsewhere as ListDirectory does.
std::vector<std::string> FindNames(const char* pattern);
// A name in the folder of `path` that no file has at this moment, made from its name. To be opened
// with FileMode::CreateNew, as another process may take the name.
std::string TemporaryNameBeside(const char* path);
// Removes the files under such names: what a process left behind that ended before it could move
// its new version of `path` into place. A process that is about to do so now finds that it cannot.
void RemoveTemporariesBeside(const char* path);

// The size of a file that the application opened itself: a HANDLE on Windows, a descriptor of open
// elsewhere. Nothing on an error.
std::optional<std::uint64_t> SizeOf(std::intptr_t handle);
// Reads up to `size` bytes at an absolute offset from a file that the application opened itself: a
// handle of _lopen on Windows, a descriptor of open elsewhere. The number of bytes read, fewer at
// the end of the file only; nothing on an error. The file's position is then behind those bytes.
std::optional<std::size_t> ReadFrom(int handle, std::uint64_t offset, void* buffer,
                                    std::size_t size);

}  // namespace qx::platform

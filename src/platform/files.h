// Files and folders as the library needs them. Paths are in the process's 8-bit code page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qx::platform {

enum class FileMode {
    Read,           // existing file; others may read
    ReadExclusive,  // existing file; nobody else may open it meanwhile (where the system can)
    Create,         // new or emptied file, for writing; others may write
    CreateNew,      // new file, for writing; fails when there is one
    Append,         // existing or new file, every write goes to its end
};

// An open file; closed by the destructor. Move-only.
class File {
 public:
    File() = default;
    File(const char* path, FileMode mode);  // check with operator bool
    File(File&& other) noexcept;
    File& operator=(File&& other) noexcept;
    ~File();

    explicit operator bool() const { return m_handle != kNone; }
    // Bytes read, fewer than asked for at the end of the file only; nothing on an error.
    std::optional<std::size_t> Read(void* buffer, std::size_t size);
    bool Write(std::string_view bytes);  // all of them, or false
    bool Seek(std::uint64_t offset);     // from the start
    std::optional<std::uint64_t> Size() const;
    bool Flush();  // everything written is on the disk when it returns true
    bool Close();  // false when a delayed write failed; the file is closed in any case

 private:
    static constexpr std::intptr_t kNone = -1;
    std::intptr_t m_handle = kNone;
};

struct DirectoryEntry {
    std::string name;  // without the folder
    bool isDirectory;
    std::uint64_t size;
    std::int64_t modified;  // seconds since 1970 UTC
};

bool FileExists(const char* path);       // a file or a folder
bool DirectoryExists(const char* path);  // a folder
bool RemoveFile(const char* path);
// `from` takes the place of `to` in one step: at every moment `to` is the old or the new file.
bool MoveOver(const char* from, const char* to);
bool MakeDirectory(const char* path);  // its parent must exist
// The entries of a folder, without "." and "..", sorted by name; nothing when it cannot be read.
std::optional<std::vector<DirectoryEntry>> ListDirectory(const char* path);
// A name in the folder of `path` that no file has at this moment, made from its name.
std::string TemporaryNameBeside(const char* path);

}  // namespace qx::platform

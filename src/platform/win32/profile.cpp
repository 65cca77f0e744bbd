#include "platform/profile.h"

#include "platform/files.h"
#include "platform/path_text.h"

#include <utility>

namespace qx::platform {

namespace {

// Processes that use this library take turns.
class WritersTurn {
  public:
    WritersTurn() : m_mutex(::CreateMutexA(nullptr, FALSE, "Local\\QXUtility.Profiles"))
    {
        if (m_mutex)
            ::WaitForSingleObject(m_mutex, INFINITE);  // or abandoned by a killed process
    }
    WritersTurn(const WritersTurn&) = delete;
    WritersTurn& operator=(const WritersTurn&) = delete;
    ~WritersTurn()
    {
        if (m_mutex) {
            ::ReleaseMutex(m_mutex);
            ::CloseHandle(m_mutex);
        }
    }

  private:
    HANDLE m_mutex;
};

bool EditInPlace(std::span<const ProfileEdit> edits, const char* path)
{
    bool ok = true;
    for (const ProfileEdit& edit : edits)
        ok &= ::WritePrivateProfileStringA(edit.section, edit.key, edit.value, path) != FALSE;
    return ok;
}

// A missing file has no attributes and no time.
WIN32_FILE_ATTRIBUTE_DATA StateOf(const char* path)
{
    WIN32_FILE_ATTRIBUTE_DATA state{};
    ::GetFileAttributesExA(path, GetFileExInfoStandard, &state);
    return state;
}

bool SameState(const WIN32_FILE_ATTRIBUTE_DATA& a, const WIN32_FILE_ATTRIBUTE_DATA& b)
{
    return ::CompareFileTime(&a.ftLastWriteTime, &b.ftLastWriteTime) == 0 &&
           a.nFileSizeLow == b.nFileSizeLow && a.nFileSizeHigh == b.nFileSizeHigh;
}

// Names without a folder mean files of Windows itself; links are to stay links.
bool CanBeReplaced(const char* path)
{
    constexpr DWORD kOthers = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    return path && !FolderPart(path).empty() && !(StateOf(path).dwFileAttributes & kOthers);
}

enum class Outcome {
    Done,
    Failed,     // nothing was changed
    Overtaken,  // nothing was changed, as another program wrote meanwhile
    Refused,    // nothing was changed; the file may be written to, but not replaced
};

Outcome RefusedOrFailed()
{
    const DWORD error = ::GetLastError();
    return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION ? Outcome::Refused
                                                                            : Outcome::Failed;
}

// A copy, gone with its scope unless it was moved into place.
struct Copy {
    explicit Copy(std::string path) : name(std::move(path)) {}
    Copy(const Copy&) = delete;
    Copy& operator=(const Copy&) = delete;
    ~Copy() { ::DeleteFileA(name.c_str()); }

    const std::string name;
};

// The system's function changes a copy that then takes the file's place: a process that is killed,
// or a full disk, leaves the old or the new file, where a change in place could leave a part of it.
Outcome ReplaceEdited(std::span<const ProfileEdit> edits, const char* path)
{
    const Copy copy(std::string(path) + ".new");
    const char* name = copy.name.c_str();
    ::DeleteFileA(name);  // what a killed writer left
    const auto before = StateOf(path);
    if (before.dwFileAttributes & FILE_ATTRIBUTE_READONLY)
        return Outcome::Failed;
    if (!::CopyFileA(path, name, FALSE) && ::GetLastError() != ERROR_FILE_NOT_FOUND)
        return RefusedOrFailed();
    if (!EditInPlace(edits, name))
        return Outcome::Failed;
    ::WritePrivateProfileStringA(nullptr, nullptr, nullptr, name);  // nothing stays in a cache
    if (!SameState(StateOf(path), before))
        return Outcome::Overtaken;
    return !FileExists(name) || MoveOver(name, path) ? Outcome::Done : RefusedOrFailed();
}

// The second NUL of a list that was cut, which not every version puts there.
DWORD EndList(char* out, DWORD size, DWORD length)
{
    if (size >= 2 && length == size - 2)
        out[size - 1] = '\0';
    return length;
}

}  // namespace

DWORD ProfileString(const char* section, const char* key, const char* defaultValue, char* out,
                    DWORD size, const char* path)
{
    if (size == 0)
        return 0;
    const DWORD length = ::GetPrivateProfileStringA(section, key, defaultValue, out, size, path);
    return section && key ? length : EndList(out, size, length);
}

DWORD ProfileSection(const char* section, char* out, DWORD size, const char* path)
{
    // Some versions write two NULs into a buffer of any size.
    if (size < 2) {
        if (size == 1)
            out[0] = '\0';
        return 0;
    }
    return EndList(out, size, ::GetPrivateProfileSectionA(section, out, size, path));
}

bool EditProfile(std::span<const ProfileEdit> edits, const char* path)
{
    const WritersTurn turn;
    for (int attempt = 0; attempt < 10 && CanBeReplaced(path); ++attempt) {
        switch (ReplaceEdited(edits, path)) {
            case Outcome::Done:
                return true;
            case Outcome::Failed:
                return false;
            case Outcome::Overtaken:
                continue;
            case Outcome::Refused:
                return EditInPlace(edits, path);
        }
    }
    return EditInPlace(edits, path);
}

}  // namespace qx::platform

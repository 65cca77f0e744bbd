#include "platform/profile.h"

namespace qx::platform {

namespace {

// Windows locks a profile while it changes it; not every system that runs Windows programs does.
// Processes that use this library take turns in any case.
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
    bool ok = true;
    for (const ProfileEdit& edit : edits)
        ok &= ::WritePrivateProfileStringA(edit.section, edit.key, edit.value, path) != FALSE;
    return ok;
}

}  // namespace qx::platform

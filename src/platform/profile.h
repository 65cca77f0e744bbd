// Private profiles: text files of [section] lines with key=value lines below them. Names are
// trimmed and compared without regard to the case of ASCII letters; the first section and the first
// key of a name count. Lines that start with ';' are comments. On Windows the system's own
// functions read and change them, elsewhere ours with the same behaviour. A changed file takes the
// place of the old one in one step, under a lock that all writers of this library take: neither a
// crash nor a second process loses a key. (On Windows, a file that may be written to but not
// replaced is changed in place.)
//
// A `path` without a folder means the Windows directory on Windows, the current folder elsewhere.
#pragma once

#include <qxutility/types.h>

#include <span>
#include <string>

namespace qx::platform {

// Copies a value into `out` (size bytes, terminator included) and returns its length. Quotes around
// a value are dropped. A missing key gives `defaultValue` (null: empty) without its final blanks; a
// key with an empty value gives the empty text. A text that does not fit is cut to size - 1.
//
// With a null `key`: the names of the section's keys, with a null `section`: the names of all
// sections, each ended by NUL, and one more NUL. Returns the length without that last NUL; a list
// that does not fit is cut to size - 2 bytes and two NULs. An empty list gives `defaultValue`.
DWORD ProfileString(const char* section, const char* key, const char* defaultValue, char* out,
                    DWORD size, const char* path);

// Copies the section's lines, "key=value" without blanks around the '=', comments left out, as a
// list in the same form.
DWORD ProfileSection(const char* section, char* out, DWORD size, const char* path);

// One change: a null value deletes the key, a null key deletes the section.
struct ProfileEdit {
    const char* section;
    const char* key;
    const char* value;
};

// Makes the changes in their order; all lines that they do not concern stay as they are. The file
// is created for a first value, its folder must exist. False when the file could not be written
// (none of the changes was made then, but for one changed in place) or `section` is null.
bool EditProfile(std::span<const ProfileEdit> edits, const char* path);

inline bool WriteProfileString(const char* section, const char* key, const char* value,
                               const char* path)
{
    const ProfileEdit edit{section, key, value};
    return EditProfile({&edit, 1}, path);
}

// ProfileString of one value into a buffer of `size` bytes.
inline std::string ProfileValue(const char* section, const char* key, const char* defaultValue,
                                DWORD size, const char* path)
{
    std::string value(size, '\0');
    value.resize(ProfileString(section, key, defaultValue, value.data(), size, path));
    return value;
}

}  // namespace qx::platform

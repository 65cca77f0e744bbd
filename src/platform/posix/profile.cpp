#include "platform/profile.h"

#include "platform/files.h"
#include "platform/posix/profile_text.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qx::platform {

namespace {

class Descriptor {
  public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    explicit operator bool() const { return m_fd >= 0; }
    operator int() const { return m_fd; }

  private:
    int m_fd;
};

std::optional<std::string> ReadText(const char* path)
{
    File file(path, FileMode::Read);
    const auto size = file.Size();
    if (!size)
        return std::nullopt;
    std::string text(static_cast<std::size_t>(*size), '\0');
    const auto length = file.Read(text.data(), text.size());
    text.resize(length.value_or(0));
    return length ? std::optional(std::move(text)) : std::nullopt;
}

bool WriteAll(int file, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = ::write(file, text.data(), text.size());
        if (count < 0 && errno != EINTR)
            return false;
        text.remove_prefix(count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return true;
}

// The file behind a link, so that a link stays one when its file is replaced.
std::string Resolved(const char* path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path, nullptr), std::free);
    return real ? real.get() : path;
}

// The next state of a file, "<file>.new", and at the same time the lock of its writers: who has it
// locked, and finds that the name still means it, is the one writer. The name goes away with Commit
// or the destructor; a writer that was killed leaves it for the next one.
class NewFile {
  public:
    explicit NewFile(const std::string& target) : m_target(target), m_name(target + ".new")
    {
        while (Open() && !IsNamed())
            continue;
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile()
    {
        if (m_file && *m_file && !m_committed)
            ::unlink(m_name.c_str());
    }

    explicit operator bool() const { return static_cast<bool>(*m_file); }

    // Puts `text` in the place of the target, with the target's owner and permissions.
    bool Commit(std::string_view text)
    {
        m_committed = ::ftruncate(*m_file, 0) == 0 && TakeOwner() && WriteAll(*m_file, text) &&
                      MoveOver(m_name.c_str(), m_target.c_str());
        return m_committed;
    }

  private:
    bool Open()
    {
        m_file.emplace(::open(m_name.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0666));
        if (!*m_file)
            return false;
        while (::flock(*m_file, LOCK_EX) != 0)
            if (errno != EINTR)
                return m_file.emplace(-1), false;
        return true;
    }

    bool IsNamed() const
    {
        struct stat mine, named;
        return ::fstat(*m_file, &mine) == 0 && ::lstat(m_name.c_str(), &named) == 0 &&
               mine.st_dev == named.st_dev && mine.st_ino == named.st_ino;
    }

    // Only the administrator can give files away; those of others stay their own.
    bool TakeOwner() const
    {
        struct stat old;
        return ::geteuid() != 0 || ::stat(m_target.c_str(), &old) != 0 ||
               ::fchown(*m_file, old.st_uid, old.st_gid) == 0;
    }

    std::string m_target, m_name;
    std::optional<Descriptor> m_file;
    bool m_committed = false;
};

void Apply(const ProfileEdit& edit, std::string& text)
{
    if (!edit.key)
        profile::DeleteSection(text, edit.section);
    else if (!edit.value)
        profile::DeleteKey(text, edit.section, edit.key);
    else
        profile::SetValue(text, edit.section, edit.key, edit.value);
}

std::string_view WithoutFinalBlanks(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

}  // namespace

DWORD ProfileString(const char* section, const char* key, const char* defaultValue, char* out,
                    DWORD size, const char* path)
{
    const std::string text = ReadText(path).value_or("");
    if (section && key) {
        const auto value = profile::FindValue(text, section, key);
        if (value)
            return profile::CopyValue(profile::WithoutQuotes(*value), out, size);
    } else {
        const std::string list =
            section ? profile::KeyNames(text, section) : profile::SectionNames(text);
        if (!section || !list.empty())
            return profile::CopyList(list, out, size);
    }
    const std::string_view standard = defaultValue ? defaultValue : "";
    return profile::CopyValue(profile::WithoutQuotes(WithoutFinalBlanks(standard)), out, size);
}

DWORD ProfileSection(const char* section, char* out, DWORD size, const char* path)
{
    const std::string text = section ? ReadText(path).value_or("") : "";
    return profile::CopyList(profile::SectionLines(text, section ? section : ""), out, size);
}

bool EditProfile(std::span<const ProfileEdit> edits, const char* path)
{
    if (!path || !*path)
        return false;
    const std::string target = Resolved(path);
    NewFile next(target);
    if (!next)
        return false;
    const bool exists = FileExists(target.c_str());
    // A read-only file stays as it is, although the folder would let us replace it.
    if (exists && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
        return false;
    const auto old = exists ? ReadText(target.c_str()) : std::string();
    if (!old)
        return false;
    std::string text = *old;
    for (const ProfileEdit& edit : edits) {
        if (!edit.section)
            return false;
        Apply(edit, text);
    }
    return text == *old || next.Commit(text);
}

}  // namespace qx::platform

#include "formats/log_pruning.h"
#include "platform/clock.h"

#include <qxutility/core/text.h>
#include <qxutility/formats/log_file.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <string>

static std::string HeaderLine(std::int64_t time)
{
    const qx::platform::LocalTime local = qx::platform::ToLocalTime(time);
    std::array<char, 128> text;
    std::snprintf(text.data(), text.size(),
                  "[%lld] Log entry for %02d/%02d/%02d at %02d:%02d:%02d\n",
                  static_cast<long long>(time), local.month, local.day, local.year % 100,
                  local.hour, local.minute, local.second);
    return text.data();
}

LogFile::LogFile(const char* path) noexcept : m_created(qx::platform::SecondsSince1970())
{
    rstrncpy(m_path, path, sizeof m_path);
    write(HeaderLine(m_created).c_str());
    clear();
}

// A failure of an earlier line is over with it: opening resets the stream's state.
void LogFile::OpenToAppend()
{
    if (!is_open())
        open(m_path, std::ios::app);
}

void LogFile::CloseIfOpen()
{
    if (is_open())
        close();
}

LogFile& LogFile::operator<<(char c)
{
    std::ostream& stream = *this;
    if (c == '\n') {
        stream << std::endl;
        CloseIfOpen();
    } else {
        OpenToAppend();
        stream << c;
    }
    return *this;
}

LogFile& LogFile::operator<<(const char* text)
{
    OpenToAppend();
    static_cast<std::ostream&>(*this) << text;
    const std::size_t length = std::strlen(text);
    if (length > 0 && text[length - 1] == '\n')
        CloseIfOpen();
    return *this;
}

LogFile& LogFile::operator<<(double value)
{
    OpenToAppend();
    static_cast<std::ostream&>(*this) << value;
    return *this;
}

LogFile& LogFile::operator<<(int value)
{
    OpenToAppend();
    static_cast<std::ostream&>(*this) << value;
    return *this;
}

void LogFile::write(const char* text)
{
    OpenToAppend();
    static_cast<std::ostream&>(*this) << text;
    CloseIfOpen();
}

void LogFile::clear() noexcept
{
    CloseIfOpen();
    qx::PruneLog(m_path, m_created);
}

Autolog::Autolog() noexcept = default;
Autolog::Autolog(Autolog&& other) noexcept = default;
Autolog& Autolog::operator=(Autolog&& other) noexcept = default;
Autolog::~Autolog() = default;

LogFile& Autolog::Log() noexcept
{
    if (!m_log)
        m_log = std::make_unique<LogFile>("marvend.log");
    return *m_log;
}

Autolog& Autolog::operator<<(char c)
{
    Log() << c;
    return *this;
}

Autolog& Autolog::operator<<(const char* text)
{
    Log() << text;
    return *this;
}

Autolog& Autolog::operator<<(double value)
{
    Log() << value;
    return *this;
}

Autolog& Autolog::operator<<(int value)
{
    Log() << value;
    return *this;
}

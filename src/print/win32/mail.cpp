#include "print/win32/mail.h"

#include "config/process.h"
#include "platform/clock.h"
#include "platform/library.h"
#include "print/mail_texts.h"
#include "win32/grow.h"
#include "win32/handle.h"

#include <qxutility/config/startup.h>

#include <cstring>
#include <mapi.h>
#include <vector>

namespace qx {

namespace {

constexpr int kNotSentText = 1010;  // string of the library, a template for the cause
constexpr char kClients[] = "Software\\Clients\\Mail";

// ---- The client

// A text value of the machine's settings; empty when there is none, or none of a path's length.
std::string MachineValue(const std::string& key, const char* name)
{
    char value[MAX_PATH];
    DWORD size = sizeof value;
    constexpr DWORD kText = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
    const LONG error =
        ::RegGetValueA(HKEY_LOCAL_MACHINE, key.c_str(), name, kText, nullptr, value, &size);
    return error == ERROR_SUCCESS ? value : "";
}

// With the values of environment variables; as it stands when that is longer than a path can be.
std::string Expanded(const std::string& path)
{
    char expanded[MAX_PATH];
    const DWORD size = ::ExpandEnvironmentStringsA(path.c_str(), expanded, sizeof expanded);
    return size == 0 || size > sizeof expanded ? path : expanded;
}

std::string ClientLibrary(const std::string& client)
{
    const std::string path = MachineValue(std::string(kClients) + '\\' + client, "DLLPath");
    return Expanded(path.empty() ? "mapi32.dll" : path);
}

// ---- The message

// A text for the client, with room behind it for those that write there. Null when it has none.
class ClientText {
  public:
    explicit ClientText(const char* text)
    {
        constexpr std::size_t kRoom = 128;
        if (!text)
            return;
        m_text.resize(std::strlen(text) + kRoom);
        std::strcpy(m_text.data(), text);
    }
    char* get() { return m_text.empty() ? nullptr : m_text.data(); }

  private:
    std::vector<char> m_text;
};

bool IsGiven(const char* text)
{
    return text && *text;
}

std::string AddressOf(const MailMessage& message)
{
    return IsGiven(message.recipientAddress) ? MailAddress(message.recipientAddress) : "";
}

ULONG Send(MAPISENDMAIL* send, HWND owner, const MailMessage& message)
{
    ClientText path(message.attachmentPath), fileName(message.attachmentName);
    ClientText subject(message.subject), noteText(message.noteText);
    const std::string to = AddressOf(message);
    ClientText address(to.c_str()), name(message.recipientName);

    MapiRecipDesc recipient{};
    recipient.ulRecipClass = MAPI_TO;
    recipient.lpszName = name.get();
    recipient.lpszAddress = address.get();
    MapiFileDesc file{};
    file.nPosition = static_cast<ULONG>(-1);  // not at a place in the text
    file.lpszPathName = path.get();
    file.lpszFileName = fileName.get();

    MapiMessage mail{};
    mail.lpszSubject = subject.get();
    mail.lpszNoteText = noteText.get();
    mail.nRecipCount = to.empty() ? 0 : 1;
    mail.lpRecips = &recipient;
    mail.nFileCount = IsGiven(message.attachmentPath) &&
                              TryForAWhile([&] { return IsAvailable(message.attachmentPath); })
                          ? 1
                          : 0;
    mail.lpFiles = &file;
    return send(0, reinterpret_cast<ULONG_PTR>(owner), &mail, MAPI_LOGON_UI | MAPI_DIALOG, 0);
}

// Mail clients change the current folder, which an application relies on, and do not change it
// back.
class CurrentFolder {
  public:
    CurrentFolder()
        : m_path(win32::GrowingText(
              [](char* buffer, DWORD size) { return ::GetCurrentDirectoryA(size, buffer); }))
    {
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() { ::SetCurrentDirectoryA(m_path.c_str()); }

  private:
    std::string m_path;
};

}  // namespace

std::optional<std::string> SendMail(HWND owner, const MailMessage& message)
{
    const std::string client = MachineValue(kClients, nullptr);
    if (client.empty())
        return "No Client";
    const std::string path = ClientLibrary(client);
    const platform::Library library(path.c_str());
    auto* const send = library.Find<MAPISENDMAIL>("MAPISendMail");
    if (!send)
        return path;
    const CurrentFolder folder;
    if (IsHandedOver(Send(send, owner, message)))
        return std::nullopt;
    return kNotSent;
}

void ShowMailFault(HWND owner, const std::string& cause)
{
    ErrorMessage(nullptr, Process().language.String(nullptr, kMailTitle), owner, kNotSentText,
                 MB_ICONSTOP, cause.c_str());
}

bool TryForAWhile(const std::function<bool()>& step)
{
    constexpr int kAttempts = 15;
    constexpr unsigned kPause = 250;  // milliseconds
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (step())
            return true;
        platform::Wait(kPause);
    }
    return false;
}

bool IsAvailable(const std::string& path)
{
    return static_cast<bool>(
        win32::FileHandle(::CreateFileA(path.c_str(), 0, FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr)));
}

}  // namespace qx

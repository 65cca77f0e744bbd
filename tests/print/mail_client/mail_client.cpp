// A mail client that sends nothing: it notes the message in the file QX_MAIL_LOG, as
// "flags subject | text | recipient: address name | file: path name position", and answers
// QX_MAIL_RESULT.
#include <windows.h>

#include <cstdlib>
#include <fstream>
#include <mapi.h>
#include <string>

namespace {

std::string Setting(const char* name)
{
    char value[400];
    return ::GetEnvironmentVariableA(name, value, sizeof value) < sizeof value ? value : "";
}

const char* Shown(const char* text)
{
    return text ? text : "(null)";
}

}  // namespace

extern "C" ULONG WINAPI MAPISendMail(LHANDLE, ULONG_PTR owner, lpMapiMessage message, FLAGS flags,
                                     ULONG)
{
    std::ofstream log(Setting("QX_MAIL_LOG"), std::ios::binary | std::ios::app);
    log << (owner ? "owned " : "") << flags << ' ' << Shown(message->lpszSubject) << " | "
        << Shown(message->lpszNoteText);
    for (ULONG i = 0; i < message->nRecipCount; ++i) {
        const MapiRecipDesc& recipient = message->lpRecips[i];
        log << " | " << recipient.ulRecipClass << ": " << Shown(recipient.lpszAddress) << ' '
            << Shown(recipient.lpszName);
    }
    for (ULONG i = 0; i < message->nFileCount; ++i) {
        const MapiFileDesc& file = message->lpFiles[i];
        log << " | " << Shown(file.lpszPathName) << ' ' << Shown(file.lpszFileName) << ' '
            << static_cast<LONG>(file.nPosition);
    }
    log << '\n';
    ::SetCurrentDirectoryA("C:\\");  // as mail clients do
    return std::strtoul(Setting("QX_MAIL_RESULT").c_str(), nullptr, 10);
}

// Handing a message to the user's mail client, whichever it is, by Simple MAPI.
#pragma once

#include <qxutility/types.h>

#include <functional>
#include <optional>
#include <string>

namespace qx {

inline constexpr unsigned kMailTitle = 112;  // string of the library: the title of boxes about mail

// What is null or empty is left out.
struct MailMessage {
    const char *attachmentPath, *attachmentName;
    const char *subject, *noteText;
    const char *recipientAddress, *recipientName;
};

// Opens the client's window with the message, owned by `owner`, and returns when the person has
// sent or dropped it; nothing then, otherwise why there was none: in English, or the client's file.
// The attachment is waited for as TryForAWhile does, and left out if it never is there.
std::optional<std::string> SendMail(HWND owner, const MailMessage& message);

// Tells a person why a message was not sent.
void ShowMailFault(HWND owner, const std::string& cause);

// Until `step` succeeds, but for 3.75 seconds at most: a PDF is written by another process. Returns
// whether it did.
bool TryForAWhile(const std::function<bool()>& step);
// Whether a file is there and not held by a program that lets nobody else have it.
bool IsAvailable(const std::string& path);

}  // namespace qx

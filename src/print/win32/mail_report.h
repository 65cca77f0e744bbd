// A printed report on its way into an e-mail: a temporary PDF that is attached, and kept for the
// user when there is nobody to send it.
#pragma once

#include <qxutility/types.h>

#include <optional>
#include <string>

namespace qx {

// A name for a PDF in the folder of temporary files, which no file has. An empty file of a name of
// the system's own keeps it free; both are the caller's to remove.
struct TemporaryReport {
    std::string placeholder, pdf;
};
// Nothing when there is no folder for temporary files that can be written to.
std::optional<TemporaryReport> NewTemporaryReport();

// Hands a finished or just being finished PDF to the mail client, under the name `title`. When that
// fails and there is an owner, the user is told and may keep it: it is then moved into the folder
// of documents, under its title, and shown there.
void MailReport(HWND owner, const std::string& pdf, const std::string& title);

}  // namespace qx

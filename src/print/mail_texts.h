// The texts of an e-mail with a report, and what a mail client answers.
#pragma once

#include <string>
#include <string_view>

namespace qx {

// The address as Simple MAPI wants it, with "SMTP:" in front, in whatever case it has that already.
std::string MailAddress(std::string_view address);

// The attachment's name for a report's title, which may be empty.
std::string AttachmentName(std::string_view title);
// The PDF that stands for a temporary file: its last three characters become "pdf".
std::string PdfPathFor(std::string_view temporaryFile);

// The name of a file for the report, which may be of any title.
std::string ReportFileName(std::string_view title);
// The same name for the n-th file: "Report.pdf", "Report (2).pdf".
std::string NumberedName(std::string_view fileName, int number);

// Whether a message counts as handed over for a result of MAPISendMail: also when the person
// decided not to send it, or not to log on.
bool IsHandedOver(unsigned long result);
// The cause shown for every other result. It names no code: kept, conversion and all.
inline constexpr char kNotSent[] = "Can't send: %l";

}  // namespace qx

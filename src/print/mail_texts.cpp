#include "print/mail_texts.h"

#include "core/ascii_case.h"

#include <algorithm>

namespace qx {

std::string MailAddress(std::string_view address)
{
    constexpr std::string_view kType = "SMTP:";
    const auto sameLetter = [](char a, char b) { return FoldCase(a) == FoldCase(b); };
    const std::string_view start = address.substr(0, kType.size());
    if (std::equal(start.begin(), start.end(), kType.begin(), kType.end(), sameLetter))
        return std::string(address);
    return std::string(kType).append(address);
}

std::string AttachmentName(std::string_view title)
{
    return std::string(title.empty() ? "TheReport.PDF" : title);
}

std::string PdfPathFor(std::string_view temporaryFile)
{
    constexpr std::string_view kExtension = "pdf";
    const std::size_t kept = std::max(temporaryFile.size(), kExtension.size()) - kExtension.size();
    return std::string(temporaryFile.substr(0, kept)).append(kExtension);
}

bool IsHandedOver(unsigned long result)
{
    constexpr unsigned long kSuccess = 0, kUserAbort = 1, kLogonFailure = 3;
    return result == kSuccess || result == kUserAbort || result == kLogonFailure;
}

}  // namespace qx

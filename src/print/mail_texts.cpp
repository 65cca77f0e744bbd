#include "print/mail_texts.h"

#include "core/ascii_case.h"

#include <qxutility/core/text.h>

#include <algorithm>

namespace qx {

static constexpr std::string_view kPdf = ".pdf";

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

std::string ReportFileName(std::string_view title)
{
    constexpr std::size_t kLongest = 100;
    std::string name = AttachmentName(title).substr(0, kLongest);
    const std::size_t dot = name.size() - std::min(name.size(), kPdf.size());
    if (EqualIgnoringCase(&name[dot], kPdf.data()))
        name.erase(dot);
    SanitizeNoAsp(name.data());
    name.erase(name.find_last_not_of(". ") + 1);  // the system drops them
    return (name.empty() ? std::string("Report") : name).append(kPdf);
}

std::string NumberedName(std::string_view fileName, int number)
{
    const std::size_t dot = std::min(fileName.rfind('.'), fileName.size());
    const std::string insert = number > 1 ? " (" + std::to_string(number) + ")" : "";
    return std::string(fileName).insert(dot, insert);
}

bool IsHandedOver(unsigned long result)
{
    constexpr unsigned long kSuccess = 0, kUserAbort = 1, kLogonFailure = 3;
    return result == kSuccess || result == kUserAbort || result == kLogonFailure;
}

}  // namespace qx

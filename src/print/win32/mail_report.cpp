#include "print/win32/mail_report.h"

#include "config/process.h"
#include "platform/directories.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/open_document.h"
#include "platform/path_text.h"
#include "print/mail_texts.h"
#include "print/win32/mail.h"
#include "win32/handle.h"

#include <qxutility/config/startup.h>

namespace qx {

namespace {

enum String { kKeepReport = 1120, kNotKept = 1121 };

constexpr int kMostNames = 100;

// ---- The temporary file

std::string TemporaryFolder()
{
    char folder[MAX_PATH];
    const DWORD length = ::GetTempPathA(sizeof folder, folder);
    return length < sizeof folder ? std::string(folder, length) : "";
}

// A new empty file; an empty text when it could not be made.
std::string NewPlaceholder(const std::string& folder)
{
    char path[MAX_PATH];
    // The system takes the first three letters.
    return ::GetTempFileNameA(folder.c_str(), "tallmek_mailreport", 0, path) != 0 ? path : "";
}

// ---- A report that could not be sent

// Whether whoever writes the file has closed it.
bool IsFinished(const std::string& path)
{
    return static_cast<bool>(win32::FileHandle(
        ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)));
}

// Moves a file under the first free name like `fileName` in a folder, whose separator is in it.
// The new path; empty when it could not be moved.
std::string MoveInto(const std::string& folder, const std::string& path,
                     const std::string& fileName)
{
    for (int number = 1; number <= kMostNames; ++number) {
        const std::string target = folder + NumberedName(fileName, number);
        if (::MoveFileExA(path.c_str(), target.c_str(), MOVEFILE_COPY_ALLOWED))
            return target;
        if (!platform::FileExists(target.c_str()))
            break;  // that was not the reason
    }
    return {};
}

// To the documents; where there is no such folder it gets its name where it is.
std::string KeepReport(const std::string& pdf, const std::string& fileName)
{
    const std::string documents = platform::FindUserFolder(platform::UserFolder::Documents);
    std::string kept;
    TryForAWhile([&] {
        if (!documents.empty())
            kept = MoveInto(documents + platform::kSeparator, pdf, fileName);
        if (kept.empty())
            kept = MoveInto(std::string(platform::FolderPart(pdf)), pdf, fileName);
        return !kept.empty();
    });
    return kept;
}

std::string Title()
{
    return Process().language.String(nullptr, kMailTitle);
}

bool WantsToKeep(HWND owner, const std::string& fileName)
{
    char question[512];
    *question = '\0';
    FormatString(nullptr, kKeepReport, question, sizeof question, fileName.c_str());
    return platform::ShowMessageBox(owner, question, Title().c_str(), MB_YESNO | MB_ICONQUESTION) ==
           IDYES;
}

void OfferReport(HWND owner, const std::string& pdf, const std::string& title)
{
    const std::string fileName = ReportFileName(title);
    if (!WantsToKeep(owner, fileName))
        return;
    const std::string kept = KeepReport(pdf, fileName);
    if (kept.empty())
        ErrorMessage(nullptr, Title(), owner, kNotKept, MB_ICONSTOP, pdf.c_str());
    else
        platform::OpenDocument(owner, (platform::SystemFolder() + "\\explorer.exe").c_str(),
                               ("/select,\"" + kept + '"').c_str());
}

}  // namespace

std::optional<TemporaryReport> NewTemporaryReport()
{
    const std::string folder = TemporaryFolder();
    for (int attempt = 0; attempt < kMostNames; ++attempt) {
        const std::string placeholder = NewPlaceholder(folder);
        if (placeholder.empty())
            return std::nullopt;
        std::string pdf = PdfPathFor(placeholder);
        if (!platform::FileExists(pdf.c_str()))
            return TemporaryReport{placeholder, std::move(pdf)};
        platform::RemoveFile(placeholder.c_str());  // its PDF is somebody else's
    }
    return std::nullopt;
}

void MailReport(HWND owner, const std::string& pdf, const std::string& title)
{
    const bool isThere = TryForAWhile([&] { return IsFinished(pdf); }) || IsAvailable(pdf);
    const char* const attachment = isThere ? pdf.c_str() : nullptr;
    const auto cause =
        SendMail(owner, {attachment, title.c_str(), nullptr, nullptr, nullptr, nullptr});
    if (!cause || !owner)
        return;
    ShowMailFault(owner, *cause);
    if (isThere)
        OfferReport(owner, pdf, title);
}

}  // namespace qx

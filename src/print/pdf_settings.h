// What a PDF printer's driver is told, by printer escapes, about the document that it is about to
// write. The lines are the drivers' own configuration syntax.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qx {

// The drivers that a job can be diverted to, in the order in which they are looked for.
inline constexpr char kPdfDriver[] = "PDF-XChange 3.0";
inline constexpr char kPdfDriverDe[] = "PDF-XChange DE";

// Asked when there is none of those: what the system itself brings. It is told nothing but the
// path, in the document's description.
inline constexpr char kSystemPdfPrinter[] = "Microsoft Print to PDF";

struct PdfJob {
    bool pdf = false, mail = false;  // the document is wanted as a file, as an attachment
    bool silent = false;             // there is no window to ask from
    std::string path;                // of the file
};

struct PdfSetting {
    int escape;        // the code for ExtEscape
    std::string text;  // sent with its terminator
};

// The settings in the order in which they are sent; none for the device of another driver. Also for
// an ordinary job on a PDF printer that the user chose: it asks where to save, unless it is silent.
std::vector<PdfSetting> PdfSettings(std::string_view device, const PdfJob& job);

}  // namespace qx

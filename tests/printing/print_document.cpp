// Prints on the default printer what printing_test.py looks for in the PDFs. Status 77: there is
// no printer.
#include <qxutility/print/page_text.h>
#include <qxutility/print/print_job.h>

#include <winspool.h>

#include <string>
#include <vector>

namespace {

// A job with margins of 1 inch at the left, 0.75 at the top, 0.5 at the right and 1.25 at the
// bottom.
class Document : public QXPrint {
  public:
    Document() { margins = {1000, 750, 500, 1250}; }

    bool HasPrinter() const { return m_deviceNames != nullptr; }
    void SetCopies(short copies)
    {
        static_cast<DEVMODEA*>(::GlobalLock(m_deviceMode))->dmCopies = copies;
        ::GlobalUnlock(m_deviceMode);
    }
    int Inches(double inches) const
    {
        return static_cast<int>(inches * ::GetDeviceCaps(GetDC(), LOGPIXELSX));
    }
    int LineY(int line) const { return top + line * lineHeight; }
};

void Write(HDC dc, int x, int y, const std::string& text)
{
    ::TextOutA(dc, x, y, text.c_str(), static_cast<int>(text.size()));
}

void FirstPage(const Document& print, HDC dc)
{
    const char* const title = "Pumping station report";
    ::SelectObject(dc, print.boldFont);
    CenterPrint(dc, print.left, print.right, static_cast<float>(print.top), print.lineHeight,
                title);
    Underline(dc, CenterX(dc, print.left, print.right, title), print.top, title);
    ::SelectObject(dc, print.normalFont);
    for (const auto& [line, label] : {std::pair(4, "Flow: 12"), std::pair(5, "Head loss: 34")})
        Write(dc, LeftOfColon(dc, print.left + print.Inches(2), label), print.LineY(line), label);

    const int stops[] = {print.Inches(1.5), print.Inches(3)};
    for (const auto& [line, row] :
         {std::pair(7, "Pump\tDiameter\tRemark"),
          std::pair(8, "Booster pump of the upper reservoir\t80\tall fields\tafter the stops")})
        SmartTabbedTextOut(dc, print.left, print.LineY(line), row, 0, 2, stops, print.left,
                           print.right - print.left);

    LeftPrint(dc, print.left, print.left + print.Inches(2), static_cast<float>(print.LineY(10)),
              print.lineHeight, "Wrapped words stand below each other in a narrow column");
}

// As many lines as the page has.
void SecondPage(const Document& print, HDC dc)
{
    ::SelectObject(dc, print.normalFont);
    for (int line = 0; line <= print.lastLine; ++line)
        Write(dc, print.left, print.LineY(line), "Line" + std::to_string(line));
}

void LastPage(const Document& print, HDC dc)
{
    ::SelectObject(dc, print.normalFont);
    Write(dc, print.left, print.top, "Last page");
}

using Page = void (*)(const Document& print, HDC dc);

bool Print(Document& print, const char* name, std::initializer_list<Page> pages)
{
    if (!print.SetupPrint(name))
        return false;
    int result = 1;
    for (const Page page : pages) {
        if (result > 0)
            result = print.PageStart();
        page(print, print.GetDC());
        if (result > 0)
            result = print.PageEnd();
    }
    print.EndPrint(result);
    return result > 0;
}

// One more printer on the default one's queue, as long as this process lives.
bool InstallPrinter(std::string name)
{
    char usual[MAX_PATH];
    DWORD size = sizeof usual;
    HANDLE printer = nullptr;
    if (!::GetDefaultPrinterA(usual, &size) || !::OpenPrinterA(usual, &printer, nullptr))
        return false;
    ::GetPrinterA(printer, 2, nullptr, 0, &size);
    std::vector<BYTE> buffer(size);
    const bool described = ::GetPrinterA(printer, 2, buffer.data(), size, &size);
    ::ClosePrinter(printer);
    reinterpret_cast<PRINTER_INFO_2A*>(buffer.data())->pPrinterName = name.data();
    printer = described ? ::AddPrinterA(nullptr, 2, buffer.data()) : nullptr;
    return printer && ::ClosePrinter(printer);
}

// A report of which a PDF printer makes a file, and another one on paper.
bool Divert(const char* printer, const std::string& path)
{
    if (!InstallPrinter(printer))
        return false;
    Document print;
    print.PDFSetFileName(path.c_str());
    if (!Print(print, "Diverted", {LastPage}))
        return false;
    print.pdf = false;
    return Print(print, "Not diverted", {LastPage});
}

}  // namespace

// The argument is the file that the system's own PDF printer makes.
int main(int, char** arguments)
{
    Document report, wide, copies;
    if (!report.HasPrinter())
        return 77;
    wide.landscape = true;
    copies.SetCopies(2);
    const bool printed = Print(report, "Portrait", {FirstPage, SecondPage, LastPage}) &&
                         Print(wide, "Landscape", {FirstPage, SecondPage}) &&
                         Print(copies, "Two copies", {LastPage}) &&
                         Divert("Microsoft Print to PDF", arguments[1]) &&
                         Divert("PDF-XChange 3.0", "not told.pdf");
    return printed ? 0 : 1;
}

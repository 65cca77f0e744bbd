// A report on paper, or as a PDF file.
#include <qxutility/print/page_text.h>
#include <qxutility/print/print_job.h>

#include <vector>

void OnPrint(HWND window, const std::vector<std::string>& rows, const int (&tabStops)[2], int width,
             const char* pdf)
{
    // [README]
    QXPrint print;
    if (pdf)
        print.PDFSetFileName(pdf);
    const HDC page = print.SetupPrint(window, "Pipes");  // shows a window that cancels
    if (!page)
        return;  // the user knows why

    int result = print.PageStart(), y = print.top;
    for (const std::string& row : rows) {  // three columns, with tabs between
        SmartTabbedTextOut(page, print.left, y, row.c_str(), 0, 2, tabStops, print.left, width);
        y += print.lineHeight;
    }
    if (result > 0)
        result = print.PageEnd();
    print.EndPrint(result);
    // [/README]
}

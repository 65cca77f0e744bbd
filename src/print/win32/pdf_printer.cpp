// Diversion to a PDF printer: none is looked for so far.
#include <qxutility/print/print_job.h>

void QXPrint::PDFInit() {}

bool QXPrint::PDFDivertPrinter()
{
    return false;
}

void QXPrint::PDFResetPrinter()
{
    m_diverted = false;
}

void QXPrint::PDFSetupJob(bool) {}

int QXPrint::EmailMessage(HWND, const char*, const char*, const char*, const char*, const char*,
                          const char*)
{
    return 0;
}

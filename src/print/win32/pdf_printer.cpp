// Diversion of a print job to a PDF printer.
#include "platform/files.h"
#include "print/device_names.h"
#include "print/pdf_settings.h"
#include "print/win32/print_system.h"
#include "win32/handle.h"

#include <qxutility/print/print_job.h>

#include <cstring>
#include <utility>
#include <vector>

using namespace qx;
using namespace qx::win32;

namespace {

struct PrinterTraits {
    static HANDLE None() { return nullptr; }
    static void Close(HANDLE printer) { System().ClosePrinter(printer); }
};
using Printer = UniqueHandle<PrinterTraits>;

// A copy of a printer's name, for calls that ask for a text which they do not change.
char* Mutable(const char* text)
{
    return const_cast<char*>(text);
}

Printer OpenPrinterOf(const char* name)
{
    HANDLE printer = nullptr;
    return Printer(name && System().OpenPrinterA(Mutable(name), &printer, nullptr) ? printer
                                                                                   : nullptr);
}

// Movable global memory with these bytes; null when there is none.
HGLOBAL NewGlobal(std::string_view bytes)
{
    const HGLOBAL block = System().GlobalAlloc(GHND, bytes.size());
    const GlobalLocked<char> content(block);
    if (content) {
        std::memcpy(content.get(), bytes.data(), bytes.size());
        return block;
    }
    FreeGlobal(block);
    return nullptr;
}

std::string_view NameOf(const char* text)
{
    return text ? text : "";
}

// The names of driver, printer and port; null when the printer does not tell them.
HGLOBAL ReadDeviceNames(HANDLE printer)
{
    DWORD size = 0;
    System().GetPrinterA(printer, 2, nullptr, 0, &size);
    std::vector<BYTE> buffer(size);
    if (size < sizeof(PRINTER_INFO_2A) ||
        !System().GetPrinterA(printer, 2, buffer.data(), size, &size))
        return nullptr;
    const auto* const info = reinterpret_cast<const PRINTER_INFO_2A*>(buffer.data());
    const auto names = DeviceNamesBlock(NameOf(info->pDriverName), NameOf(info->pPrinterName),
                                        NameOf(info->pPortName));
    return names ? NewGlobal(*names) : nullptr;
}

// The settings that a printer starts with; null when the driver does not tell them.
HGLOBAL ReadDeviceMode(HANDLE printer, const char* name)
{
    const auto ask = [&](DEVMODEA* mode, DWORD flags) {
        return System().DocumentPropertiesA(nullptr, printer, Mutable(name), mode, nullptr, flags);
    };
    const LONG size = ask(nullptr, 0);
    if (size <= 0)
        return nullptr;
    const HGLOBAL block = System().GlobalAlloc(GHND, static_cast<SIZE_T>(size));
    bool isFilled = false;
    if (const GlobalLocked<DEVMODEA> mode(block); mode)
        isFilled = ask(mode.get(), DM_OUT_BUFFER) == IDOK;
    if (isFilled)
        return block;
    FreeGlobal(block);
    return nullptr;
}

std::string DeviceOf(HGLOBAL deviceMode)
{
    const GlobalLocked<DEVMODEA> mode(deviceMode);
    if (!mode)
        return {};
    const auto* const name = reinterpret_cast<const char*>(mode->dmDeviceName);
    return std::string(name, ::strnlen(name, sizeof mode->dmDeviceName));
}

}  // namespace

// ---- Installed printers

int QXPrint::GetPrinterDevice(const char* printerName, void** deviceNames, void** deviceMode)
{
    const Printer printer = OpenPrinterOf(printerName);
    const HGLOBAL names = printer ? ReadDeviceNames(printer.get()) : nullptr;
    HGLOBAL mode = nullptr;
    if (!names || !GetDevMode(printerName, &mode)) {
        FreeGlobal(names);
        return 0;
    }
    *deviceNames = names;
    *deviceMode = mode;
    return 1;
}

int QXPrint::GetDevMode(const char* printerName, void** deviceMode)
{
    const Printer printer = OpenPrinterOf(printerName);
    const HGLOBAL mode = printer ? ReadDeviceMode(printer.get(), printerName) : nullptr;
    if (!mode)
        return 0;
    *deviceMode = mode;
    return 1;
}

void QXPrint::PDFInit()
{
    for (const char* const driver : {kPdfDriver, kPdfDriverDe}) {
        if (!m_pdfDeviceNames)
            GetPrinterDevice(driver, &m_pdfDeviceNames, &m_pdfDeviceMode);
    }
}

// ---- A diverted job

void QXPrint::PDFSetFileName(const char* path)
{
    pdf = true;
    SetReportPath(path ? path : "");
}

// A path that does not fit names no file: cut, it could be another one's.
void QXPrint::SetReportPath(std::string_view path)
{
    RemovePlaceholder();
    const bool fits = path.size() < sizeof m_pdfPath;
    m_pdfPath[path.copy(m_pdfPath, fits ? path.size() : 0)] = '\0';
}

void QXPrint::RemovePlaceholder()
{
    platform::RemoveFile(m_placeholder.c_str());
    m_placeholder.clear();
}

// The system's own PDF printer takes the path with the document. It asks for one that is missing,
// which a silent job must not.
bool QXPrint::PrepareSystemPrinter()
{
    const bool asks = *m_pdfPath == '\0';
    m_documentInfo.lpszOutput = asks ? nullptr : m_pdfPath;
    return m_owner || !asks;
}

bool QXPrint::PDFDivertPrinter()
{
    if (!m_pdfDeviceNames &&
        !GetPrinterDevice(kSystemPdfPrinter, &m_pdfDeviceNames, &m_pdfDeviceMode))
        return false;
    if (DeviceOf(m_pdfDeviceMode) == kSystemPdfPrinter && !PrepareSystemPrinter())
        return false;
    m_savedDeviceNames = std::exchange(m_deviceNames, m_pdfDeviceNames);
    m_savedDeviceMode = std::exchange(m_deviceMode, m_pdfDeviceMode);
    m_diverted = true;
    return true;
}

void QXPrint::PDFResetPrinter()
{
    if (m_diverted) {
        m_deviceNames = std::exchange(m_savedDeviceNames, nullptr);
        m_deviceMode = std::exchange(m_savedDeviceMode, nullptr);
    }
    m_diverted = false;
    m_documentInfo.lpszOutput = nullptr;
    if (mail)
        platform::RemoveFile(m_pdfPath);
    SetReportPath("");
    m_mailTitle.clear();
}

void QXPrint::PDFSetupJob(bool silent)
{
    const PdfJob job{pdf, mail, silent, m_pdfPath};
    for (const PdfSetting& setting : PdfSettings(DeviceOf(m_deviceMode), job))
        System().ExtEscape(m_dc, setting.escape, static_cast<int>(setting.text.size() + 1),
                           setting.text.c_str(), 0, nullptr);
}

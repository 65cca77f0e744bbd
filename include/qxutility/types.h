// The names of handles and plain types that the interface uses: the system's own on Windows, a page
// of plain definitions elsewhere. Also the one place that says which platform this is.
#pragma once

#if defined(_WIN32)

#define QX_WINDOWS 1
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#else

#define QX_WINDOWS 0
#include <cstdint>

// Opaque handles. A module is a loaded program or library (see qxutility/host.h for how to get one
// and to give it resources); window handles are only passed through, null is always allowed.
struct HINSTANCE__;
using HINSTANCE = HINSTANCE__*;
struct HWND__;
using HWND = HWND__*;

using BOOL = int;
using UINT = unsigned int;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using COLORREF = DWORD;  // 0x00BBGGRR

struct POINT {
    std::int32_t x, y;
};
struct SIZE {
    std::int32_t cx, cy;
};
struct RECT {
    std::int32_t left, top, right, bottom;
};
struct MINMAXINFO {
    POINT ptReserved, ptMaxSize, ptMaxPosition, ptMinTrackSize, ptMaxTrackSize;
};

// Longest path, terminator included, that fixed path buffers of the interface hold.
inline constexpr int MAX_PATH = 260;

// Message box styles and results, with the values that Windows gives them.
inline constexpr UINT MB_OK = 0x0000;
inline constexpr UINT MB_OKCANCEL = 0x0001;
inline constexpr UINT MB_YESNOCANCEL = 0x0003;
inline constexpr UINT MB_YESNO = 0x0004;
inline constexpr UINT MB_ICONHAND = 0x0010;
inline constexpr UINT MB_ICONSTOP = 0x0010;
inline constexpr UINT MB_ICONQUESTION = 0x0020;
inline constexpr UINT MB_ICONEXCLAMATION = 0x0030;
inline constexpr UINT MB_ICONINFORMATION = 0x0040;
inline constexpr UINT MB_SYSTEMMODAL = 0x1000;
inline constexpr int IDOK = 1;
inline constexpr int IDCANCEL = 2;
inline constexpr int IDYES = 6;
inline constexpr int IDNO = 7;

// Date formats of CLanguage::Date.
inline constexpr DWORD DATE_SHORTDATE = 0x00000001;
inline constexpr DWORD DATE_LONGDATE = 0x00000002;

#endif

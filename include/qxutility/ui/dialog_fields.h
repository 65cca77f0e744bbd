// Helpers for dialog procedures: numbers and texts in controls, in the user's number form; a typed
// number checked while it is typed; a pause after typing reported; property sheets that are
// translated and switched by message; placing windows.
//
// The user's number form is that of the process's language (QXUtility_SetLanguage). All functions
// belong to the user-interface thread. A control that does not exist is no error: setters do
// nothing, getters return what is said.
#pragma once

#include <qxutility/types.h>

#if QX_WINDOWS
#include <qxutility/export.h>

#include <prsht.h>
#include <string>

// Limits what can be typed into an edit control to `limit` characters.
QX_API void SetDlgItemLimit(HWND dialog, int id, int limit);
// Empties a control's text.
QX_API void SetDlgItemNull(HWND dialog, int id);
// Shows a number with at most 9 significant digits (a float: 7).
QX_API void SetDlgItemDouble(HWND dialog, int id, double value);
QX_API void SetDlgItemDouble(HWND dialog, int id, float value);

// The number at the start of a control's text, of which 19 characters are read; 0 when there is
// none.
QX_API double GetDlgItemDouble(HWND dialog, int id);
// Reads as GetDlgItemDouble does. When the number is not exactly `value`, stores it there and
// returns true.
QX_API bool GetDlgItemDoubleChanged(HWND dialog, int id, double& value);
// Reads at most `size` characters; when they differ from `text`, copies them there and returns
// true. `text` must hold size + 1 bytes.
QX_API bool GetDlgItemTextChanged(HWND dialog, int id, char* text, int size);

// Checks the number typed into an edit control, its first 18 characters at most: digits, the
// decimal character, signs at the start or after the exponent's "e". At the first wrong character
// it beeps and cuts the text there. A decimal character at the start gets a "0" before it. Returns
// whether what is left is a number: not empty, and not zero unless `allowZero`. For EN_CHANGE or
// EN_UPDATE; changing the text sends these once more.
QX_API bool GoodNumber(HWND dialog, int id, bool allowDecimal, bool allowZero, bool allowNegative);

// From now on the dialog gets EN_KILLFOCUS from an edit control also when nothing was typed into it
// for `delay` milliseconds (2000) after a character was. Leaving the control ends the wait without
// that. A second call for a control only changes its delay.
QX_API void MakeKeyPress(HWND dialog, unsigned id);
QX_API void MakeKeyPressDelay(HWND dialog, unsigned id, long delay);
// Does nothing, to be paired with the above: controls keep their behaviour as long as they live.
QX_API void ClearKeyPress(HWND dialog, unsigned id);

// Fill a page of a property sheet: dialog resource `dialogId` of `module` with its procedure and
// parameter, a Help button, with `premature` created before it is first shown, with a `title`
// (which must outlive the sheet) in place of the dialog's caption. The record is written up to
// pszHeaderSubTitle, 48 bytes in 32-bit processes, and says so in dwSize. To put several pages into
// one sheet make a handle of each (CreatePropertySheetPageA), unless the array's elements have that
// size.
QX_API void PropSheetPageFirst(HINSTANCE module, PROPSHEETPAGEA* page, int dialogId,
                               DLGPROC procedure, LPARAM param, bool premature, const char* title);
QX_API void PropSheetPage(HINSTANCE module, PROPSHEETPAGEA* page, int dialogId, DLGPROC procedure,
                          LPARAM param);
// For pfnCallback of a sheet's header, with PSH_USECALLBACK: the sheet gets no "?" in its caption,
// is translated, and turns to the page whose index comes as wParam of this message. The sheet
// answers 1 when it is going to turn, 0 when that is the current page. The function returns 1.
inline constexpr UINT kTurnToPage = 55555;
QX_API int CALLBACK PropSheetProc(HWND sheet, UINT message, LPARAM param);

// Centres a window over the client area of another, of the desktop when `over` is null. One that is
// larger stands out on all sides.
QX_API void CenterWindow(HWND window, HWND over);
// `area` becomes the window's rectangle on the screen less a sixth of its width at the left and at
// the right, and of its height at the top and at the bottom.
QX_API void CenterTool(HWND window, RECT& area);
// For EnumChildWindows: moves each child right by `dx` pixels, without repainting. Returns TRUE.
QX_API BOOL CALLBACK MoveDialogChildren(HWND child, LPARAM dx);
// Runs a modal dialog and returns its result. One that cannot be created gives a negative result,
// and the user is told.
QX_API int ShowDialogBox(HINSTANCE module, HWND owner, DLGPROC procedure, int dialogId,
                         LPARAM param);

namespace QXDialog {

// A control's whole text, empty for none.
QX_API std::string GetItemText(HWND control);
QX_API void SetItemText(HWND control, const std::string& text);

// What a control holds, by type: a whole number (0 for a text that is none) or the text.
template <typename Data>
struct dlg_retriever;

template <>
struct QX_API dlg_retriever<int> {
    static int getData(HWND dialog, int id);
};
template <>
struct QX_API dlg_retriever<std::string> {
    static std::string getData(HWND dialog, int id);
};

}  // namespace QXDialog
#endif

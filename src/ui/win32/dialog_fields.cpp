// Numbers and texts in the controls of dialogs.
#include "config/process.h"
#include "core/decimal.h"
#include "core/decimal_scan.h"
#include "ui/typed_number.h"
#include "win32/window_text.h"

#include <qxutility/core/numbers.h>
#include <qxutility/ui/dialog_fields.h>

#include <algorithm>

namespace {

constexpr int kNumberBuffer = 20;  // for the text of a number that is read
constexpr int kLongestChecked = 18;
constexpr int kShownDigits = 9;

// At most `length` characters of a control's text.
std::string TextOfItem(HWND dialog, int id, int length)
{
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    const UINT read = ::GetDlgItemTextA(dialog, id, text.data(), length + 1);
    text.resize(read);
    return text;
}

// Most characters of a typed number that are looked at.
int CheckedLength(HWND dialog, int id)
{
    const auto limit = static_cast<DWORD>(::SendDlgItemMessageA(dialog, id, EM_GETLIMITTEXT, 0, 0));
    return static_cast<int>(std::min<DWORD>(limit, kLongestChecked));
}

// Changes a text that is being typed: the caret stays at its end.
void RetypeText(HWND dialog, int id, const std::string& text)
{
    ::SetDlgItemTextA(dialog, id, text.c_str());
    ::SendDlgItemMessageA(dialog, id, EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
}

}  // namespace

void SetDlgItemLimit(HWND dialog, int id, int limit)
{
    if (const HWND control = ::GetDlgItem(dialog, id))
        ::SendMessageA(control, EM_LIMITTEXT, static_cast<WPARAM>(limit), 0);
}

void SetDlgItemNull(HWND dialog, int id)
{
    if (const HWND control = ::GetDlgItem(dialog, id))
        ::SetWindowTextA(control, "");
}

void SetDlgItemDouble(HWND dialog, int id, double value)
{
    const HWND control = ::GetDlgItem(dialog, id);
    if (!control)
        return;
    char text[qx::kPrintedSize];
    qx::PrintGeneral(value, kShownDigits, '.', text);
    ::SetWindowTextA(control, qx::Process().language.Number(text));
}

void SetDlgItemDouble(HWND dialog, int id, float value)
{
    SetDlgItemDouble(dialog, id, CleanDbl(value));
}

double GetDlgItemDouble(HWND dialog, int id)
{
    std::string text = TextOfItem(dialog, id, kNumberBuffer - 1);
    qx::Process().language.EnglishNumber(text.data());
    double value = 0;
    qx::ScanDoubles(text.c_str(), '.', {&value, 1});
    return value;
}

bool GetDlgItemDoubleChanged(HWND dialog, int id, double& value)
{
    const double read = GetDlgItemDouble(dialog, id);
    if (read == value)
        return false;
    value = read;
    return true;
}

bool GetDlgItemTextChanged(HWND dialog, int id, char* text, int size)
{
    if (!::GetDlgItem(dialog, id))
        return false;
    const std::string read = TextOfItem(dialog, id, std::max(size, 0));
    if (read == text)
        return false;
    read.copy(text, read.size());
    text[read.size()] = '\0';
    return true;
}

bool GoodNumber(HWND dialog, int id, bool allowDecimal, bool allowZero, bool allowNegative)
{
    const int length = CheckedLength(dialog, id);
    const std::string text = TextOfItem(dialog, id, length);
    const qx::TypedNumber typed = qx::CheckTypedNumber(
        text, {qx::Process().language.Decimal(), allowDecimal, allowZero, allowNegative});
    if (typed.needsZero)
        RetypeText(dialog, id, ("0" + text).substr(0, static_cast<std::size_t>(length)));
    if (typed.wrong) {
        ::MessageBeep(0);
        RetypeText(dialog, id, text.substr(0, *typed.wrong));
    }
    return typed.good;
}

std::string QXDialog::GetItemText(HWND control)
{
    return qx::win32::WindowText(control);
}

void QXDialog::SetItemText(HWND control, const std::string& text)
{
    ::SetWindowTextA(control, text.c_str());
}

int QXDialog::dlg_retriever<int>::getData(HWND dialog, int id)
{
    return static_cast<int>(::GetDlgItemInt(dialog, id, nullptr, TRUE));
}

std::string QXDialog::dlg_retriever<std::string>::getData(HWND dialog, int id)
{
    return GetItemText(::GetDlgItem(dialog, id));
}

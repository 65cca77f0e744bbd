// Numbers in dialogs, and a file to open.
#include <qxutility/ui/browse_box.h>
#include <qxutility/ui/dialog_fields.h>

#include <windows.h>

static constexpr int kLength = 100;
static constexpr int kOpen = 101;

void OnCommand(HWND dialog, WPARAM command, double& length)
{
    // [README]
    if (command == MAKEWPARAM(kLength, EN_UPDATE))  // cut at the first wrong character
        ::EnableWindow(::GetDlgItem(dialog, IDOK), GoodNumber(dialog, kLength, true, false, false));
    if (command == IDOK && GetDlgItemDoubleChanged(dialog, kLength, length))
        SetDlgItemDouble(dialog, kLength, length);  // in the user's number form

    CBrowseBox box("C:\\Pipes", "*.dat");
    char file[MAX_PATH];
    if (command == kOpen && box.Display(dialog) == IDOK)
        box.GetFile(file);
    // [/README]
}

// The dialog that opens a file, on the screen: the window of one CBrowseBox.
#pragma once

#include "ui/browse_list.h"
#include "win32/gdi.h"

#include <qxutility/ui/browse_box.h>

namespace qx::win32 {

class BrowseDialog {
  public:
    static constexpr int kList = 1128;  // the control with the files

    explicit BrowseDialog(CBrowseBox& box) : m_box(box) {}
    BrowseDialog(const BrowseDialog&) = delete;
    BrowseDialog& operator=(const BrowseDialog&) = delete;

    // Runs the dialog; the result of CBrowseBox::Display.
    int Run(HWND parent);

    // Shows the box's folder and fills the list, in the dialog that `dialog` is.
    static void Refresh(HWND dialog, CBrowseBox& box);
    // When the file was last written that is just being listed; null for every other file.
    static const FILETIME* WriteTimeOf(const char* path);

  private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam,
                                      LPARAM lParam) noexcept;
    INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
    HWND Item(int id) const { return ::GetDlgItem(m_dialog, id); }

    void Start();
    void ShowTexts();
    void ShowPicture();
    void PlaceButtons();
    void Translate();
    void End();

    void OnCommand(int id, int code);
    void OnSelection();
    void OnTyping();
    void OnOkay();
    bool Accept(const Choice& choice);
    bool OnKey(char key);
    void PassOn(UINT message, WPARAM wParam, LPARAM lParam);
    void Measure(MEASUREITEMSTRUCT& item) const;
    void Draw(const DRAWITEMSTRUCT& item) const;

    CBrowseBox& m_box;
    HWND m_dialog = nullptr;
    BitmapHandle m_picture;
    bool m_passingOn = false;
};

}  // namespace qx::win32

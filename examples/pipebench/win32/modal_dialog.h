// A modal dialog of the resources whose messages go to an object.
#pragma once

#include "core/localisation.h"

#include <windows.h>

namespace pipebench {

class ModalDialog {
  public:
    explicit ModalDialog(const Localisation& localisation) : m_localisation(localisation) {}
    ModalDialog(const ModalDialog&) = delete;
    ModalDialog& operator=(const ModalDialog&) = delete;
    virtual ~ModalDialog() = default;

    // Shows the dialog in the user's language; true when it was ended with Close(IDOK).
    bool Run(HWND owner, int resource);

  protected:
    virtual void OnInit() = 0;
    // Not called for the Cancel button, which closes the dialog.
    virtual void OnCommand(int id, int notification) = 0;
    virtual void OnDraw(const DRAWITEMSTRUCT&) {}
    void Close(int result) const { ::EndDialog(m_dialog, result); }

    HWND Window() const { return m_dialog; }
    const Localisation& Local() const { return m_localisation; }
    const CLanguage& Language() const { return m_localisation.Language(); }

  private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void Open(HWND dialog);

    const Localisation& m_localisation;
    HWND m_dialog = nullptr;
};

}  // namespace pipebench

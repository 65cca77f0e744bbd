// A page of the options: a dialog of the resources whose messages go to an object.
#pragma once

#include "core/fault.h"
#include "core/localisation.h"

#include <windows.h>

#include <functional>
#include <prsht.h>

namespace pipebench {

class OptionsPage {
  public:
    // `title` is an English wording.
    OptionsPage(const Localisation& localisation, int resource, const char* title);
    OptionsPage(const OptionsPage&) = delete;
    OptionsPage& operator=(const OptionsPage&) = delete;
    virtual ~OptionsPage() = default;

    // The page for a sheet that ends while this object lives; `onHelp` runs for its Help button.
    HPROPSHEETPAGE Handle(std::function<void()> onHelp);
    // Whether the sheet was ended with OK after this page had been shown.
    bool Accepted() const { return m_accepted; }

  protected:
    virtual void OnInit() = 0;
    virtual void OnCommand(int id, int notification) = 0;
    // The page is left: takes what was entered, or tells the user why not and returns false.
    virtual bool Take() = 0;
    // Tells why an entry cannot be taken, and selects it.
    bool Refuse(const Fault& fault, int control) const;

    HWND Window() const { return m_dialog; }
    const Localisation& Local() const { return m_localisation; }
    const CLanguage& Language() const { return m_localisation.Language(); }

  private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    void Open(HWND dialog);
    void OnNotify(UINT code);

    const Localisation& m_localisation;
    int m_resource;
    std::string m_title;
    std::function<void()> m_onHelp;
    HWND m_dialog = nullptr;
    bool m_accepted = false;
};

}  // namespace pipebench

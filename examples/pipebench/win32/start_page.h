// The start page: the program's name and a panel of buttons, as long as no line is open.
#pragma once

#include "core/localisation.h"
#include "win32/object_window.h"

#include <qxutility/ui/button_panel.h>

#include <memory>

namespace pipebench {

class StartPage : public ObjectWindow {
  public:
    // The buttons' commands go to `parent`.
    void Create(HWND parent);
    void Show(const Localisation& localisation);

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnPaint() const;
    void CentrePanel();

    std::unique_ptr<Layout> m_panel;
    std::string m_title, m_question;
};

}  // namespace pipebench

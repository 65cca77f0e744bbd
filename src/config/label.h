// Labels of menus, dialogs and controls: taken apart, translated, put together again.
#pragma once

#include <qxutility/types.h>

#include <string>
#include <string_view>

class CLanguage;

namespace qx {

// "&Open...\tCtrl+O" is the wording "Open", dots, and the accelerator "\tCtrl+O".
struct Label {
    std::string wording;      // without its first '&'
    bool dots = false;        // ended in "..."
    std::string accelerator;  // with its tab; empty when there is none
};

Label SplitMenuLabel(std::string_view text);
Label SplitControlLabel(std::string_view text);  // a tab is a character like any other
std::string JoinLabel(std::string_view wording, bool dots, std::string_view accelerator);

// The items of one level of a menu, in order.
class MenuLevel {
  public:
    MenuLevel(const CLanguage& language, DWORD lcid) : m_language(language), m_lcid(lcid) {}
    // An item's text in the language. Once an item has had dots all that follow on this level get
    // them too: the menus of the applications are written for it.
    std::string Translate(std::string_view text);

  private:
    const CLanguage& m_language;
    DWORD m_lcid;
    bool m_dots = false;
};

// A control's text, and a dialog's caption, in the current language.
std::string TranslateControl(const CLanguage& language, std::string_view text);
std::string TranslateCaption(const CLanguage& language, std::string_view text);

// Whether the text of a dialog's child of this window class is a label, and no data of the user's.
bool ShowsLabel(std::string_view windowClass);

}  // namespace qx

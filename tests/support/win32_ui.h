// Drives real windows from inside the test that owns them: messages are handled until a condition
// holds, modal dialogs and open menus are answered from their own message loops. Nothing sleeps for
// a fixed time; a wait that does not end is a failure after its limit.
#pragma once

#include <windows.h>

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace qx::test {

inline constexpr unsigned kWaitLimit = 10'000;  // milliseconds

// Handles messages until `done` returns true; false when the limit passes first.
bool PumpUntil(const std::function<bool()>& done, unsigned limit = kWaitLimit);
// Handles the messages that are waiting now.
void PumpWaiting();

// A visible top-level window of a plain class with a button-face background; destroyed with it.
class TestWindow {
  public:
    explicit TestWindow(const char* title, int width = 400, int height = 300);
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;
    ~TestWindow();

    operator HWND() const { return m_window; }

  private:
    HWND m_window;
};

// A control of a system class as a child of `parent`.
HWND MakeChild(HWND parent, const char* className, const char* text, DWORD style, int id);

std::string TextOf(HWND window);
std::string TextOfItem(HWND parent, int id);
// The texts of a menu's items, in order; separators are "-".
std::vector<std::string> TextsOf(HMENU menu);
// The items of a combo box or a list box, in order.
std::vector<std::string> ItemsOf(HWND listOrCombo);

// Answers modal dialogs (message boxes too) that this thread opens while the object lives: `answer`
// runs for each inside the dialog's own message loop, once it stands on the screen. It ends the
// dialog, for example with Press.
class ModalAnswer {
  public:
    explicit ModalAnswer(std::function<void(HWND dialog)> answer);
    ModalAnswer(const ModalAnswer&) = delete;
    ModalAnswer& operator=(const ModalAnswer&) = delete;
    ~ModalAnswer();

    int Count() const;  // dialogs answered so far

  private:
    HHOOK m_hook;
};

// Shows a modal dialog of the caption with an empty client area, which `onInit` fills; ends with
// IDOK or IDCANCEL, whichever is pressed, and returns it.
INT_PTR RunDialog(const char* caption, const std::function<void(HWND dialog)>& onInit);

// Presses a dialog's button as a click would.
void Press(HWND dialog, int buttonId);
// The text of a message box: that of its one static control that holds text.
std::string MessageOf(HWND messageBox);

// The texts of a dialog, its caption among them, that are wider or higher than the place for them.
std::vector<std::string> CutTexts(HWND dialog);
// The keys of the mnemonics ('&') in the texts that occur twice, in lower case.
std::string SharedMnemonics(const std::vector<std::string>& texts);
// All visible and invisible children of a window and theirs.
std::vector<HWND> ChildrenOf(HWND window);

// What the process holds of the system's drawing objects, and of its windows, menus, cursors and
// icons. To be compared before and after.
struct ObjectCounts {
    int drawing, user;
    bool operator==(const ObjectCounts&) const = default;
};
ObjectCounts CountObjects();
std::ostream& operator<<(std::ostream& out, const ObjectCounts& counts);

// Opens `menu` as a popup of `owner`, sends the keys to it and returns the command that was chosen;
// 0 when none was.
UINT ChooseWithKeys(HMENU menu, HWND owner, const std::vector<WORD>& keys);

}  // namespace qx::test

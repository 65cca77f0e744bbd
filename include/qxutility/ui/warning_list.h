// Warnings that a program collects while it checks or calculates something, to be shown together in
// one dialog or handed on as text. Belongs to the user-interface thread.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

#include <string>
#include <vector>

class CLanguage;
class HTML_HELP;

// Copies own their warnings; the help object stays the caller's and must outlive its use.
class QX_API QXWarningList {
  public:
    // An empty list.
    //   module  whose strings the ids are; null means the library's
    //   textId  the string above the list when it is shown; 0 means the library's own
    //   helpId  context of the page that the dialog's Help button opens; 0, or no `help`, hides it
    //   folder  where the Save dialog starts, at most 259 characters; null or empty for no certain
    QXWarningList(HINSTANCE module, int textId, int helpId, HTML_HELP* help, const char* folder);
    QXWarningList(const QXWarningList&);
    QXWarningList& operator=(const QXWarningList&);
    ~QXWarningList();

    void SetText(int textId);
    void SetHelp(HTML_HELP* help);

    void clear();
    // Adds `format` with `insert` in place of its first %s (plain or with flags, width and
    // precision; %% is a percent sign, all else is copied as it stands), or as it is when `insert`
    // is null.
    void add(const char* format, const char* insert);
    // The same with string `stringId` of the list's module, of which 255 characters are taken, in
    // `language`, or in the process's when that is null.
    void add(int stringId, const char* insert, CLanguage* language);

    // The warning at `index`, valid until the list changes; null when there is none.
    const char* text(int index) const;
    std::vector<std::string> list() const;
    // All warnings, each followed by the first character of `separator` (nothing when that is null
    // or empty), cut to `size` bytes with the terminator. True when everything fitted.
    bool list(char* buffer, unsigned size, const char* separator) const;

#if QX_WINDOWS
    // Shows the warnings in a modal dialog with OK, Help and Save; nothing when there are none.
    void display(HWND owner);

    // The dialog's steps, for dialogs of an application's own with the same controls: 1001 the text
    // above, 1002 the list box, 6 Help, 1003 Save. InitButtons hides Help where there is none.
    void FillDialog(HWND dialog);
    void InitButtons(HWND dialog);
    void Help(HWND dialog);
    // Asks for a file and writes the warnings to it, each with CR LF behind it. Tells the user when
    // that fails, and then leaves no file.
    void SaveList(HWND owner);
#endif

  private:
    std::vector<std::string> m_warnings;
    int m_textId;
    [[maybe_unused]] int m_helpId;  // by the dialog
    HINSTANCE m_module;
    HTML_HELP* m_help;  // not owned
    char m_folder[MAX_PATH];
};

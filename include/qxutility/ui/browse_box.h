// A dialog that opens a file: the files of one folder that match a pattern, with icon, date and, if
// wanted, a description. Derived classes decide what is listed, how it is described and what may be
// chosen. Belongs to the user-interface thread.
#pragma once

#include <qxutility/types.h>

#if QX_WINDOWS
#include <qxutility/export.h>

// A file in the list: the item data of list box 1128, deleted by the dialog.
struct CBrowseEntry {
    char name[MAX_PATH];
    char description[MAX_PATH];
    char date[20];
    HICON icon;  // null until the entry is first drawn
};

namespace qx::win32 {
class BrowseDialog;
}

class QX_API CBrowseBox {
  public:
    // Lists the files of `folder` (at most 259 characters, with or without a final backslash) that
    // match `pattern` (at most 9, "*.dat"). The texts of the dialog are the library's own.
    CBrowseBox(const char* folder, const char* pattern);
    CBrowseBox(const CBrowseBox&);
    CBrowseBox& operator=(const CBrowseBox&);
    virtual ~CBrowseBox();

    // Whether a file is listed and may be chosen. `description` (260 bytes) is shown below its
    // name; what follows a tab, below the date. The base lists every file, without description.
    virtual bool ApproveFile(const char* path, char* description);
    // The Help button was pressed. The base does nothing.
    virtual void Help();
    // Whether a choice may close the dialog. The base wants a file that exists and is approved, and
    // tells the user otherwise. A name without a folder is one of the folder shown.
    virtual bool VerifyOkay(HWND dialog, const char* path);
    // The date shown for a file, in 20 bytes; false shows question marks. The base writes when the
    // file was last written, in universal time, as month/day/year of two digits each.
    virtual bool GetDate(const char* path, char* text);
    // The folder button was pressed. The base lets the user choose a folder and shows that.
    virtual void ChangePath(HWND dialog);

    // Replace texts of the dialog: at most 79 characters for the caption and the line above the
    // folder, 19 for the buttons. They are translated when the library has a translation.
    void SetCaption(const char* text);
    void SetDescription(const char* text);
    void SetOkay(const char* text);
    void SetCancel(const char* text);
    void AddHelpButton();
    bool HelpVisible() const;

    // Runs the dialog; 1 when a file was chosen, 2 when not, negative when it cannot be shown (the
    // user has been told).
    int Display(HWND parent);

    // The name of the file chosen, and its folder with the final backslash; each at most 260 bytes.
    void GetFile(char* text) const;
    void GetPath(char* text) const;

  protected:
    // Shows another folder, null: the current one anew. A folder that does not exist is reported to
    // the user, and the current one stays. Returns whether the dialog is to be closed: no folder
    // asks for that.
    bool ChangeDirectory(HWND dialog, const char* folder);
    // The same; closes the dialog with 1 when ChangeDirectory says so.
    void ChangeDirectories(HWND dialog, const char* folder);

  private:
    friend class qx::win32::BrowseDialog;
    void Select(const char* name);
    void Select(const CBrowseEntry& entry);

    bool m_help;
    char m_folder[MAX_PATH];  // without a final backslash
    char m_selection[MAX_PATH];
    char m_pattern[10];
    char m_caption[80];
    char m_description[80];
    char m_okay[20];
    char m_cancel[20];
};

// Lets the user choose a folder, starting at `path` (260 bytes). True when one was chosen: `path`
// is then that folder, or empty for one that is no folder of the file system. Otherwise it stays.
QX_API bool BrowseFolder(HWND owner, char* path);
#endif

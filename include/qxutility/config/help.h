// Compiled HTML help: an application registers named types of help (a file, the window to show it
// in, a way to find the file in the user's language) and opens pages, searches and the contents by
// the name of the type. Belongs to the user-interface thread; nothing throws. A null text counts as
// an empty one.
//
// Help is shown by the system's HTML Help control, loaded when it is first needed: the one that the
// machine's registry names, else that in the system's folder. When neither can be loaded, and where
// there are no windows, nothing is shown and every request fails.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

class CLanguage;

// Decides which file is opened for a registered one. To be derived from; this one takes the
// registered file itself. A finder must not throw; it may register types.
class QX_API HelpFileFinder {
  public:
    virtual std::string Find(std::string name) const;
    // A copy of the same dynamic type, which the caller deletes.
    virtual HelpFileFinder* Clone() const;

    HelpFileFinder();
    HelpFileFinder(const HelpFileFinder&);
    HelpFileFinder& operator=(const HelpFileFinder&);
    virtual ~HelpFileFinder();
};

// Names of files that exist once per language: with "_" and the language's name, in its own words,
// before the last '.' of the file's name ("Manual_Deutsch.chm"), or at the end where there is none
// (a '.' in a folder's name is not the file's).
class QX_API LocalizedFilenameMaker {
  public:
    // `language` stays the caller's and must outlive the object and its copies.
    explicit LocalizedFilenameMaker(CLanguage& language);
    LocalizedFilenameMaker(const LocalizedFilenameMaker&);
    LocalizedFilenameMaker& operator=(const LocalizedFilenameMaker&);
    ~LocalizedFilenameMaker();

    std::string GetFilename(std::string name, DWORD lcid) const;
    // For the current language.
    std::string GetFilename(std::string name) const;
    // For the language stored in a section of the product's INI file.
    std::string GetDefaultFilename(std::string name, std::string section) const;

  private:
    CLanguage* m_language;  // not owned
};

// Takes the file of the current language when it exists, else that for English, else the registered
// one. What is no valid name of a file on this system counts as not existing.
class QX_API LocalizedHelpFileFinder : public HelpFileFinder {
  public:
    explicit LocalizedHelpFileFinder(LocalizedFilenameMaker maker);
    LocalizedHelpFileFinder(const LocalizedHelpFileFinder&);
    LocalizedHelpFileFinder& operator=(const LocalizedHelpFileFinder&);
    ~LocalizedHelpFileFinder() override;

    std::string Find(std::string name) const override;
    HelpFileFinder* Clone() const override;

  private:
    LocalizedFilenameMaker m_maker;
};

// When the last object is destroyed, all help windows of the process are closed.
class QX_API HTML_HELP {
  public:
    // A type of help. Copies own what they copy.
    class QX_API HELPTYPES {
      public:
        HELPTYPES();
        HELPTYPES(const HELPTYPES&);
        HELPTYPES& operator=(const HELPTYPES&);
        ~HELPTYPES();

        // `file` is looked for as the system looks for files (the program's folder, the system's
        // folders, the current folder, PATH), with ".CHM" behind a name without an extension; a
        // path of 260 characters or more counts as not found, and then `file` stays as it is.
        //   name    null for a type without a name: of use as the first one only
        //   finder  cloned; null means HelpFileFinder
        void Add(const char* name, const char* file, const HelpFileFinder* finder,
                 const char* window);

        bool empty() const;                    // it has no name
        bool compare(const char* name) const;  // its name is `name`; A to Z are a to z
        const char* GetWindow() const;         // never null, valid until the type changes
        std::string GetFile() const;           // what the finder finds; empty without a file

      private:
        std::optional<std::string> m_name;
        std::string m_file, m_window;
        std::string m_path;  // of the file, as it was found when it was added
        std::unique_ptr<HelpFileFinder> m_finder;
    };

    // Without types and owner; errors are shown.
    HTML_HELP();
    HTML_HELP(const HTML_HELP&);
    HTML_HELP& operator=(const HTML_HELP&);
    ~HTML_HELP();

    // Whether a request that fails shows an error box, titled "Help".
    void EnableErrors();
    void DisableErrors();
    // The window that help windows and error boxes belong to.
    void SetWindow(HWND owner);

    // Register a type; one of the same name is replaced. See HELPTYPES::Add.
    void AddType(const char* name, const char* file, const char* window);
    void AddType(const char* name, const char* file, const HelpFileFinder* finder,
                 const char* window);
    // The file is string `stringId` of `module` in the process's language, at most 259 characters.
    void AddType(const char* name, HINSTANCE module, int stringId, const char* window);

    // Show help and return its window; null when that fails. A type that is not registered means
    // the first one. When another type was used before (their names differ within the first 30
    // characters, and in case) all help windows are closed first.
    //   Open      a page by its context number, in the type's window
    //   Search    the file's first page, and what a search for `query` finds
    //   Contents  the file's first page, and its contents; nothing for a type without a file
    HWND Open(const char* type, unsigned contextId);
    HWND Search(const char* type, const char* query);
    HWND Contents(const char* type);

  private:
    std::optional<HELPTYPES> FindType(const char* name) const;
    void UseType(const char* name);
    HWND CheckErrors(HWND shown, const char* action) const;

    bool m_errors;
    HWND m_owner;
    std::vector<HELPTYPES> m_types;  // in the order of their registration
    std::string m_lastType;          // the first 30 characters of the name used last
};

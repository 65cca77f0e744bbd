// The localisation object: strings by number and by English wording, numbers, money and dates in
// the user's form, translation of menus and dialogs.
//
// A language table (CTableReader, tab-delimited) has a key column "IDS", holding string numbers in
// decimal without leading zeros, and a column per language named by primary and sublanguage in
// decimal ("09-01" English, "07-01" German). The row with the key "L" holds the languages' names.
// Cells hold tab, carriage return and line feed as "%09", "%0d" and "%0a".
//
// Locale identifiers are those of Windows: the primary language in the low 10 bits, the sublanguage
// in bits 10 to 15. Texts are in the ANSI code page of their language. Sizes are in bytes, the
// terminator included; nothing is written beyond them. Objects are not guarded against use by
// several threads.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

#include <map>
#include <string>

class CTableReader;

class QX_API CLanguage {
  public:
    // English, without a table: strings come from string resources.
    CLanguage();
    CLanguage(const CLanguage&);
    CLanguage& operator=(const CLanguage&);
    // Deletes pLanguages when no module is in it.
    ~CLanguage();

    // Binds the object to a module and its table (null for none) and records both in pLanguages.
    // The table stays the caller's and must outlive its use.
    void Attach(HINSTANCE module, CTableReader* table);
    // Replaces the table only.
    void SetStringTable(CTableReader* table);
    // Removes the object's own module from pLanguages, whatever the argument.
    void Detach(HINSTANCE module);

    // Selects a language: its own column of the table, else that of its sublanguage 1 (the locale
    // stays the one asked for). Returns 0; or -1 when the locale is not installed or the table has
    // neither column: the language is then English, locale 1033. Without a table every installed
    // locale will do.
    int SetLanguage(unsigned short primary, unsigned short sub);
    int SetLanguage(DWORD lcid);
    DWORD GetLanguage() const;
    // The language stored in a section of the product's INI file; 901, which is no installed
    // locale, when there is none.
    DWORD GetDefault(std::string section) const;
    // Stores the current language there.
    void SaveDefault(std::string section);
    // The locale of a language's sublanguage 1.
    static DWORD WEB_GetDefaultLCID(int primary);
    // Kept for old callers: clears the flag, whatever the argument.
    void SetAsserts(bool asserts);

    // The name of a language in its own words. "English" without a table or for locale 0; empty for
    // a locale without a column.
    std::string GetLanguageName(DWORD lcid) const;
    std::string GetLanguageName() const;
    // The same, but locale 0 means the current language, and a name that does not fit `size` gives
    // "English" (cut to `size`). Returns `buffer`.
    char* GetLanguageName(char* buffer, int size, DWORD lcid) const;

    // String `id` in the current language: from the table of `module` (null: the object's own), or,
    // when it has no table, from its string resources. A number that the table does not have, or
    // has empty in this language, gives "###". Returns the length, 0 for a missing resource.
    // `text` is always allocated; the caller frees it with delete[].
    unsigned String(HINSTANCE module, unsigned id, char*& text) const;
    // Copies at most size - 1 characters; returns the full length. `buffer` is left as it is when
    // the length is 0.
    unsigned String(HINSTANCE module, unsigned id, char* buffer, int size) const;
    std::string String(HINSTANCE module, unsigned id) const;
    // The same in English.
    unsigned EnglishString(HINSTANCE module, unsigned id, char*& text) const;

    // Translates an English wording into the current language (`lcid` 0), or a wording of the
    // current language into that of `lcid`. Case does not matter (A to Z only). A final ':' may be
    // missing in the table: it is taken off before the search (in the caller's `english` too) and
    // put back. True when `out` is a translation or none is needed: there is no table, the language
    // is English, the text is empty, a path (":\" in it) or a number. Otherwise `out` is the text
    // itself. The search sees the first size - 1 characters of the text; `out` is cut to them as
    // well.
    bool Text(char* english, char* out, int size, DWORD lcid) const;
    bool Text(std::string english, std::string& out, DWORD lcid) const;

    // The INI section of a language: "section - language name", cut to `size`. `section` stays as
    // it is for English (`lcid` 0: when the current language is English).
    void INISection(char* section, int size, DWORD lcid) const;
    // The same, only when that section of the INI file has a key.
    void INISection(const char* iniFile, char* section, int size, DWORD lcid) const;

    // First characters of the locale's decimal and thousands separators; a locale without a
    // thousands separator gives NUL.
    char Decimal() const;
    char Separator() const;
    // Replaces, in place, each '.' that is followed by a digit and stands at the start, after a
    // space or after a digit by the locale's decimal character; EnglishNumber does the reverse.
    // Both return `text`.
    char* Number(char* text) const;
    char* EnglishNumber(char* text) const;
    // The currency text of a plain number ("-1234.56"), without decimals unless `keepDecimals`.
    // `out` becomes empty when `value` is no number or the text does not fit. Returns `out`.
    char* Money(const char* value, char* out, int size, bool keepDecimals) const;
    // Today's date in the locale's form (flags 0, DATE_SHORTDATE or DATE_LONGDATE); `out` becomes
    // empty when it does not fit. Returns `out`.
    char* Date(char* out, int size, DWORD flags) const;

#if QX_WINDOWS
    // Fills a combo box with the languages' names, their locales as item data, and selects the
    // current one; a language named "testing" and those after it are left out. Returns the number
    // of columns of the table, 0 without one.
    int LanguageList(HWND comboBox) const;
    // Translate a menu and its submenus, a dialog's caption and labels, one control (true when its
    // text was set), each by the English wording that it shows: less its first '&' (a translation
    // brings its own), a final "..." and, in a menu, the accelerator behind a tab. Once an item of
    // a menu level has had "..." all later ones of that level get it. Everything but the text of a
    // menu item stays as it is. What the user enters (Edit, ComboBox, ListBox) is left alone.
    // Nothing is done in English (for a menu: with `lcid` 0) or without a table. Texts are cut to
    // 269 characters in menus, 254 elsewhere.
    void Menu(HMENU menu, DWORD lcid) const;
    void Dialog(HWND dialog) const;
    bool Control(HWND control) const;
#endif

    // The tables of all attached modules. Created by the first Attach; null again after a CLanguage
    // was destroyed while no module was in it.
    static std::map<HINSTANCE, CTableReader*>* pLanguages;

  protected:
    bool IsEnglish(DWORD lcid) const;  // the current language's locale when `lcid` is 0

  private:
    CTableReader* TableOf(HINSTANCE module) const;
    template <class Use>
    unsigned WithString(HINSTANCE module, unsigned id, const char* code, Use use) const;

    DWORD m_lcid;
    char m_code[8];  // the column of the current language, "09-01", padded with NULs
    bool m_asserts;
    CTableReader* m_table;  // not owned
    HINSTANCE m_module;
};

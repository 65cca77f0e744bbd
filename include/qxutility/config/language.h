// The localisation object: strings by number and by English wording, numbers, money and dates in the
// user's form, translation of menus and dialogs.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

#include <map>
#include <string>

class CTableReader;

class QX_API CLanguage {
 public:
    CLanguage();
    CLanguage(const CLanguage&);
    CLanguage& operator=(const CLanguage&);
    ~CLanguage();

    void Attach(HINSTANCE module, CTableReader* table);
    void SetStringTable(CTableReader* table);
    void Detach(HINSTANCE module);

    int SetLanguage(unsigned short primary, unsigned short sub);
    int SetLanguage(DWORD lcid);
    DWORD GetLanguage() const;
    DWORD GetDefault(std::string section) const;
    void SaveDefault(std::string section);
    static DWORD WEB_GetDefaultLCID(int primary);
    void SetAsserts(bool asserts);

    std::string GetLanguageName(DWORD lcid) const;
    std::string GetLanguageName() const;
    char* GetLanguageName(char* buffer, int size, DWORD lcid) const;

    unsigned String(HINSTANCE module, unsigned id, char*& text) const;
    unsigned String(HINSTANCE module, unsigned id, char* buffer, int size) const;
    std::string String(HINSTANCE module, unsigned id) const;
    unsigned EnglishString(HINSTANCE module, unsigned id, char*& text) const;

    bool Text(char* english, char* out, int size, DWORD lcid) const;
    bool Text(std::string english, std::string& out, DWORD lcid) const;

    void INISection(char* section, int size, DWORD lcid) const;
    void INISection(const char* iniFile, char* section, int size, DWORD lcid) const;

    char Decimal() const;
    char Separator() const;
    char* Number(char* text) const;
    char* EnglishNumber(char* text) const;
    char* Money(const char* value, char* out, int size, bool keepDecimals) const;
    char* Date(char* out, int size, DWORD flags) const;

#if QX_WINDOWS
    int LanguageList(HWND comboBox) const;
    void Menu(HMENU menu, DWORD lcid) const;
    void Dialog(HWND dialog) const;
    bool Control(HWND control) const;
#endif

    static std::map<HINSTANCE, CTableReader*>* pLanguages;

 protected:
    bool IsEnglish(DWORD lcid) const;

 private:
    DWORD m_lcid;
    char m_code[6];
    bool m_asserts;
    CTableReader* m_table;  // not owned
    HINSTANCE m_module;
};

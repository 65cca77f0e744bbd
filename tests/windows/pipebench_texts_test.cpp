// The sample host's menus and dialogs in each of its languages: everything is translated, nothing
// is cut off, no two texts of a place share a mnemonic.
#include "support/win32_ui.h"

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>
#include <qxutility/formats/xml_document.h>

#include <gmock/gmock.h>
#include <map>

using namespace qx::test;
using testing::IsEmpty;

// Program and table stand in the folder that tests run in.
class PipeBenchTexts : public testing::TestWithParam<DWORD> {
  protected:
    void SetUp() override
    {
        m_program = ::LoadLibraryExA("pipebench.exe", nullptr,
                                     LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
        ASSERT_TRUE(m_program);
        ASSERT_TRUE(m_table.Valid());
        m_language.SetStringTable(&m_table);
        ASSERT_EQ(0, m_language.SetLanguage(GetParam()));
    }
    void TearDown() override { ::FreeLibrary(m_program); }

    bool HasTranslation(const std::string& label) const
    {
        std::string wording = label.substr(0, label.find('\t'));
        if (wording.ends_with("..."))
            wording.resize(wording.size() - 3);
        if (const std::size_t ampersand = wording.find('&'); ampersand != wording.npos)
            wording.erase(ampersand, 1);
        std::string translation;
        return wording == "-" || m_language.Text(wording, translation, 0);
    }
    void CheckMenu(HMENU menu) const;
    void CheckDialog(LPCSTR name) const;

    HMODULE m_program = nullptr;
    CTableReader m_table{"PIPEBENCH_LANGUAGE.DAT", '\t', nullptr, nullptr};
    CLanguage m_language;
};

// The resource's menu, before the program puts the languages of the table into it.
void PipeBenchTexts::CheckMenu(HMENU menu) const
{
    for (const std::string& text : TextsOf(menu))
        EXPECT_TRUE(HasTranslation(text)) << text;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        if (const HMENU submenu = ::GetSubMenu(menu, i))
            CheckMenu(submenu);
    }
}

static void ExpectOwnMnemonics(HMENU menu)
{
    EXPECT_EQ("", SharedMnemonics(TextsOf(menu))) << TextsOf(menu)[0];
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        if (const HMENU submenu = ::GetSubMenu(menu, i))
            ExpectOwnMnemonics(submenu);
    }
}

TEST_P(PipeBenchTexts, CoverTheMenu)
{
    const HMENU menu = ::LoadMenuA(m_program, MAKEINTRESOURCEA(100));
    ASSERT_TRUE(menu);
    CheckMenu(menu);
    m_language.Menu(menu, 0);
    ExpectOwnMnemonics(menu);
    ::DestroyMenu(menu);
}

// The picture of each button in the order of the elements; separators have none.
static void ForButtons(XMLElement& parent, const std::function<void(int command, int picture)>& see)
{
    for (XMLElement* button = parent.FirstElement(); button; button = parent.NextElement()) {
        int command = 0, picture = -1;
        button->ReadSubElement("idCommand", command, 0);
        button->ReadSubElement("iBitmap", picture, -1);
        if (command != 0)
            see(command, picture);
    }
}

TEST_P(PipeBenchTexts, CoverTheButtonsOfTheToolbars)
{
    XMLDocument catalogue, bars;
    ASSERT_TRUE(catalogue.LoadResource(m_program, MAKEINTRESOURCEA(121), "XML"));
    ASSERT_TRUE(bars.LoadResource(m_program, MAKEINTRESOURCEA(120), "XML"));
    std::map<int, int> pictures;
    ForButtons(catalogue, [&](int command, int picture) {
        EXPECT_EQ(static_cast<int>(pictures.size()), picture) << command;
        pictures[command] = picture;
        EXPECT_NE("###", m_language.String(m_program, 2000U + static_cast<unsigned>(command)));
    });
    for (XMLElement* bar = bars.FirstElement(); bar; bar = bars.NextElement()) {
        ForButtons(*bar, [&](int command, int picture) {
            EXPECT_TRUE(pictures.contains(command) && pictures[command] == picture) << command;
        });
    }
}

static INT_PTR CALLBACK DoNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

void PipeBenchTexts::CheckDialog(LPCSTR name) const
{
    const TestWindow owner("dialogs");  // pages of property sheets need one
    const HWND dialog = ::CreateDialogParamA(m_program, name, owner, DoNothing, 0);
    ASSERT_TRUE(dialog);
    for (const HWND child : ChildrenOf(dialog))
        EXPECT_TRUE(HasTranslation(TextOf(child))) << TextOf(child);
    EXPECT_TRUE(HasTranslation(TextOf(dialog))) << TextOf(dialog);

    m_language.Dialog(dialog);
    std::vector<std::string> texts;
    for (const HWND child : ChildrenOf(dialog))
        texts.push_back(TextOf(child));
    EXPECT_EQ("", SharedMnemonics(texts)) << TextOf(dialog);
    EXPECT_THAT(CutTexts(dialog), IsEmpty());
    ::DestroyWindow(dialog);
}

static BOOL CALLBACK AddName(HMODULE, LPCSTR, LPSTR name, LONG_PTR names)
{
    reinterpret_cast<std::vector<LPCSTR>*>(names)->push_back(name);
    return TRUE;
}

TEST_P(PipeBenchTexts, FitTheDialogs)
{
    std::vector<LPCSTR> dialogs;
    ::EnumResourceNamesA(m_program, MAKEINTRESOURCEA(5), AddName,
                         reinterpret_cast<LONG_PTR>(&dialogs));
    ASSERT_FALSE(dialogs.empty());
    for (const LPCSTR name : dialogs)
        CheckDialog(name);
}

INSTANTIATE_TEST_SUITE_P(Languages, PipeBenchTexts, testing::Values(0x0409, 0x0407, 0x040C));

// What the buttons of a panel open.
#include "doubles/open_document_double.h"
#include "doubles/path_search_double.h"
#include "support/win32_screen.h"

#include <qxutility/formats/xml_document.h>
#include <qxutility/ui/button_panel.h>

#include <gmock/gmock.h>
#include <memory>

using namespace qx::test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Reads "content" as the inside of a button's element.
void Read(SmartButton& button, const std::string& content)
{
    XMLDocument document;
    const std::string xml = "<b>" + content + "</b>";
    document.UseData(xml.data(), static_cast<int>(xml.size()));
    button.ReadXML(document.FirstElement());
}

// The WM_COMMAND that waits for a window: its wParam, 0 when there is none.
WPARAM PostedCommand(HWND window)
{
    MSG message{};
    return ::PeekMessageA(&message, window, WM_COMMAND, WM_COMMAND, PM_REMOVE) ? message.wParam : 0;
}

TEST(ButtonLink, IsSplitIntoFileAndArguments)
{
    PathSearchDouble search;
    search.programs["C:\\My tools\\a.exe"] = "C:\\My tools\\a.exe";
    const std::pair<const char*, const char*> cases[] = {
        {"www.example.com", "www.example.com|"},
        {"http://example.com/a b", "http://example.com/a b|"},
        {"mailto:a@example.com?subject=x y", "mailto:a@example.com?subject=x y|"},
        {"C:\\My tools\\a.exe /x %s%n \"c d\"", "C:\\My tools\\a.exe| /x %s%n \"c d\""},
    };
    for (const auto& [link, opened] : cases) {
        const OpenDocumentDouble document;
        SmartButton button(nullptr, nullptr);
        Read(button, std::string("<link>") + link + "</link>");
        button.Go(nullptr);
        EXPECT_THAT(document.opened, ElementsAre(opened));
    }
}

TEST(ButtonLink, IsOpenedBeforeTheCommandIsPosted)
{
    const TestWindow target("Target");
    OpenDocumentDouble document;
    document.meanwhile = [&] { EXPECT_EQ(0U, PostedCommand(target)); };
    SmartButton button(nullptr, nullptr);
    EXPECT_FALSE(button.HasAction());
    Read(button, "<link>a.txt</link><command>77</command>");
    EXPECT_TRUE(button.HasAction());
    button.Go(target);
    EXPECT_THAT(document.opened, ElementsAre("a.txt|"));
    EXPECT_EQ(77U, PostedCommand(target));
}

TEST(ButtonLink, CommandAloneOpensNothing)
{
    const TestWindow target("Target");
    const OpenDocumentDouble document;
    SmartButton button(nullptr, nullptr);
    Read(button, "<command>77</command>");
    EXPECT_TRUE(button.HasAction());
    button.Go(target);
    EXPECT_EQ(77U, PostedCommand(target));
    Read(button, "<link></link>");
    EXPECT_FALSE(button.HasAction());
    button.Go(target);
    EXPECT_EQ(0U, PostedCommand(target));
    EXPECT_THAT(document.opened, IsEmpty());
}

TEST(ButtonLink, PanelMayEndWhileItIsOpened)
{
    for (const bool destroyParent : {false, true}) {
        auto parent = std::make_unique<TestWindow>("Parent");
        const TestWindow target("Target");
        XMLDocument document;
        document.UseData(
            "<layout><b width=\"50\" height=\"50\"><link>a</link>"
            "<command>5</command></b></layout>",
            -1);
        auto layout =
            std::make_unique<Layout>(*parent, target, ::GetModuleHandleA(nullptr), &document);
        const HWND panel = ::GetDlgItem(*parent, 5000);
        OpenDocumentDouble opening;
        std::vector<std::string> reused;
        opening.meanwhile = [&] {
            if (destroyParent)
                parent.reset();
            else
                layout.reset();
            // What the buttons were in is used for something else.
            for (int i = 0; i < 100; ++i)
                reused.emplace_back(sizeof(SmartButton) - 1, 'Z');
        };
        ::SendMessageA(panel, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        ::SendMessageA(panel, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        ::SendMessageA(panel, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        EXPECT_THAT(opening.opened, ElementsAre("a|")) << destroyParent;
        EXPECT_FALSE(::IsWindow(panel)) << destroyParent;
        EXPECT_EQ(5U, PostedCommand(target)) << destroyParent;
    }
}

}  // namespace

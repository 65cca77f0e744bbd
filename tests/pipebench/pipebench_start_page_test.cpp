#include "core/localisation.h"
#include "core/start_page.h"
#include "core/texts.h"

#include <qxutility/formats/xml_document.h>

#include <gtest/gtest.h>

using namespace pipebench;

static int NumberOf(const XMLElement& element, const char* attribute)
{
    int value = 0;
    element.ReadAttribute(attribute, value, -1);
    return value;
}

// What the library's Layout reads.
TEST(StartPage, HasAButtonForEachCommandOneBelowTheOther)
{
    const HINSTANCE module = reinterpret_cast<HINSTANCE>(std::uintptr_t{0x1000});
    Localisation localisation(module, "PIPEBENCH_LANGUAGE.DAT");
    for (const auto& [name, lcid] : localisation.Choices()) {
        localisation.Use(lcid);
        XMLDocument document;
        ASSERT_TRUE(document.UseData(StartPageXml(localisation.Language(), 144).c_str(), -1));
        XMLElement* layout = document.FindElement("layout");
        ASSERT_TRUE(layout);
        int bottom = 0;
        XMLElement* element = layout->FirstElement();
        for (const StartButton& button : kStartButtons) {
            ASSERT_TRUE(element) << button.wording;
            EXPECT_GE(NumberOf(*element, "y"), bottom);
            bottom = NumberOf(*element, "y") + NumberOf(*element, "height");
            int command = 0;
            element->ReadSubElement("command", command, 0);
            EXPECT_EQ(button.command, command);
            char text[80] = "";
            element->FindElement("quickimage")->ReadSubElement("text", text, sizeof text - 1, "");
            EXPECT_EQ(Wording(localisation.Language(), button.wording), text);
            element = layout->NextElement();
        }
        EXPECT_FALSE(element) << name;
    }
}

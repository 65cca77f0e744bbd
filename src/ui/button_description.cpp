#include "ui/button_description.h"

#include "core/ascii_case.h"

#include <qxutility/formats/xml_document.h>

namespace qx {

static constexpr int kTextSize = 260;      // with the terminator
static constexpr int kAttributeSize = 80;  // one more is kept for it: a text may fill all of them

static std::string SubText(XMLElement& element, const char* name)
{
    char text[kTextSize] = "";
    element.ReadSubElement(name, text, kTextSize, "");
    return text;
}

static std::string TextOf(const XMLElement& element)
{
    char text[kTextSize] = "";
    element.ReadData(text, kTextSize);
    return text;
}

static std::string Attribute(const XMLElement& element, const char* name)
{
    char text[kAttributeSize + 1] = "";
    element.ReadAttribute(name, text, kAttributeSize, "");
    return text;
}

static int Number(const XMLElement& element, const char* name, int otherwise = 0)
{
    int value = otherwise;
    element.ReadAttribute(name, value, otherwise);
    return value;
}

static std::optional<int> NumberIfAny(const XMLElement& element, const char* name)
{
    int value = 0;
    return element.ReadAttribute(name, value, 0) ? std::optional(value) : std::nullopt;
}

static int SubNumber(XMLElement& element, const char* name)
{
    int value = 0;
    element.ReadSubElement(name, value, 0);
    return value;
}

static std::optional<PictureSource> ReadPicture(XMLElement& button, const char* name)
{
    XMLElement* element = button.FindElement(name);
    if (!element)
        return {};
    return PictureSource{SubText(*element, "filename"), SubNumber(*element, "resource"),
                         Number(*element, "ButtonColor") != 0,
                         Number(*element, "WindowColor") != 0};
}

static bool IsSmall(const XMLElement& icon)
{
    return EqualIgnoringCase(Attribute(icon, "size").c_str(), "small");
}

static std::optional<QuickImage> ReadQuickImage(XMLElement& button)
{
    XMLElement* element = button.FindElement("quickimage");
    if (!element)
        return {};
    QuickImage image{Number(*element, "border") != 0, {}, {}};
    if (const XMLElement* icon = element->FindElement("icon"))
        image.icon = {TextOf(*icon), IsSmall(*icon), NumberIfAny(*icon, "x"),
                      NumberIfAny(*icon, "y")};
    // The caption's "y" has no effect: it is always in the middle of the height.
    if (const XMLElement* text = element->FindElement("text"))
        image.caption = {TextOf(*text), Number(*text, "size", 18), NumberIfAny(*text, "x"),
                         AlignNamed(Attribute(*text, "align"))};
    return image;
}

ButtonDescription ReadButton(XMLElement& element)
{
    ButtonDescription button;
    button.area = {Number(element, "x"), Number(element, "y"), Number(element, "width"),
                   Number(element, "height")};
    button.pictures = {ReadPicture(element, "standard"), ReadPicture(element, "pushed"),
                       ReadPicture(element, "rollover")};
    button.command = SubNumber(element, "command");
    button.link = SubText(element, "link");
    button.quickImage = ReadQuickImage(element);
    return button;
}

}  // namespace qx

#include "core/start_page.h"

#include "core/texts.h"

#include <qxutility/formats/xml_writer.h>

namespace pipebench {

static constexpr int kWidth = 340, kHeight = 48, kGap = 8, kFont = 18;  // at 96 dots per inch

namespace {

class PanelWriter {
  public:
    PanelWriter(const CLanguage& language, int dotsPerInch)
        : m_language(language), m_dotsPerInch(dotsPerInch)
    {
        m_xml.BeginElement("layout");
    }
    void Add(const StartButton& button, int row);
    std::string End();

  private:
    int Scaled(int pixels) const { return pixels * m_dotsPerInch / 96; }
    void Size(const char* attribute, int pixels) { m_xml.AddAttribute(attribute, Scaled(pixels)); }
    void Element(const char* name, int value);

    const CLanguage& m_language;
    int m_dotsPerInch;
    XMLWriter m_xml;
};

void PanelWriter::Element(const char* name, int value)
{
    m_xml.BeginElement(name);
    m_xml.SetData(value);
    m_xml.EndElement();
}

void PanelWriter::Add(const StartButton& button, int row)
{
    m_xml.BeginElement("button");
    Size("x", 0);
    Size("y", row * (kHeight + kGap));
    Size("width", kWidth);
    Size("height", kHeight);
    Element("command", button.command);
    m_xml.BeginElement("quickimage");
    Element("icon", button.icon);
    m_xml.BeginElement("text");
    Size("size", kFont);
    m_xml.SetData(Wording(m_language, button.wording).c_str());
    m_xml.EndElement();
    m_xml.EndElement();
    m_xml.EndElement();
}

std::string PanelWriter::End()
{
    m_xml.EndElement();
    std::string text(m_xml.StrLen() + 1, '\0');
    m_xml.StrCpy(text.data(), m_xml.StrLen() + 1);
    text.pop_back();
    return text;
}

}  // namespace

std::string StartPageXml(const CLanguage& language, int dotsPerInch)
{
    PanelWriter panel(language, dotsPerInch);
    int row = 0;
    for (const StartButton& button : kStartButtons)
        panel.Add(button, row++);
    return panel.End();
}

}  // namespace pipebench

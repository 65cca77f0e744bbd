#include "win32/start_page.h"

#include "core/start_page.h"
#include "win32/gdi.h"

#include <qxutility/formats/xml_document.h>

namespace pipebench {

static constexpr COLORREF kDark = RGB(16, 52, 92), kLight = RGB(44, 118, 190);
static constexpr COLORREF kWhite = RGB(255, 255, 255), kPale = RGB(214, 230, 246);
static constexpr int kBand = 92, kLeft = 32;  // pixels at 96 dots per inch

void StartPage::Create(HWND parent)
{
    CreateObjectWindow({"PIPEBENCH_START", CS_HREDRAW | CS_VREDRAW}, parent);
}

void StartPage::Show(const Localisation& localisation)
{
    m_title = localisation.String(IDS_PROGRAM);
    m_question = localisation.String(IDS_START_TITLE);
    const std::string xml = StartPageXml(localisation.Language(), Scaled(96));
    XMLDocument document;
    document.UseData(xml.c_str(), -1);
    m_panel.reset();  // there is one panel at a time
    m_panel =
        std::make_unique<Layout>(Window(), ::GetParent(Window()), localisation.Module(), &document);
    CentrePanel();
    ::InvalidateRect(Window(), nullptr, TRUE);
}

void StartPage::CentrePanel()
{
    RECT area;
    ::GetClientRect(Window(), &area);
    area.top += Scaled(kBand);
    if (m_panel)
        m_panel->Center(area);
}

LRESULT StartPage::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_SIZE:
            return CentrePanel(), 0;
        case WM_PAINT:
            return OnPaint(), 0;
        default:
            return ObjectWindow::Handle(message, wParam, lParam);
    }
}

static void DrawLine(HDC dc, const std::string& text, int height, int weight, COLORREF colour,
                     RECT line)
{
    const HFONT font = ::CreateFontA(-Scaled(height), 0, 0, 0, weight, 0, 0, 0, DEFAULT_CHARSET, 0,
                                     0, CLEARTYPE_QUALITY, FF_SWISS, "Arial");
    {
        const Selected selected(dc, font);
        ::SetTextColor(dc, colour);
        ::DrawTextA(dc, text.c_str(), -1, &line, DT_SINGLELINE | DT_NOPREFIX | DT_VCENTER);
    }
    ::DeleteObject(font);
}

// The program's name on a band across the top, with the question below it.
void StartPage::OnPaint() const
{
    PAINTSTRUCT paint;
    const HDC dc = ::BeginPaint(Window(), &paint);
    RECT band;
    ::GetClientRect(Window(), &band);
    band.bottom = Scaled(kBand);
    FillShaded(dc, band, kDark, kLight, GRADIENT_FILL_RECT_H);
    ::SetBkMode(dc, TRANSPARENT);
    const LONG left = Scaled(kLeft);
    DrawLine(dc, m_title, 28, FW_BOLD, kWhite, {left, Scaled(14), band.right, Scaled(52)});
    DrawLine(dc, m_question, 15, FW_NORMAL, kPale, {left, Scaled(54), band.right, Scaled(78)});
    ::EndPaint(Window(), &paint);
}

}  // namespace pipebench

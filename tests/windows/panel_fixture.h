// Panels of picture buttons for tests: picture files, descriptions, and a panel in a window.
#pragma once

#include "support/temporary_folder.h"
#include "support/win32_screen.h"
#include "support/window_spy.h"

#include <qxutility/formats/xml_document.h>
#include <qxutility/ui/button_panel.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace qx::test {

inline constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kBlue = RGB(0, 0, 255);
inline constexpr COLORREF kOrange = RGB(255, 128, 0), kViolet = RGB(128, 0, 255);

// A bitmap file of 64 by 64 points, all of the one entry of its palette.
inline std::string Bitmap(COLORREF color)
{
    const BITMAPINFOHEADER info{sizeof info, 64, 64, 1, 8, BI_RGB, 0, 0, 0, 1, 0};
    const RGBQUAD entry{GetBValue(color), GetGValue(color), GetRValue(color), 0};
    const DWORD before = sizeof(BITMAPFILEHEADER) + sizeof info + sizeof entry;
    const BITMAPFILEHEADER file{0x4D42, before + 64 * 64, 0, 0, before};
    const auto bytes = [](const auto& part) {
        return std::string(reinterpret_cast<const char*>(&part), sizeof part);
    };
    return bytes(file) + bytes(info) + bytes(entry) + std::string(64 * 64, '\0');
}

// Files of one colour each, large enough for the buttons of the tests.
class Pictures {
  public:
    Pictures()
    {
        for (const auto& [name, color] : {std::pair{"red", kRed},
                                          {"green", kGreen},
                                          {"blue", kBlue},
                                          {"grey", RGB(192, 192, 192)}})
            m_folder.Write(name + std::string(".bmp"), Bitmap(color));
        m_folder.Write("damaged.bmp", Bitmap(kRed).substr(0, 20));
    }
    // A picture element, with attributes.
    std::string Xml(const std::string& state, const std::string& file,
                    const std::string& attributes = "") const
    {
        return "<" + state + " " + attributes + "><filename>" + m_folder.Path(file) +
               "</filename></" + state + ">";
    }
    // Red, green while the mouse is over it, blue while it is pressed.
    std::string Three() const
    {
        return Xml("standard", "red") + Xml("rollover", "green") + Xml("pushed", "blue");
    }

  private:
    TemporaryFolder m_folder;
};

inline std::string Button(int x, int y, const std::string& content, int width = 40, int height = 30)
{
    return "<b x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) + "\" width=\"" +
           std::to_string(width) + "\" height=\"" + std::to_string(height) + "\">" + content +
           "</b>";
}

// A window with a panel of the buttons; it gets the commands as well.
struct Panel {
    explicit Panel(const std::string& buttons) : document(std::make_unique<XMLDocument>())
    {
        ::SetForegroundWindow(parent);
        MoveMouse(parent, 1, 1);
        const std::string xml = "<layout>" + buttons + "</layout>";
        document->UseData(xml.data(), static_cast<int>(xml.size()));
        layout =
            std::make_unique<Layout>(parent, parent, ::GetModuleHandleA(nullptr), document.get());
        document.reset();  // not used any more
        window = ::GetDlgItem(parent, 5000);
        PumpWaiting();
    }

    COLORREF Pixel(int x, int y) const { return PixelOf(window, x, y); }
    bool Becomes(COLORREF color, int x, int y) const
    {
        return PumpUntil([=, this] { return Pixel(x, y) == color; }, 3000);
    }
    // Commands that the parent got, in order.
    std::vector<WPARAM> Commands()
    {
        PumpWaiting();
        return std::exchange(commands, {});
    }
    void Send(UINT message, int x, int y) const
    {
        ::SendMessageA(window, message, 0, MAKELPARAM(x, y));
    }
    std::vector<WPARAM> commands;
    TestWindow parent{"Panel"};
    Spy spy{parent, [this](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
                if (message == WM_COMMAND)
                    commands.push_back(wParam);
                return {};
            }};
    std::unique_ptr<XMLDocument> document;
    std::unique_ptr<Layout> layout;
    HWND window = nullptr;
};

inline std::string Resource(const std::string& file, const std::string& id)
{
    return "<standard><filename>" + file + "</filename><resource>" + id + "</resource></standard>";
}

inline std::string Command(int id)
{
    return "<command>" + std::to_string(id) + "</command>";
}

inline std::string Quick(const std::string& content, const std::string& attributes = "")
{
    return "<quickimage " + attributes + ">" + content + "</quickimage>";
}

}  // namespace qx::test

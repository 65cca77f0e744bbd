// Windows side by side, and a page of picture buttons.
#include <qxutility/formats/xml_document.h>
#include <qxutility/ui/button_panel.h>
#include <qxutility/ui/window_layout.h>

#include <memory>

void OnCreate(HWND window, HWND tree, HWND drawing, HWND results, HINSTANCE program,
              std::unique_ptr<WindowLayout>& panes, std::unique_ptr<Layout>& startPage)
{
    // [README]
    panes = std::make_unique<WindowLayout>(window);  // a tree at the left, results below a drawing
    panes->AddWindow(tree, 200, qx::kPaneLeft | qx::kPaneAcross | qx::kPaneSizable, nullptr);
    panes->AddWindow(results, 150, qx::kPaneBottom | qx::kPaneAlong | qx::kPaneSizable, nullptr);
    panes->AddWindow(drawing, 0, qx::kPaneBottom | qx::kPaneAlong | qx::kPaneFill, nullptr);
    panes->ReCalcLayout();

    XMLDocument page;  // the buttons of a start page; what they do comes as WM_COMMAND
    if (page.LoadResource(program, "START", "XML"))
        startPage = std::make_unique<Layout>(window, window, program, &page);
    // [/README]
}

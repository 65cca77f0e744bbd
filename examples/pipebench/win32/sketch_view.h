// The window that draws the line.
#pragma once

#include "core/sketch.h"
#include "win32/object_window.h"

#include <windows.h>

#include <functional>

namespace pipebench {

class SketchView : public ObjectWindow {
  public:
    struct Label {
        std::string size, length;  // below the pipe
    };
    struct Content {
        const std::vector<Pipe>* pipes;
        std::vector<Label> labels;  // one per pipe
        std::optional<std::size_t> selected;
    };

    // `onClick` hears of the pipe that was clicked.
    void Create(HWND parent, std::function<void(std::size_t)> onClick);
    void Show(Content content);
    void Select(std::optional<std::size_t> pipe);

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnPaint();
    void OnClick(int x) const;
    void Draw(HDC dc, const RECT& client) const;
    void DrawPipe(HDC dc, std::size_t index, const Area& area) const;
    void DrawLabels(HDC dc, std::size_t index, const Area& area, const RECT& client) const;
    std::vector<Area> Sketch(const RECT& client) const;

    std::function<void(std::size_t)> m_onClick;
    Content m_content{};
};

}  // namespace pipebench

// What is shown of a line: the tree of its pipes, its drawing and its results, in panes that the
// user resizes.
#pragma once

#include "core/localisation.h"
#include "core/settings.h"
#include "win32/object_window.h"
#include "win32/pipe_list.h"
#include "win32/pipe_tree.h"
#include "win32/sketch_view.h"

#include <qxutility/ui/window_layout.h>

#include <windows.h>

#include <memory>

namespace pipebench {

class Workspace : public ObjectWindow {
  public:
    // `onSelection` hears of another pipe selected; the double click on one comes to the parent as
    // the command IDM_EDIT.
    void Create(HWND parent, std::function<void()> onSelection);

    // The parts that `view` shows, with its sizes.
    void Arrange(const View& view);
    // Takes up the sizes that the user has given to the parts.
    void ReadSizes(View& view) const;
    // `pipes` must stay until the next call.
    void Show(const CLanguage& language, const std::vector<Pipe>& pipes, const Settings& settings);

    std::optional<std::size_t> Selected() const { return m_list.Selected(); }
    void Select(std::size_t pipe);
    void TakeFocus() { ::SetFocus(m_list.Window()); }

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCreate();
    void OnNotify(const NMHDR& header);
    void OnSelection();
    void ShowSketch(const CLanguage& language, const std::vector<Pipe>& pipes,
                    const Settings& settings);

    std::function<void()> m_onSelection;
    std::unique_ptr<WindowLayout> m_layout;
    PipeTree m_tree;
    SketchView m_sketch;
    PipeList m_list;
    bool m_filling = false;  // the program changes the parts, not the user
};

}  // namespace pipebench

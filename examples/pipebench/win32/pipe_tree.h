// The tree of a line's pipes, a branch for each material.
#pragma once

#include "core/line.h"

#include <qxutility/config/language.h>

#include <windows.h>
#include <commctrl.h>

#include <optional>
#include <vector>

namespace pipebench {

class PipeTree {
  public:
    void Create(HWND parent, int id);
    HWND Window() const { return m_window; }

    void Show(const CLanguage& language, const std::vector<Pipe>& pipes);
    // Nothing while a branch is selected.
    std::optional<std::size_t> Selected() const;
    void Select(std::size_t pipe);

  private:
    HTREEITEM Insert(HTREEITEM parent, const std::string& text, std::size_t number);

    HWND m_window = nullptr;
    std::vector<HTREEITEM> m_items;  // one per pipe
};

}  // namespace pipebench

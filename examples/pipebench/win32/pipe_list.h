// The list of pipes: one row each, columns in the user's language.
#pragma once

#include "core/pipe.h"
#include "core/units.h"

#include <qxutility/config/language.h>

#include <windows.h>

#include <optional>
#include <vector>

namespace pipebench {

class PipeList {
  public:
    void Create(HWND parent, int id);
    HWND Window() const { return m_window; }

    // Replaces headers and rows; columns become as wide as their widest text.
    void Show(const CLanguage& language, const std::vector<Pipe>& pipes, DT_UNITS units,
              int decimals);
    std::optional<std::size_t> Selected() const;
    void Select(std::size_t row);

  private:
    void ShowHeaders(const CLanguage& language, DT_UNITS units);
    void FitColumn(std::size_t index);
    void AddRow(const CLanguage& language, const Pipe& pipe, DT_UNITS units, int decimals);

    HWND m_window = nullptr;
};

}  // namespace pipebench

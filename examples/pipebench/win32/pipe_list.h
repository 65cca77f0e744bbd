// The table of results: a row per pipe, columns in the user's language.
#pragma once

#include "core/results.h"

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
    void Show(const CLanguage& language, const std::vector<Pipe>& pipes, const Settings& settings);
    std::optional<std::size_t> Selected() const;
    void Select(std::size_t row);

  private:
    void ShowHeaders(const ResultRow& headers);
    void FitColumn(std::size_t index);
    void AddRow(ResultRow cells);

    HWND m_window = nullptr;
};

}  // namespace pipebench

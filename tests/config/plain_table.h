// A table and its look-ups done the plain way, row by row, as the indexes must agree with.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qx::test {

using Criteria = std::vector<std::pair<std::string, std::string>>;  // column, value

struct PlainTable {
    char delimiter = '\t';
    std::vector<std::string> header;
    std::vector<std::vector<std::optional<std::string>>> rows;

    PlainTable(char separator, const std::vector<std::string>& lines) : delimiter(separator)
    {
        for (const std::string& name : Split(lines.front()))
            header.push_back(Clean(name));
        for (auto line = lines.begin() + 1; line != lines.end(); ++line) {
            std::vector<std::optional<std::string>> row(header.size());
            const std::vector<std::string> pieces = Split(*line);
            for (std::size_t i = 0; i < std::min(row.size(), pieces.size()); ++i)
                row[i] = Clean(pieces[i]);
            rows.push_back(row);
        }
    }

    bool Junk(char c) const
    {
        return (c >= 0 && c < 32) || c == '"' || c == '\'' || c == '\xB4' || c == delimiter;
    }

    // Each junk character in front is shifted out, the terminator staying where it is.
    std::string Clean(std::string text) const
    {
        if (text.size() < 2)
            return text;
        if (std::all_of(text.begin(), text.end(), [this](char c) { return Junk(c); }))
            return "";
        while (Junk(text[0])) {
            for (std::size_t i = 0; i + 1 < text.size(); ++i)
                text[i] = text[i + 1];
        }
        while (Junk(text.back()))
            text.pop_back();
        return text;
    }

    std::vector<std::string> Split(const std::string& line) const
    {
        std::vector<std::string> pieces(1);
        for (const char c : line) {
            if (c == delimiter)
                pieces.emplace_back();
            else
                pieces.back() += c;
        }
        return pieces;
    }

    static std::string Lower(std::string text)
    {
        for (char& c : text)
            c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        return text;
    }

    std::size_t Column(const std::string& name) const
    {
        for (std::size_t i = 0; i < header.size(); ++i) {
            if (Lower(header[i]) == Lower(name))
                return i;
        }
        return 0;
    }

    bool Meets(const std::vector<std::optional<std::string>>& row, const Criteria& criteria,
               bool ignoreCase) const
    {
        for (const auto& [column, raw] : criteria) {
            const std::optional<std::string>& cell = row[Column(column)];
            const std::string value = Clean(raw);
            if (!cell || (ignoreCase ? Lower(*cell) != Lower(value) : *cell != value))
                return false;
        }
        return true;
    }

    std::pair<int, std::string> Query(int maxResults, bool unique, bool ignoreCase,
                                      const std::string& returnColumn,
                                      const Criteria& criteria) const
    {
        int count = 0;
        std::string result;
        for (const auto& row : rows) {
            if (maxResults != 0 && count == maxResults)
                break;
            const std::optional<std::string>& cell = row[Column(returnColumn)];
            if (!Meets(row, criteria, ignoreCase) || !cell || cell->empty())
                continue;
            if (unique && ("\t" + result).find("\t" + *cell + "\t") != std::string::npos)
                continue;
            result += *cell + "\t";
            ++count;
        }
        if (maxResults == 1 && count == 1)
            result.pop_back();
        return {count, result};
    }
};

}  // namespace qx::test

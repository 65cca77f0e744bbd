// A line of pipes as a document: what the user edits, and where it is kept.
#pragma once

#include "core/pipe.h"

#include <string>
#include <vector>

namespace pipebench {

struct Line {
    std::vector<Pipe> pipes;
    std::string path;      // empty: not kept in a file yet
    bool changed = false;  // since it was read or written
};

// The name of its file without folder and extension; `untitled` for a line without a file.
std::string NameOf(const Line& line, const std::string& untitled);
// "Ring main - Pipe Bench"
std::string TitleOf(const Line& line, const std::string& untitled, const std::string& program);

// The pipes of each material that occurs, in the order of kMaterials: the branches of the tree.
struct Branch {
    std::size_t material;
    std::vector<std::size_t> pipes;  // indexes into the line
};
std::vector<Branch> ByMaterial(const std::vector<Pipe>& pipes);

}  // namespace pipebench

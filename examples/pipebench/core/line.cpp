#include "core/line.h"

namespace pipebench {

std::string NameOf(const Line& line, const std::string& untitled)
{
    if (line.path.empty())
        return untitled;
    const std::string file = line.path.substr(line.path.find_last_of("/\\:") + 1);
    return file.substr(0, file.find_last_of('.'));
}

std::string TitleOf(const Line& line, const std::string& untitled, const std::string& program)
{
    return NameOf(line, untitled) + " - " + program;
}

std::vector<Branch> ByMaterial(const std::vector<Pipe>& pipes)
{
    std::vector<Branch> branches;
    for (std::size_t material = 0; material < kMaterials.size(); ++material) {
        Branch branch{material, {}};
        for (std::size_t i = 0; i < pipes.size(); ++i) {
            if (pipes[i].material == material)
                branch.pipes.push_back(i);
        }
        if (!branch.pipes.empty())
            branches.push_back(std::move(branch));
    }
    return branches;
}

}  // namespace pipebench

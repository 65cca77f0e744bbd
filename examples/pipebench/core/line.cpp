#include "core/line.h"

namespace pipebench {

static std::string FileTitle(const std::string& path)
{
    const std::string name = path.substr(path.find_last_of("/\\:") + 1);
    return name.substr(0, name.find_last_of('.'));
}

std::string TitleOf(const Line& line, const std::string& untitled, const std::string& program)
{
    return (line.path.empty() ? untitled : FileTitle(line.path)) + " - " + program;
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

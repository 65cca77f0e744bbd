#include "core/sketch.h"

#include <algorithm>
#include <cmath>

namespace pipebench {

static int Rounded(double value)
{
    return static_cast<int>(std::lround(value));
}

std::vector<Area> LayOutSketch(const std::vector<Pipe>& pipes, const Area& canvas)
{
    if (pipes.empty())
        return {};
    const double width = std::max(0, canvas.right - canvas.left);
    const double height = std::max(0, canvas.bottom - canvas.top);
    const double least = 0.6 * width / static_cast<double>(pipes.size());
    const double shared = width - least * static_cast<double>(pipes.size());
    const double length = Sum(pipes).length;
    const double diameter = std::ranges::max(pipes, {}, &Pipe::diameter).diameter;

    std::vector<Area> sketch;
    double x = canvas.left;
    for (const Pipe& pipe : pipes) {
        const double end = x + least + shared * pipe.length / length;
        const double thickness = height * (0.2 + 0.8 * pipe.diameter / diameter);
        const int top = Rounded(canvas.top + (height - thickness) / 2);
        sketch.push_back({Rounded(x), top, Rounded(end), top + Rounded(thickness)});
        x = end;
    }
    return sketch;
}

std::optional<std::size_t> PipeAt(const std::vector<Area>& sketch, int x)
{
    const auto found = std::ranges::find_if(
        sketch, [x](const Area& area) { return x >= area.left && x < area.right; });
    if (found == sketch.end())
        return {};
    return static_cast<std::size_t>(found - sketch.begin());
}

}  // namespace pipebench

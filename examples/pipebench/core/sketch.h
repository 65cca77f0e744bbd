// Where the sketch of a line stands on its canvas: pipes one after the other, wide ones thick, long
// ones long. Whole pixels, origin at the upper left.
#pragma once

#include "core/pipe.h"

#include <optional>
#include <vector>

namespace pipebench {

struct Area {
    int left, top, right, bottom;
};

// One area per pipe. Every pipe gets some width, the rest is shared out by length.
std::vector<Area> LayOutSketch(const std::vector<Pipe>& pipes, const Area& canvas);

// The pipe at a point of the canvas; its whole column counts, not the pipe alone.
std::optional<std::size_t> PipeAt(const std::vector<Area>& sketch, int x);

}  // namespace pipebench

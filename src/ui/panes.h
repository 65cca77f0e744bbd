// The panes of a host window without their windows: a chain in which each pane takes a strip of the
// space that those before it left. Coordinates and sizes may take any value; what does not fit 32
// bits becomes the nearest value that does.
#pragma once

#include <qxutility/ui/window_layout.h>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace qx {

// The handle of a pane without a window.
inline HWND NoWindow()
{
    return reinterpret_cast<HWND>(~std::uintptr_t{0});
}

struct PaneData {
    HWND window = NoWindow();
    DWORD flags = 0;
    RECT area{};          // given to this pane and to all after it
    int size = 0;         // width of a left or right pane, height of a top or bottom one
    MINMAXINFO limits{};  // used for a pane without a window that is no splitter
};

struct Pane : PaneData {
    Pane() = default;
    explicit Pane(const PaneData& data) : PaneData(data) {}
    Pane(const Pane&) = delete;
    Pane& operator=(const Pane&) = delete;
    ~Pane();

    std::unique_ptr<Pane> next;
};

// ---- One pane

// One of the four sides, as a flag.
DWORD SideOf(DWORD flags);
// Whether the pane lies at the left or right, so that its size is a width.
bool TakesWidth(DWORD flags);
// Where the window is, and the strip that it takes with its edge.
RECT PaneRect(const PaneData& pane);
RECT SlotRect(const PaneData& pane);
// What is left of the area for the panes after this one. Where the slot does not reach from one
// side of the area to the other, that is all of it.
RECT RestArea(const PaneData& pane);
// `from` without `cut` where that is a rectangle, `from` where it is none (as SubtractRect).
RECT Subtract(const RECT& from, const RECT& cut);
// The size at which the pane's splitter would stand at a client coordinate: x for a pane that takes
// width, y for the others.
int DraggedSize(const PaneData& pane, int position);

struct GripLine {
    POINT from, to;  // the last point is not drawn
    bool white;      // otherwise grey
};
// The four lines in the middle of a splitter's bar.
std::array<GripLine, 4> Grip(const PaneData& splitter);

// ---- The chain

// Adds a pane at the end, and its splitter when it is sizable. `client` is the host's area.
void AddPane(std::unique_ptr<Pane>& first, const RECT& client, const PaneData& pane);
// The pane of a window, null when it has none.
Pane* FindPane(Pane* first, HWND window);
// Removes the pane of a window, and its splitter, but never the first pane. False when there is
// none.
bool RemovePane(Pane* first, HWND window);
bool HasSplitter(const Pane* first);
// The last pane in whose rest area the point lies: on a splitter's bar the pane that it resizes.
Pane* HitTest(Pane* first, POINT point);
// A copy of what the panes are.
std::vector<PaneData> PanesOf(const Pane* first);

// ---- Limits and layout

// What is asked about windows. The asked window may do anything meanwhile, change the chain as
// well.
struct PaneWindows {
    virtual MINMAXINFO Limits(HWND window) = 0;
    virtual SIZE Size(HWND window) = 0;

  protected:
    ~PaneWindows() = default;
};

// Each pane's own limits. A tracking size of 0 is no limit.
std::vector<MINMAXINFO> OwnLimits(const std::vector<PaneData>& panes, PaneWindows& windows);
// Of each pane and all after it; one entry more than panes, the last one without limits.
std::vector<MINMAXINFO> ChainLimits(const std::vector<PaneData>& panes,
                                    const std::vector<MINMAXINFO>& own);

struct PaneMove {
    HWND window;
    RECT area;
};
// Gives the panes their areas and corrects their sizes; the windows' moves, in order. Panes whose
// minimum sizes do not fit are left as they are, with all after them. `own` has an entry for each
// pane.
std::vector<PaneMove> LayOut(Pane* first, const RECT& client, const std::vector<MINMAXINFO>& own);

// The side of `client`, which begins at (0, 0), to which the middle of a rectangle is nearest; the
// bottom unless one is nearer than all others.
DWORD NearestSide(const RECT& rectangle, const RECT& client);

}  // namespace qx

#include "ui/toolbar_drag.h"

#include <utility>

namespace qx {

// ---- A bar in its strip

int DragBegun(std::span<const StripBar> bars, POINT mouse, bool locked)
{
    return locked ? -1 : HitTest(bars, mouse).index;
}

bool DragTo(std::span<StripBar> bars, int dragged, POINT mouse, int clientWidth)
{
    if (dragged < 0 || static_cast<std::size_t>(dragged) >= bars.size())
        return false;
    const int hit = HitTest(bars, mouse).index;
    if (hit != -1 && hit != dragged)
        return false;
    const int lastRow = LastRow(bars);
    StripBar& bar = bars[static_cast<std::size_t>(dragged)];
    if (clientWidth > std::int64_t{mouse.x} + bar.size.cx + kGripWidth)
        bar.x = mouse.x;
    // Nearly two rows: a bar can be dragged into a new row below the last one.
    if (mouse.y < std::int64_t{lastRow} + 48)
        bar.y = mouse.y;
    return true;
}

// ---- A floating window

// Hit codes of WM_NCHITTEST.
static constexpr int kHitSizeBox = 4, kHitFirstBorder = 10, kHitLastBorder = 17;

void FloatDrag::Press(int hitCode)
{
    if (!m_moving &&
        (hitCode == kHitSizeBox || (hitCode >= kHitFirstBorder && hitCode <= kHitLastBorder)))
        m_sizing = true;
}

bool FloatDrag::Enter(const RECT& window)
{
    if (m_sizing)
        return false;
    m_start = m_proposed = window;
    m_moving = true;
    m_wouldDock = false;
    return true;
}

bool FloatDrag::Step(const RECT& proposed, const std::function<bool(const RECT&)>& overDock)
{
    if (!m_moving)
        return false;
    m_wouldDock = !m_sizing && overDock(proposed);
    m_proposed = proposed;
    return true;
}

FloatEnd FloatDrag::Exit()
{
    m_sizing = false;
    if (!std::exchange(m_moving, false))
        return {};
    const bool forced = std::exchange(m_forced, false);
    return {true, m_proposed, forced || m_wouldDock, m_wouldDock, m_start};
}

}  // namespace qx

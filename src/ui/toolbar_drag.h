// Dragging with the mouse, without windows: a bar within its strip, and the outline of a floating
// window over the screen.
#pragma once

#include "ui/toolbar_strip.h"

#include <functional>

namespace qx {

// ---- A bar in its strip

// The bar that a press of the button takes hold of; -1 for none. A locked strip has none.
int DragBegun(std::span<const StripBar> bars, POINT mouse, bool locked);
// Moves the dragged bar to the mouse, as far as it may go; the strip is to be laid out anew then.
// False while the mouse is over another bar: nothing happens.
bool DragTo(std::span<StripBar> bars, int dragged, POINT mouse, int clientWidth);

// ---- A floating window

// What is to be done when a loop of moving ends.
struct FloatEnd {
    bool wasMove = false;      // otherwise nothing: a border was dragged
    RECT dock{};               // where the outline was last
    bool moveBack = false;     // the window goes back to `start`
    bool requestDock = false;  // the host is asked to dock
    RECT start{};
};

// One loop of moving or sizing a floating window, from the press of the button to its end. Between
// Enter and Exit of a move only the outline moves, and no other message is handled.
class FloatDrag {
  public:
    // A press at a hit code of the window's frame: borders and corners begin a sizing.
    void Press(int hitCode);
    // The button is up again, whether or not a loop was begun.
    void Release() { m_sizing = false; }
    // True when a move begins: the window is to be replaced by its outline.
    bool Enter(const RECT& window);
    // A step, with the rectangle that is proposed. The host is asked whether that is over its dock
    // area. False outside of a move: there is no outline to draw.
    bool Step(const RECT& proposed, const std::function<bool(const RECT&)>& overDock);
    // Nothing is to be done without a move.
    FloatEnd Exit();

    // The window goes back where the move began, wherever it ends.
    void Force() { m_forced = true; }
    bool IsMoving() const { return m_moving; }

  private:
    RECT m_proposed{}, m_start{};
    bool m_moving = false;
    bool m_sizing = false;
    bool m_wouldDock = false;
    bool m_forced = false;
};

}  // namespace qx

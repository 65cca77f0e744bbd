// A panel of buttons without its window: places, and what the mouse does to their states.
#pragma once

#include <qxutility/types.h>

#include <vector>

namespace qx {

struct ButtonArea {
    int x = 0, y = 0, width = 0, height = 0;  // in the panel
};

// Right and bottom edge included.
bool Contains(const ButtonArea& area, int x, int y);
// Makes a size reach to the area's right and bottom edge at least.
void Enclose(SIZE& size, const ButtonArea& area);
// Where a panel of a size lies in the middle of a rectangle; it is cut to it.
RECT Centred(SIZE size, const RECT& within);

// Also the number of the state's picture.
enum class ButtonState { Standard = 0, Pushed = 1, Rollover = 2 };

// One thing to be done to a button because of the mouse.
template <typename Button>
struct ButtonStep {
    Button* button;
    enum class What { SetState, Go } what;
    ButtonState state;  // of SetState
};
template <typename Button>
using ButtonSteps = std::vector<ButtonStep<Button>>;

// ---- The mouse. `tracked` is the button that the panel follows, `under` the one where the mouse
// is; either may be null. The results are to be done in order.

template <typename Button>
ButtonStep<Button> Becomes(Button* button, ButtonState state)
{
    return {button, ButtonStep<Button>::What::SetState, state};
}

template <typename Button>
ButtonSteps<Button> OnMouseMove(Button*& tracked, Button* under, bool held)
{
    ButtonSteps<Button> steps;
    if (under == tracked) {
        if (under && held)
            steps.push_back(Becomes(under, ButtonState::Pushed));
        return steps;
    }
    if (tracked)
        steps.push_back(Becomes(tracked, ButtonState::Standard));
    if (held)
        return steps;
    if (under)
        steps.push_back(Becomes(under, ButtonState::Rollover));
    tracked = under;
    return steps;
}

template <typename Button>
ButtonSteps<Button> OnMouseDown(Button* under)
{
    if (!under)
        return {};
    return {Becomes(under, ButtonState::Pushed)};
}

template <typename Button>
ButtonSteps<Button> OnMouseUp(Button*& tracked, Button* under)
{
    const bool pressed = under && under == tracked;
    tracked = nullptr;
    if (!pressed)
        return {};
    return {{under, ButtonStep<Button>::What::Go, {}}, Becomes(under, ButtonState::Standard)};
}

template <typename Button>
ButtonSteps<Button> OnMouseLeave(Button*& tracked)
{
    Button* under = nullptr;
    return OnMouseMove(tracked, under, false);
}

}  // namespace qx

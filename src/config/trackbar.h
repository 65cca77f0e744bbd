// A trackbar without its window: range and position, and what keys and the mouse do to them. Pixels
// are counted along the bar, from its left or upper end.
#pragma once

#include <optional>
#include <utility>
#include <vector>

namespace qx {

// What a trackbar tells its parent; the values are those of the standard control (TB_*).
enum class TrackbarCode {
    LineUp = 0,
    LineDown = 1,
    PageUp = 2,
    PageDown = 3,
    ThumbPosition = 4,  // the thumb was let go
    ThumbTrack = 5,     // the thumb is being dragged
    Top = 6,
    Bottom = 7,
    EndTrack = 8,  // key or mouse button released
};

class Trackbar {
  public:
    int minimum() const { return m_minimum; }
    int maximum() const { return m_maximum; }  // not below the minimum
    int position() const { return m_position; }

    // The position is kept within the range. A maximum below the minimum becomes the minimum.
    void SetRange(int minimum, int maximum);
    void SetPosition(int position);

    int lineSize() const { return m_lineSize; }
    int pageSize() const;  // a fifth of the range, unless set
    void SetLineSize(int size);
    void SetPageSize(int size);  // below 1: a fifth of the range

    int tickStep() const { return m_tickStep; }
    void SetTickStep(int step);
    int TickCount() const;  // the ends included

    // The lengths of the bar and of its thumb, in pixels.
    void SetSize(int length, int thumb);
    int PixelOf(int position) const;    // of the thumb's middle
    int PositionAt(int pixel) const;    // the nearest one
    std::pair<int, int> Thumb() const;  // its first pixel and the one after its last

    // Moves by a line, a page or to an end; the code if the position changed.
    std::optional<TrackbarCode> Move(TrackbarCode code);

    // The mouse button: on the thumb it begins to drag, elsewhere to turn pages towards the mouse,
    // until the thumb is there (it never turns back).
    std::optional<TrackbarCode> Press(int pixel);
    std::optional<TrackbarCode> MouseTo(int pixel);
    // Called again and again while the button is down and the thumb is not dragged.
    std::optional<TrackbarCode> Repeat();
    // The button was released, or (Cancel) the mouse taken away. What the parent is told, in order.
    std::vector<TrackbarCode> Release();
    std::vector<TrackbarCode> Cancel();
    bool dragging() const { return m_mouse == Mouse::Dragging; }
    bool pressed() const { return m_mouse != Mouse::Up; }

  private:
    enum class Mouse { Up, Dragging, PagingUp, PagingDown };

    int m_minimum = 0, m_maximum = 100, m_position = 0;
    int m_lineSize = 1, m_pageSize = 0, m_tickStep = 1;
    int m_length = 0, m_thumb = 0;
    Mouse m_mouse = Mouse::Up;
    int m_mousePixel = 0;  // dragging: where the thumb's middle is held; paging: where the mouse is
};

}  // namespace qx

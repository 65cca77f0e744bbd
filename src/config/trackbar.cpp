#include "config/trackbar.h"

#include <algorithm>
#include <cstdint>

namespace qx {

static constexpr int kLongest = 0x10000;  // pixels; products with a range fit 64 bits

void Trackbar::SetRange(int minimum, int maximum)
{
    m_minimum = minimum;
    m_maximum = std::max(minimum, maximum);
    SetPosition(m_position);
}

void Trackbar::SetPosition(int position)
{
    m_position = std::clamp(position, m_minimum, m_maximum);
}

static std::int64_t Span(const Trackbar& bar)
{
    return std::int64_t{bar.maximum()} - bar.minimum();
}

int Trackbar::pageSize() const
{
    const std::int64_t fifth = std::max<std::int64_t>(Span(*this) / 5, 1);
    return m_pageSize > 0 ? m_pageSize : static_cast<int>(fifth);
}

void Trackbar::SetLineSize(int size)
{
    m_lineSize = std::max(size, 0);
}
void Trackbar::SetPageSize(int size)
{
    m_pageSize = std::max(size, 0);
}
void Trackbar::SetTickStep(int step)
{
    m_tickStep = std::max(step, 1);
}

int Trackbar::TickCount() const
{
    const std::int64_t span = Span(*this);
    const std::int64_t inner = span > 0 ? (span - 1) / m_tickStep : 0;
    return static_cast<int>(std::min<std::int64_t>(inner + 2, INT32_MAX));
}

// ---- Pixels

void Trackbar::SetSize(int length, int thumb)
{
    m_length = std::clamp(length, 0, kLongest);
    m_thumb = std::clamp(thumb, 0, m_length);
}

int Trackbar::PixelOf(int position) const
{
    const std::int64_t span = Span(*this), travel = m_length - m_thumb;
    const std::int64_t offset =
        std::int64_t{std::clamp(position, m_minimum, m_maximum)} - m_minimum;
    return m_thumb / 2 + (span > 0 ? static_cast<int>((offset * travel + span / 2) / span) : 0);
}

int Trackbar::PositionAt(int pixel) const
{
    const std::int64_t span = Span(*this), travel = m_length - m_thumb;
    const std::int64_t offset =
        std::clamp<std::int64_t>(std::int64_t{pixel} - m_thumb / 2, 0, travel);
    return static_cast<int>(m_minimum + (travel > 0 ? (offset * span + travel / 2) / travel : 0));
}

std::pair<int, int> Trackbar::Thumb() const
{
    const int first = PixelOf(m_position) - m_thumb / 2;
    return {first, first + m_thumb};
}

// ---- Keys and mouse

std::optional<TrackbarCode> Trackbar::Move(TrackbarCode code)
{
    const auto moved = [this](std::int64_t by) {
        const std::int64_t target = m_position + by;
        return static_cast<int>(std::clamp<std::int64_t>(target, m_minimum, m_maximum));
    };
    const int before = m_position;
    switch (code) {
        case TrackbarCode::LineUp:
            m_position = moved(-m_lineSize);
            break;
        case TrackbarCode::LineDown:
            m_position = moved(m_lineSize);
            break;
        case TrackbarCode::PageUp:
            m_position = moved(-pageSize());
            break;
        case TrackbarCode::PageDown:
            m_position = moved(pageSize());
            break;
        case TrackbarCode::Top:
            m_position = m_minimum;
            break;
        case TrackbarCode::Bottom:
            m_position = m_maximum;
            break;
        default:
            break;
    }
    return m_position != before ? std::optional(code) : std::nullopt;
}

std::optional<TrackbarCode> Trackbar::Press(int pixel)
{
    const auto [first, end] = Thumb();
    const bool onThumb = pixel >= first && pixel < end;
    m_mouse = onThumb ? Mouse::Dragging : pixel < first ? Mouse::PagingUp : Mouse::PagingDown;
    m_mousePixel = onThumb ? pixel - PixelOf(m_position) : pixel;
    return Repeat();
}

std::optional<TrackbarCode> Trackbar::MouseTo(int pixel)
{
    if (m_mouse != Mouse::Dragging) {
        m_mousePixel = pixel;
        return {};
    }
    const int before = m_position;
    m_position = PositionAt(pixel - m_mousePixel);
    return m_position != before ? std::optional(TrackbarCode::ThumbTrack) : std::nullopt;
}

std::optional<TrackbarCode> Trackbar::Repeat()
{
    const auto [first, end] = Thumb();
    if (m_mouse == Mouse::PagingUp && m_mousePixel < first)
        return Move(TrackbarCode::PageUp);
    if (m_mouse == Mouse::PagingDown && m_mousePixel >= end)
        return Move(TrackbarCode::PageDown);
    return {};
}

std::vector<TrackbarCode> Trackbar::Release()
{
    switch (std::exchange(m_mouse, Mouse::Up)) {
        case Mouse::Dragging:
            return {TrackbarCode::ThumbPosition, TrackbarCode::EndTrack};
        case Mouse::PagingUp:
        case Mouse::PagingDown:
            return {TrackbarCode::EndTrack};
        default:
            return {};
    }
}

std::vector<TrackbarCode> Trackbar::Cancel()
{
    if (std::exchange(m_mouse, Mouse::Up) == Mouse::Up)
        return {};
    return {TrackbarCode::EndTrack};
}

}  // namespace qx

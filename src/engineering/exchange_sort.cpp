#include "engineering/exchange_sort.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <vector>

// Why this is the order that exchanges give:
//
// A comparison with NaN is false, so a point with x NaN is never exchanged, and the others exchange
// as if it were not there.
//
// Of the others, consider the points with x = v, "equal", and those with a smaller x. A pass (all j
// for one i) carries a point along, drops it where a smaller one is found and carries that one on.
// So a pass takes the first point with x <= v that it meets. If that is smaller, no equal point
// moves. If it is an equal one, that point goes right before the first smaller one, behind all
// equal points that precede it. Either way the first smaller point then leaves the sequence, as one
// of the smaller points ends up in place i. Once no smaller one is left, the equal points are taken
// in the order in which they stand.
//
// The equal points hence form a queue: reading the points as given from left to right, an equal
// point joins the queue at its end, and a smaller point sends the first of the queue to its end.
// What the queue is at last, is the order of the equal points.

namespace qx {

namespace {

struct Point {
    double x, y;
    std::size_t given;  // index among the points as given, NaN left out
};

// Counts in a row of cells (a Fenwick tree): the sum of the first ones, or the cell at a sum, in
// O(log n).
class Counts {
  public:
    explicit Counts(std::size_t cells) : m_tree(cells + 1) {}

    // One in every cell.
    static Counts Ones(std::size_t cells)
    {
        Counts counts(cells);
        for (std::size_t i = 1; i <= cells; ++i)
            counts.m_tree[i] = i & (~i + 1);
        return counts;
    }

    void Increment(std::size_t cell)
    {
        for (std::size_t i = cell + 1; i < m_tree.size(); i += i & (~i + 1))
            ++m_tree[i];
    }

    std::size_t SumBefore(std::size_t cell) const
    {
        std::size_t sum = 0;
        for (std::size_t i = cell; i > 0; i &= i - 1)
            sum += m_tree[i];
        return sum;
    }

    // Takes one from the first cell that has more than `sum` up to and including itself.
    std::size_t Take(std::size_t sum)
    {
        std::size_t cell = 0;
        for (std::size_t step = std::bit_floor(m_tree.size() - 1); step > 0; step /= 2) {
            if (cell + step >= m_tree.size())
                continue;
            if (m_tree[cell + step] > sum) {
                --m_tree[cell + step];
            } else {
                cell += step;
                sum -= m_tree[cell];
            }
        }
        return cell;
    }

  private:
    std::vector<std::size_t> m_tree;
};

// Puts points with equal x, in the order as given, into the order of the queue. sent[i] is how
// many smaller points stand between point i and the next one. Goes backwards: the last point to
// join stands where the turns of the queue after it leave the last place, among the places that
// are still free; the queue before it starts at the free place that follows.
void QueueOrder(std::span<Point> points, const std::vector<std::size_t>& sent)
{
    Counts freePlaces = Counts::Ones(points.size());
    std::vector<Point> queue(points.size());
    std::size_t start = 0;
    for (std::size_t length = points.size(); length > 0; --length) {
        const std::size_t turns = sent[length - 1] % length;
        const std::size_t last = (start + length - 1 - turns) % length;
        queue[freePlaces.Take(last)] = points[length - 1];
        start = length > 1 ? last % (length - 1) : 0;
    }
    std::copy(queue.begin(), queue.end(), points.begin());
}

// Gives every run of equal x in sorted points its order.
void OrderEqualPoints(std::span<Point> points)
{
    Counts smaller(points.size());  // by place as given
    std::vector<std::size_t> sent;
    for (auto first = points.begin(); first != points.end();) {
        const auto last = std::find_if(first, points.end(),
                                       [&](const Point& point) { return point.x != first->x; });
        sent.clear();
        for (auto point = first; point != last; ++point) {
            const std::size_t end = point + 1 == last ? points.size() : (point + 1)->given;
            sent.push_back(smaller.SumBefore(end) - smaller.SumBefore(point->given));
        }
        for (auto point = first; point != last; ++point)
            smaller.Increment(point->given);
        QueueOrder({first, last}, sent);
        first = last;
    }
}

std::vector<Point> PointsInPlay(std::span<const double> x, std::span<const double> y)
{
    std::vector<Point> points;
    points.reserve(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (!std::isnan(x[i]))
            points.push_back({x[i], y[i], points.size()});
    }
    return points;
}

}  // namespace

void ExchangeSort(std::span<double> x, std::span<double> y)
{
    std::vector<Point> points = PointsInPlay(x, y);
    const auto byX = [](const Point& a, const Point& b) { return a.x < b.x; };
    if (std::is_sorted(points.begin(), points.end(), byX))
        return;
    std::stable_sort(points.begin(), points.end(), byX);
    const auto sameX = [](const Point& a, const Point& b) { return a.x == b.x; };
    if (std::adjacent_find(points.begin(), points.end(), sameX) != points.end())
        OrderEqualPoints(points);

    auto next = points.begin();
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (std::isnan(x[i]))
            continue;
        x[i] = next->x;
        y[i] = next->y;
        ++next;
    }
}

}  // namespace qx

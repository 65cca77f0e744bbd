// A curve given as a table of points.
#pragma once

#include <qxutility/export.h>

#include <cstddef>
#include <vector>

// Answers y for any x by straight lines between neighbouring points; the first and the last segment
// extend beyond the table. A value: copies own their points.
//
// Loading sorts the points by x and drops those at x = 0 (of either sign). If the first point as
// given was at 0, the search for them starts behind the first point of the sorted table, so that a
// table without negative x keeps exactly one point at 0. Points with another x may share it. A
// table loaded from a single point is empty.
//
// Points with equal x come out in an order of their own, and points whose x is NaN stay in the
// place where they were given; applications rely on both (see ExchangeSort).
class QX_API CPointArray {
  public:
    CPointArray(int ignored = 0);  // empty
    // Init with the same arguments. A count of 0 or below, or a null array, gives an empty table.
    CPointArray(int count, const double* x, const double* y);

    // Copies, also where a move is asked for: a table is usable at any time.
    CPointArray(const CPointArray&) = default;
    CPointArray& operator=(const CPointArray&) = default;
    ~CPointArray() = default;

    // Replaces the table by `count` points; the arrays are copied. In O(n log n).
    void Init(int count, const float* x, const float* y);
    void Init(int count, const double* x, const double* y);

    // True when there is a point. A table of one point is possible: (3,1), (0,0) keeps only the
    // first.
    bool Valid() const;
    // Whether x lies in the table, ends included. False for an empty table and for NaN.
    bool InRange(double x) const;
    // y at x; 0 for an empty table, the point's y for a single point. Between two points with the
    // same x it is what the division by zero gives: an infinity or NaN. In O(log n).
    double GetY(double x) const;

  private:
    template <class Number>
    void Load(int count, const Number* x, const Number* y);
    void SortAndSqueeze(int count);
    void PrepareSearch();

    std::vector<double> m_x, m_y;  // points in use first, then zeros
    int m_count = 0;               // points in use
    // How GetY searches: from which segment on, by which step first, by which one then.
    std::size_t m_lowest = 0, m_firstStep = 0, m_nextStep = 0;
};

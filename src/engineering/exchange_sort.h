// Sorting of points, with the outcome of sorting by exchanges.
#pragma once

#include <span>

namespace qx {

// Sorts the points (x[i], y[i]) by x in O(n log n), with exactly the outcome of
//
//     for each i, for each j > i: if x[j] < x[i], exchange the points i and j
//
// for every input. That outcome is no stable sort: points with equal x are permuted, and a point
// whose x is NaN stays where it is. Tables in the field rely on the order of equal points, as it
// decides which one is kept and where a curve jumps.
void ExchangeSort(std::span<double> x, std::span<double> y);

}  // namespace qx

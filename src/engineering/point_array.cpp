#include "engineering/exchange_sort.h"

#include <qxutility/engineering/point_array.h>

#include <algorithm>
#include <bit>
#include <cmath>

namespace {

// One step of a search. Compiles to a conditional move: a branch would be guessed wrong half of
// the time.
const double* StepUnlessBeyond(const double* point, std::size_t step, double x)
{
    const double* further = point + step;
    return x >= *further ? further : point;
}

}  // namespace

CPointArray::CPointArray(int) {}

CPointArray::CPointArray(int count, const double* x, const double* y)
{
    Init(count, x, y);
}

void CPointArray::Init(int count, const float* x, const float* y)
{
    Load(count, x, y);
}

void CPointArray::Init(int count, const double* x, const double* y)
{
    Load(count, x, y);
}

template <class Number>
void CPointArray::Load(int count, const Number* x, const Number* y)
{
    *this = CPointArray();
    if (count <= 0 || !x || !y)
        return;
    m_x.assign(x, x + count);
    m_y.assign(y, y + count);
    SortAndSqueeze(count);
}

void CPointArray::SortAndSqueeze(int count)
{
    const int searchFrom = m_x[0] == 0.0 ? 1 : 0;
    qx::ExchangeSort(m_x, m_y);

    const auto first = m_x.begin() + searchFrom;
    const auto last = std::find_if(first, m_x.end(), [](double x) { return x != 0.0; });
    const auto squeezed = last - first;
    // A single point leaves the table empty: deliberate, callers ask Valid().
    m_count = count == 1 ? 0 : count - static_cast<int>(squeezed);
    m_x.erase(first, last);
    m_y.erase(m_y.begin() + searchFrom, m_y.begin() + searchFrom + squeezed);
    for (std::vector<double>* slots : {&m_x, &m_y}) {
        slots->resize(static_cast<std::size_t>(m_count));
        slots->resize(static_cast<std::size_t>(count));  // zeros
    }

    PrepareSearch();
}

// Segments below a NaN are left out: a scan from the last point down would stop there. The first
// step leaves a power of two of segments; the later ones halve it.
void CPointArray::PrepareSearch()
{
    if (m_count < 2)
        return;
    const std::size_t last = static_cast<std::size_t>(m_count) - 2;
    std::size_t lastNan = last + 1;
    while (lastNan > 0 && !std::isnan(m_x[lastNan]))
        --lastNan;
    m_lowest = std::min(lastNan, last);
    const std::size_t segments = last - m_lowest + 1;
    const std::size_t left = std::bit_floor(segments - 1);
    m_firstStep = left == 0 ? 0 : segments - left;
    m_nextStep = left / 2;
}

bool CPointArray::Valid() const
{
    return m_count > 0;
}

bool CPointArray::InRange(double x) const
{
    return m_count > 0 && m_x[0] <= x && x <= m_x[m_count - 1];
}

double CPointArray::GetY(double x) const
{
    if (m_count < 2)
        return m_count == 0 ? 0.0 : m_y[0];
    const double* const points = m_x.data();
    const double* start = StepUnlessBeyond(points + m_lowest, m_firstStep, x);
    for (std::size_t step = m_nextStep; step > 0; step /= 2)
        start = StepUnlessBeyond(start, step, x);
    const double* y = m_y.data() + (start - points);
    return y[1] - (start[1] - x) * (y[1] - y[0]) / (start[1] - start[0]);
}

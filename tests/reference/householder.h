// Polynomial detrending in extended precision: the whole design matrix, powers from the run-time library, Householder
// reflectors one column at a time.
#pragma once
#include <algorithm>
#include <cmath>
#include <vector>

namespace quordsp::reference {

using Extended = long double;
using Column = std::vector<Extended>;

// Highest power first, a column for each breakpoint in every block, the constant last. Breakpoints count from 1.
inline std::vector<Column> designMatrix(int count, int order, const std::vector<double>& breakpoints)
{
    std::vector<Extended> places{0.0L};
    for (const double breakpoint : breakpoints)
        places.push_back(static_cast<Extended>(breakpoint) - 1.0L);
    std::vector<Column> columns;
    for (int power = order; power > 0; --power)
        for (const Extended place : places) {
            Column column;
            for (int i = 0; i < count; ++i)
                column.push_back(std::pow(std::max((i - place) / (count - 1), 0.0L), static_cast<Extended>(power)));
            columns.push_back(column);
        }
    columns.emplace_back(static_cast<std::size_t>(count), 1.0L);
    return columns;
}

// Reflects `right` and all columns from `pivot` on so that the pivot's column becomes zero below the diagonal.
inline void eliminate(std::vector<Column>& columns, std::size_t pivot, Column& right)
{
    Column v(columns[pivot].begin() + static_cast<std::ptrdiff_t>(pivot), columns[pivot].end());
    Extended squares = 0.0L;
    for (const Extended x : v)
        squares += x * x;
    v[0] += std::copysign(std::sqrt(squares), v[0]);
    Extended vv = 0.0L;
    for (const Extended x : v)
        vv += x * x;
    const auto reflect = [&](Column& column) {
        Extended product = 0.0L;
        for (std::size_t i = 0; i < v.size(); ++i)
            product += v[i] * column[pivot + i];
        for (std::size_t i = 0; i < v.size(); ++i)
            column[pivot + i] -= 2.0L * product / vv * v[i];
    };
    for (std::size_t j = pivot; j < columns.size(); ++j)
        reflect(columns[j]);
    reflect(right);
}

inline std::vector<double> withoutTrend(const std::vector<double>& samples, int order,
                                        const std::vector<double>& breakpoints = {})
{
    const auto design = designMatrix(static_cast<int>(samples.size()), order, breakpoints);
    auto columns = design;
    Column right(samples.begin(), samples.end());
    for (std::size_t i = 0; i < columns.size(); ++i)
        eliminate(columns, i, right);
    Column residual(samples.begin(), samples.end());
    for (std::size_t j = columns.size(); j-- > 0;) {
        const Extended coefficient = right[j] / columns[j][j];
        for (std::size_t i = 0; i < j; ++i)
            right[i] -= coefficient * columns[j][i];
        for (std::size_t i = 0; i < residual.size(); ++i)
            residual[i] -= coefficient * design[j][i];
    }
    return {residual.begin(), residual.end()};
}

} // namespace quordsp::reference

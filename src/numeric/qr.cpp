#include "numeric/qr.h"

#include "cpu/instruction_set.h"
#include "numeric/qr_kernel.h"

namespace quordsp {

void factor(Matrix a, int pivots, int rows, double* products) noexcept
{
    onThisMachine<eliminateKernel>(a, pivots, 1, rows, 1, products);
}

void absorb(Matrix a, int pivots, int first, int last, double* products) noexcept
{
    onThisMachine<eliminateKernel>(a, pivots, first, last, 0, products);
}

void solveTriangle(Matrix a, int unknowns) noexcept
{
    double* const x = a.column(a.columns - 1);
    for (int j = unknowns - 1; j >= 0; --j) {
        if (x[j] == 0.0)
            continue;
        const double* const column = a.column(j);
        x[j] /= column[j];
        for (int i = 0; i < j; ++i)
            x[i] -= x[j] * column[i];
    }
}

} // namespace quordsp

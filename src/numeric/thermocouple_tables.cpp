// Thermocouple polynomials, written by tools/make_thermocouple_tables.py; the published functions and their source
// stand in tools/its90. Each coefficient has its published digits and is held as the nearest single.
// clang-format off
// NOLINTBEGIN(modernize-use-std-numbers): a coefficient may be near a known constant
#include "numeric/thermocouple_tables.h"

namespace quordsp {

const InverseFunction kInverseFunctions[kThermocoupleTypes] = {
    // B
    // Above 1.978 mV and below 0.033 mV alike, with no limit: the polynomial from 700 degC.
    {
        .rules = {
            {halfOpen(0.033, 1.978), {8, {9.8423321E+01f, 6.9971500E+02f, -8.4765304E+02f, 1.0052644E+03f,
                -8.3345952E+02f, 4.5508542E+02f, -1.5523037E+02f, 2.9886750E+01f, -2.4742860E+00f}}},
        },
        .elsewhere = {8, {2.1315071E+02f, 2.8510504E+02f, -5.2742887E+01f, 9.9160804E+00f, -1.2965303E+00f,
            1.1195870E-01f, -6.0625199E-03f, 1.8661696E-04f, -2.4878585E-06f}},
    },
    // E
    // From 0 mV the coefficient of degree 8 is the published one of degree 9.
    {
        .rules = {
            {halfOpen(-9.8294, 0.0), {8, {0.0000000E+00f, 1.6977288E+01f, -4.3514970E-01f, -1.5859697E-01f,
                -9.2502871E-02f, -2.6084314E-02f, -4.1360199E-03f, -3.4034030E-04f, -1.1564890E-05f}}},
            {halfOpen(0.0, 76.3279), {8, {0.0000000E+00f, 1.7057035E+01f, -2.3301759E-01f, 6.5435585E-03f,
                -7.3562749E-05f, -1.7896001E-06f, 8.4036165E-08f, -1.3735879E-09f, -3.2447087E-14f}}},
        },
        .elsewhere = {0, {0.0f}},
    },
    // J
    // From 0 to 42.919 mV the coefficients are those of type K up to degree 6.
    {
        .rules = {
            {halfOpen(-8.105, 0.0), {8, {0.0000000E+00f, 1.9528268E+01f, -1.2286185E+00f, -1.0752178E+00f,
                -5.9086933E-01f, -1.7256713E-01f, -2.8131513E-02f, -2.3963370E-03f, -8.3823321E-05f}}},
            {halfOpen(0.0, 42.919), {7, {0.000000E+00f, 2.508355E+01f, 0.0786016f, -2.503131E-01f, 8.315270E-02f,
                -1.228034E-02f, 9.804036E-04f, 5.099890E-10f}}},
            {closed(42.919, 69.563), {5, {-3.11358187E+03f, 3.00543684E+02f, -9.94773230E+00f, 1.70276630E-01f,
                -1.43033468E-03f, 4.73886084E-06f}}},
        },
        .elsewhere = {0, {0.0f}},
    },
    // K
    // Below 0 mV only the term of degree 8 is carried; from 0 mV the coefficient of degree 2 is 0.0786016.
    // A voltage of 20.646 mV rounds to a single just below the boundary and takes the lower range; -6.478 mV
    // and 54.9 mV round to singles just outside.
    {
        .rules = {
            {halfOpen(-6.478, 0.0), {8, {0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f, 0.0f, -5.1920577E-04f}}},
            {halfOpen(0.0, 20.646), {9, {0.000000E+00f, 2.508355E+01f, 0.0786016f, -2.503131E-01f, 8.315270E-02f,
                -1.228034E-02f, 9.804036E-04f, -4.413030E-05f, 1.057734E-06f, -1.052755E-08f}}},
            {closed(20.646, 54.9), {6, {-1.318058E+02f, 4.830222E+01f, -1.646031E+00f, 5.464731E-02f, -9.650715E-04f,
                8.802193E-06f, -3.110810E-08f}}},
        },
        .elsewhere = {0, {0.0f}},
        .limited = true,
    },
    // R
    // Outside -0.24 to 13.228 mV a flag takes the place of the voltage: the polynomial from 1064 degC at 1 below
    // 19.739 mV, the one from 1664.5 degC at 0 otherwise. Both are constants, the former 65.47417449951172; the
    // published coefficients in single precision would give 65.47418975830078.
    {
        .rules = {
            {halfOpen(-0.24, 1.923), {10, {0.0000000E+00f, 1.8891380E+02f, -9.3835290E+01f, 1.3068619E+02f,
                -2.2703580E+02f, 3.5145659E+02f, -3.8953900E+02f, 2.8239471E+02f, -1.2607281E+02f, 3.1353611E+01f,
                -3.3187769E+00f}}},
            {halfOpen(1.923, 13.228), {9, {1.334584505E+01f, 1.472644573E+02f, -1.844024844E+01f, 4.031129726E+00f,
                -6.249428360E-01f, 6.468412046E-02f, -4.458750426E-03f, 1.994710149E-04f, -5.313401790E-06f,
                6.481976217E-08f}}},
            {halfOpen(-kInfinity, 19.739), {0, {65.47417449951172f}}},
        },
        .elsewhere = {0, {3.406177836E+04f}},
    },
    // S
    // Above 17.536 mV and below -0.245 mV alike, with no limit: the polynomial from 1664.5 degC.
    {
        .rules = {
            {halfOpen(-0.245, 1.874), {9, {0.00000000E+00f, 1.84949460E+02f, -8.00504062E+01f, 1.02237430E+02f,
                -1.52248592E+02f, 1.88821343E+02f, -1.59085941E+02f, 8.23027880E+01f, -2.34181944E+01f,
                2.79786260E+00f}}},
            {halfOpen(1.874, 11.95), {9, {1.291507177E+01f, 1.466298863E+02f, -1.534713402E+01f, 3.145945973E+00f,
                -4.163257839E-01f, 3.187963771E-02f, -1.291637500E-03f, 2.183475087E-05f, -1.447379511E-07f,
                8.211272125E-09f}}},
            {halfOpen(11.95, 17.536), {5, {-8.087801117E+01f, 1.621573104E+02f, -8.536869453E+00f, 4.719686976E-01f,
                -1.441693666E-02f, 2.081618890E-04f}}},
        },
        .elsewhere = {4, {5.333875126E+04f, -1.235892298E+04f, 1.092657613E+03f, -4.265693686E+01f,
            6.247205420E-01f}},
    },
    // T
    {
        .rules = {
            {halfOpen(-6.268, 0.0), {7, {0.0000000E+00f, 2.5949192E+01f, -2.1316967E-01f, 7.9018692E-01f,
                4.2527777E-01f, 1.3304473E-01f, 2.0241446E-02f, 1.2668171E-03f}}},
            {closed(0.0, 20.882), {6, {0.000000E+00f, 2.592800E+01f, -7.602961E-01f, 4.637791E-02f, -2.165394E-03f,
                6.048144E-05f, -7.293422E-07f}}},
        },
        .elsewhere = {0, {0.0f}},
    },
    // N
    // From 0 to 20.613 mV the coefficients of degree 3 and 4 are added up, and the others sit one degree lower.
    {
        .rules = {
            {halfOpen(-4.365, 0.0), {9, {0.0000000E+00f, 3.8436847E+01f, 1.1010485E+00f, 5.2229312E+00f,
                7.2060525E+00f, 5.8488586E+00f, 2.7754916E+00f, 7.7075166E-01f, 1.1582665E-01f, 7.3138868E-03f}}},
            {halfOpen(0.0, 20.613), {6, {0.00000E+00f, 3.86896E+01f, -1.08267E+00f, 0.04701838f, -1.17272E-04f,
                5.39280E-06f, -7.98156E-08f}}},
            {closed(20.613, 47.533), {5, {1.972485E+01f, 3.300943E+01f, -3.915159E-01f, 9.855391E-03f, -1.274371E-04f,
                7.767022E-07f}}},
        },
        .elsewhere = {0, {0.0f}},
    },
};

const ReferenceFunction kTypeK = {
    .negative = {10, {0.000000000000E+00f, 0.394501280250E-01f, 0.236223735980E-04f, -0.328589067840E-06f,
        -0.499048287770E-08f, -0.675090591730E-10f, -0.574103274280E-12f, -0.310888728940E-14f, -0.104516093650E-16f,
        -0.198892668780E-19f, -0.163226974860E-22f}},
    .positive = {9, {-0.176004136860E-01f, 0.389212049750E-01f, 0.185587700320E-04f, -0.994575928740E-07f,
        0.318409457190E-09f, -0.560728448890E-12f, 0.560750590590E-15f, -0.320207200030E-18f, 0.971511471520E-22f,
        -0.121047212750E-25f}},
    .a0 = 0.118597600000E+00f,
    .a1 = -0.118343200000E-03f,
    .a2 = 0.126968600000E+03,
};

} // namespace quordsp
// NOLINTEND(modernize-use-std-numbers)

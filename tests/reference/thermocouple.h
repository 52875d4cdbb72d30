// Thermocouple voltages to temperatures, sample by sample as one writes it down: a branch for each range, ends compared
// in double precision. Also the plain loop that the benchmarks hold the library against.
#pragma once
#include <cmath>
#include <cstddef>

namespace quordsp::reference {

// Lowest power first; rounded to Real after every operation. No coefficient here is so near the middle between two
// singles that the way through double changes it.
template <class Real, std::size_t kSize>
Real polynomial(Real x, const double (&coefficients)[kSize])
{
    Real y = static_cast<Real>(coefficients[kSize - 1]);
    for (std::size_t i = kSize - 1; i-- > 0;) {
        const Real product = y * x;
        y = product + static_cast<Real>(coefficients[i]);
    }
    return y;
}

inline float coldJunctionVoltage(double temperature)
{
    const float t = static_cast<float>(temperature);
    const double wide = t;
    if (wide > 1370.0 || wide < -270.0)
        return 0.0f;
    const float p = t < 0 ? polynomial(t, {0.0, 0.039450128025, 2.3622373598e-5, -3.2858906784e-7, -4.9904828777e-9,
                                           -6.7509059173e-11, -5.7410327428e-13, -3.1088872894e-15, -1.0451609365e-17,
                                           -1.9889266878e-20, -1.6322697486e-23})
                          : polynomial(t, {-0.017600413686, 0.038921204975, 1.855877007e-5, -9.9457592874e-8,
                                           3.1840945719e-10, -5.6072844889e-13, 5.6075059059e-16, -3.2020720003e-19,
                                           9.7151147152e-23, -1.2104721275e-26});
    const double g = (wide - 126.9686) * static_cast<double>(-0.1183432e-3f) * (wide - 126.9686);
    return static_cast<float>(std::exp(g) * static_cast<double>(0.1185976f) + static_cast<double>(p));
}

template <class Real>
Real typeB(float v)
{
    const double e = v;
    if (e >= 0.033 && e < 1.978)
        return polynomial<Real>(
            v, {98.423321, 699.715, -847.65304, 1005.2644, -833.45952, 455.08542, -155.23037, 29.88675, -2.474286});
    return polynomial<Real>(v, {213.15071, 285.10504, -52.742887, 9.9160804, -1.2965303, 0.1119587, -0.0060625199,
                                0.00018661696, -2.4878585e-6});
}

template <class Real>
Real typeE(float v)
{
    const double e = v;
    if (e >= -9.8294 && e < 0)
        return polynomial<Real>(v, {0.0, 16.977288, -0.4351497, -0.15859697, -0.092502871, -0.026084314, -0.0041360199,
                                    -0.0003403403, -1.156489e-5, 0.0});
    if (e >= 0 && e < 76.3279)
        return polynomial<Real>(v, {0.0, 17.057035, -0.23301759, 6.5435585e-3, -7.3562749e-5, -1.7896001e-6,
                                    8.4036165e-8, -1.3735879e-9, -3.2447087e-14});
    return 0;
}

template <class Real>
Real typeJ(float v)
{
    const double e = v;
    if (e >= -8.105 && e < 0)
        return polynomial<Real>(v, {0.0, 19.528268, -1.2286185, -1.0752178, -0.59086933, -0.17256713, -0.028131513,
                                    -0.002396337, -8.3823321e-5});
    if (e >= 0 && e < 42.919)
        return polynomial<Real>(
            v, {0.0, 25.08355, 0.0786016, -0.2503131, 0.0831527, -0.01228034, 9.804036e-4, 5.09989e-10});
    if (e >= 42.919 && e <= 69.563)
        return polynomial<Real>(v, {-3113.58187, 300.543684, -9.9477323, 0.17027663, -0.00143033468, 4.73886084e-6});
    return 0;
}

inline bool outOfRangeK(float v)
{
    const double e = v;
    return e > 54.9 || e < -6.478;
}

template <class Real>
Real typeK(float v)
{
    const double e = v;
    if (e >= -6.478 && e < 0)
        return polynomial<Real>(v, {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, -5.1920577e-4});
    if (e >= 0 && e < 20.646)
        return polynomial<Real>(v, {0.0, 25.08355, 0.0786016, -0.2503131, 0.0831527, -0.01228034, 9.804036e-4,
                                    -4.41303e-5, 1.057734e-6, -1.052755e-8});
    if (e >= 20.646 && e <= 54.9)
        return polynomial<Real>(v,
                                {-131.8058, 48.30222, -1.646031, 0.05464731, -9.650715e-4, 8.802193e-6, -3.11081e-8});
    return 0;
}

template <class Real>
Real typeR(float v)
{
    const double e = v;
    if (e >= -0.24 && e < 1.923)
        return polynomial<Real>(v, {0.0, 188.9138, -93.83529, 130.68619, -227.0358, 351.45659, -389.539, 282.39471,
                                    -126.07281, 31.353611, -3.3187769});
    if (e >= 1.923 && e < 13.228)
        return polynomial<Real>(v, {13.34584505, 147.2644573, -18.44024844, 4.031129726, -0.624942836, 0.06468412046,
                                    -0.004458750426, 0.0001994710149, -5.31340179e-6, 6.481976217e-8});
    return static_cast<Real>(e < 19.739 ? 65.47417449951172 : 34061.77734375);
}

template <class Real>
Real typeS(float v)
{
    const double e = v;
    if (e >= -0.245 && e < 1.874)
        return polynomial<Real>(v, {0.0, 184.94946, -80.0504062, 102.23743, -152.248592, 188.821343, -159.085941,
                                    82.302788, -23.4181944, 2.7978626});
    if (e >= 1.874 && e < 11.95)
        return polynomial<Real>(v, {12.91507177, 146.6298863, -15.34713402, 3.145945973, -0.4163257839, 0.03187963771,
                                    -0.0012916375, 2.183475087e-5, -1.447379511e-7, 8.211272125e-9});
    if (e >= 11.95 && e < 17.536)
        return polynomial<Real>(
            v, {-80.87801117, 162.1573104, -8.536869453, 0.4719686976, -0.01441693666, 0.000208161889});
    return polynomial<Real>(v, {53338.75126, -12358.92298, 1092.657613, -42.65693686, 0.624720542});
}

template <class Real>
Real typeT(float v)
{
    const double e = v;
    if (e >= -6.268 && e < 0)
        return polynomial<Real>(
            v, {0.0, 25.949192, -0.21316967, 0.79018692, 0.42527777, 0.13304473, 0.020241446, 0.0012668171});
    if (e >= 0 && e <= 20.882)
        return polynomial<Real>(v, {0.0, 25.928, -0.7602961, 0.04637791, -0.002165394, 6.048144e-5, -7.293422e-7});
    return 0;
}

template <class Real>
Real typeN(float v)
{
    const double e = v;
    if (e >= -4.365 && e < 0)
        return polynomial<Real>(v, {0.0, 38.436847, 1.1010485, 5.2229312, 7.2060525, 5.8488586, 2.7754916, 0.77075166,
                                    0.11582665, 0.0073138868});
    if (e >= 0 && e < 20.613)
        return polynomial<Real>(v, {0.0, 38.6896, -1.08267, 0.04701838, -1.17272e-4, 5.3928e-6, -7.98156e-8, 0.0});
    if (e >= 20.613 && e <= 47.533)
        return polynomial<Real>(v, {19.72485, 33.00943, -0.3915159, 0.009855391, -1.274371e-4, 7.767022e-7});
    return 0;
}

// The temperature in degC; with a wider Real what exact arithmetic would give.
template <class Real = float>
Real celsius(int type, float v)
{
    switch (type) {
    case 0:
        return typeB<Real>(v);
    case 1:
        return typeE<Real>(v);
    case 2:
        return typeJ<Real>(v);
    case 3:
        return typeK<Real>(v);
    case 4:
        return typeR<Real>(v);
    case 5:
        return typeS<Real>(v);
    case 6:
        return typeT<Real>(v);
    default:
        return typeN<Real>(v);
    }
}

inline float inUnit(int unit, float celsius)
{
    const double t = celsius;
    switch (unit) {
    case 1:
        return static_cast<float>(t * 1.8 + 32.0);
    case 2:
        return static_cast<float>(t + 273.15);
    case 3:
        return static_cast<float>((t + 273.15) * 1.8);
    default:
        return celsius;
    }
}

inline int thermocouple(const double* emf, int count, int unit, int type, double coldJunction, double* temperature)
{
    if (count < 1)
        return 0;
    if (type < 0 || type > 7)
        return 2147483647;
    const double added = coldJunctionVoltage(coldJunction);
    for (int i = 0; i < count; ++i) {
        const float v = static_cast<float>(added + emf[i]);
        if (type == 3 && outOfRangeK(v))
            return -20322;
        temperature[i] = inUnit(unit, celsius(type, v));
    }
    return 0;
}

} // namespace quordsp::reference

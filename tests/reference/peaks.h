// The rule of the peak detector, word for word, with every fit computed on its own in long double.
#pragma once
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace quordsp::reference {

struct Peak {
    double location;
    double amplitude;
    double secondDerivative;

    bool operator==(const Peak&) const = default;
};

class PeakRule {
public:
    PeakRule(const std::vector<double>& x, double threshold, std::int64_t width, bool valleys)
        : width_{std::max<std::int64_t>(width, 3)}, sign_{valleys ? -1.0 : 1.0}, threshold_{sign_ * threshold}
    {
        for (std::size_t first = 0; first + static_cast<std::size_t>(width_) <= x.size(); ++first)
            fits_.push_back(fit(x.data() + first));
    }

    std::vector<Peak> peaks()
    {
        for (std::size_t g = 0; g < fits_.size(); ++g) {
            const Fit& here = fits_[g];
            if (g == 0 && here.opensDown() && here.c1 <= 0 && here.vertex() >= -0.5L)
                keep(g);
            if (g > 0 && fits_[g - 1].c1 > 0 && here.c1 <= 0)
                keepTheNearer(g - 1, g);
            if (g + 1 == fits_.size() && here.opensDown() && here.c1 > 0 && here.vertex() <= 0.5L)
                keep(g);
        }
        return found_;
    }

private:
    struct Fit {
        long double c0, c1, c2; // a parabola around the centre
        long double distance;   // of its vertex, in units that all fits share; exact for equal fractions

        bool opensDown() const { return c2 < 0; }
        long double vertex() const { return -c1 / (2 * c2); }
    };

    Fit fit(const double* y) const
    {
        const auto w = static_cast<long double>(width_);
        long double s2 = 0, s4 = 0, sum = 0, first = 0, second = 0;
        for (std::int64_t j = 0; j < width_; ++j) {
            const long double u = static_cast<long double>(j) - (w - 1) / 2;
            const long double value = sign_ * static_cast<long double>(y[j]);
            s2 += u * u;
            s4 += u * u * u * u;
            sum += value;
            first += u * value;
            second += u * u * value;
        }
        const long double c2 = (w * second - s2 * sum) / (w * s4 - s2 * s2);
        return {(sum - c2 * s2) / w, first / s2, c2, std::abs(first / (w * second - s2 * sum))};
    }

    void keepTheNearer(std::size_t before, std::size_t here)
    {
        const Fit& a = fits_[before];
        const Fit& b = fits_[here];
        if (a.opensDown() && !(b.opensDown() && b.distance < a.distance))
            keep(before);
        else if (b.opensDown())
            keep(here);
    }

    void keep(std::size_t group)
    {
        const Fit& f = fits_[group];
        const long double amplitude = f.c0 - f.c1 * f.c1 / (4 * f.c2);
        const long double centre = static_cast<long double>(group) + static_cast<long double>(width_ - 1) / 2;
        if (amplitude >= threshold_)
            found_.push_back({static_cast<double>(centre + f.vertex()), static_cast<double>(sign_ * amplitude),
                              static_cast<double>(sign_ * 2 * f.c2)});
    }

    std::int64_t width_;
    long double sign_;
    long double threshold_;
    std::vector<Fit> fits_;
    std::vector<Peak> found_;
};

} // namespace quordsp::reference

#include "parity/exports.h"

#include <limits>
#include <random>

namespace quordsp::parity {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

const Choices kChoices{
    {'n', {{129, 1, 2, 16, 1000}, {0, -1}}},           // samples
    {'s', {{1000, 2500}, {0, -1, kNan, 150}}},         // sampling frequency
    {'l', {{100, 1, 250}, {0, 500, -100, kNan, 450}}}, // cut-off, or the lower one
    {'h', {{200, 130, 480}, {50, 100, 500, kNan}}},    // upper cut-off
    {'r', {{0.5, 3, 0.01}, {0, -1, kNan, 4000}}},      // ripple
    {'a', {{60, 20, 100}, {0, -1, 0.2, kNan}}},        // attenuation
    {'o', {{4, 1, 2, 3, 5, 8, 12}, {0, -1}}},          // order
    {'t', {{0, 1, 2, 3}, {4, 5, 6, -1}}},              // filter type
    {'p', {{0}, {-1, 1}}},                             // coefficients more than type and order ask for
    {'q', {{0}, {-1, 1}}},                             // likewise
    {'c', {{1, 2}, {0}}},                              // first reverse coefficient
    {'x', {{4, 1, 2, 5, 0, 9}, {}}},                   // reverse coefficients
    {'y', {{3, 1, 8, 0}, {}}},                         // forward coefficients
    {'k', {{33, 65, 3, 64}, {0, -1, 2, 1}}},           // taps
    {'w', {{2, 0, 1, 3, 4, 5, 6, 7, 8, 9, 11, 30, 31, 32, 33, 34, 60, 61, 62}, {10, -1, 63}}}, // window
    {'b', {{4, 0.3, 60, kNan}, {-1, 0}}}, // parameter of the window
    {'1', {{50, 100}, {0, 160, kNan}}},   // edges of bands
    {'2', {{150, 120}, {500, 40}}},
    {'3', {{300, 250}, {130}}},
    {'4', {{360, 400}, {500, kNan}}},
    {'5', {{0}, {-1}}},                   // bands, 0: as many as there are
    {'6', {{30, 20, 60}, {0, -1, kNan}}}, // pass band of a narrow-band filter
    {'7', {{90, 120, 25}, {600, 0}}},     // its stop band
    {'j', {{0, 1, 2, 6}, {3, 4, 5}}},     // which bands, see arrays.cpp
    {'f', {{0, 1}, {}}},                  // a flag
    {'d', {{0.125, 1}, {0, -1, kNan}}},   // sampling interval
    {'g', {{5, 2, 8, 0}, {-1}}},          // samples on either side
    {'e', {{1}, {2}}},                    // which weights, see arrays.cpp
    {'N', {{0}, {1, 2, 3}}},              // the pointer that is null, counted from 1
};

// The letters of a row that have values.
std::map<char, Choice> choicesOf(const Export& row, const Choices& own)
{
    std::map<char, Choice> found;
    for (const char letter : row.shape)
        for (const Choices* choices : {&own, &kChoices})
            if (const auto choice = choices->find(letter); choice != choices->end())
                found.insert(*choice);
    return found;
}

class Lot {
public:
    explicit Lot(std::string_view name)
    {
        std::uint32_t seed = 1;
        for (const char letter : name)
            seed = seed * 31 + static_cast<unsigned char>(letter);
        engine_.seed(seed);
    }

    std::size_t below(std::size_t count) { return engine_() % count; }
    double from(const std::vector<double>& values) { return values[below(values.size())]; }

private:
    std::minstd_rand engine_;
};

// Mostly good values, or every third one bad.
Settings drawn(const Choices& choices, bool bad, Lot& lot)
{
    Settings settings;
    for (const auto& [letter, choice] : choices)
        settings[letter] = lot.from(bad && !choice.bad.empty() && lot.below(3) == 0 ? choice.bad : choice.good);
    return settings;
}

} // namespace

std::vector<Case> casesOf(const Export& row, const Choices& own)
{
    const Choices choices = choicesOf(row, own);
    Settings usual;
    for (const auto& [letter, choice] : choices)
        usual[letter] = choice.good.front();
    std::vector<Case> cases{{"usual", usual}};
    for (const auto& [letter, choice] : choices) {
        std::vector<double> others{choice.good.begin() + 1, choice.good.end()};
        others.insert(others.end(), choice.bad.begin(), choice.bad.end());
        for (std::size_t i = 0; i < others.size(); ++i) {
            cases.push_back({letter + std::to_string(i + 1), usual});
            cases.back().settings[letter] = others[i];
        }
    }
    Lot lot{row.name};
    for (int i = 0; i < 8 && choices.size() > 1; ++i)
        cases.push_back({"lot" + std::to_string(i), drawn(choices, i >= 5, lot)});
    return cases;
}

Outcome outcomeOf(const Export& row, const Settings& settings)
{
    const auto has = [&row](char mark) { return row.shape.find(mark, row.shape.find('|')) != row.shape.npos; };
    Arguments arguments{row.shape, settings};
    int status = row.call(arguments);
    if (status < 0 && has('?'))
        return {status, {}};
    std::vector<Output> outputs = arguments.outputs();
    if (status == 0 && has('+')) {
        arguments.again();
        status = row.call(arguments);
        const std::vector<Output> more = arguments.outputs();
        outputs.insert(outputs.end(), more.begin(), more.end());
    }
    return {status, outputs};
}

} // namespace quordsp::parity

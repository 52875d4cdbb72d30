// The windows of the family "windowed".
#pragma once
#include <span>
#include <string_view>

namespace quordsp::cli {

struct FilterWindow {
    std::string_view name;
    int code; // of table W2
    bool hasParameter;
};

std::span<const FilterWindow> filterWindows();

// The window of that name; the names are fixed by the options.
const FilterWindow& filterWindow(std::string_view name);

} // namespace quordsp::cli

// quordsp info: which backend is in use and from where, or every place that was tried.
#include <algorithm>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "commands/commands.h"
#include "failure.h"
#include "filter_designs.h"
#include "os.h"
#include "spectrum_kinds.h"
#include "status.h"

namespace quordsp::cli::command {
namespace {

const void* insideLibrary()
{
    return reinterpret_cast<const void*>(&QuorDSP_Bw_LPF);
}

struct Filter {
    const FilterFamily& family;
    int type;
};

// Every family in every response.
std::vector<Filter> allFilters()
{
    std::vector<Filter> list;
    for (const FilterFamily& family : filterFamilies())
        for (int type = 0; type < std::max(family.responses, 1); ++type)
            list.push_back({family, type});
    return list;
}

AnalysisLibErrType tryFilter(const Filter& filter)
{
    const double in = 1;
    double out = 0;
    FilterSignal signal{{&in, 1}, &out};
    return filter.family.run({.type = filter.type,
                              .rate = 10,
                              .edges = {1, 2, 3, 4},
                              .order = 1,
                              .taps = 3,
                              .ripple = 1,
                              .attenuation = 20,
                              .bands = {{.from = 1, .to = 2}}},
                             signal);
}

AnalysisLibErrType trySpectrum(const SpectrumKind& kind)
{
    const double in = 1;
    double level = 0;
    return kind.run({&in, 1}, 1, &level);
}

// What the tool offers is called once, on a signal of one sample.
template <class Rows, class Try>
bool printEntries(const char* what, const Rows& rows, Try tryOne)
{
    const auto there =
        std::ranges::count_if(rows, [&](const auto& row) { return tryOne(row) != QUORDSP_ENTRY_NOT_FOUND; });
    const auto wanted = std::ssize(rows);
    std::cout << what << there << " of " << wanted << " have their entry in the backend\n";
    return there == wanted;
}

constexpr const char* kEntries[] = {
#include "backend_entries.inc"
};

void printAllEntries()
{
    std::vector<const char*> missing;
    std::ranges::remove_copy_if(kEntries, std::back_inserter(missing),
                                [](const char* name) { return os::functionOf(os::kBackendFile, name) != nullptr; });
    std::cout << "entries  " << std::size(kEntries) - missing.size() << " of " << std::size(kEntries)
              << " that the library's header names are in the backend\n";
    for (const char* const name : missing)
        std::cout << "         " << name << " is not\n";
}

void printPlaces()
{
    std::cout << "looked for, in this order\n";
    int number = 0;
    for (const auto& [where, path, notTried] : os::backendPlaces(insideLibrary())) {
        std::cout << "  " << ++number << ". " << where << '\n';
        if (!path.empty())
            std::cout << "     " << path << '\n';
        const std::string error = path.empty() ? notTried : os::loadError(path);
        std::cout << "     " << (error.empty() ? "it can be loaded now" : error) << '\n';
    }
}

void printBackend()
{
    const std::string path = os::loadedModulePath(os::kBackendFile);
    const std::string version = os::moduleVersion(path);
    std::cout << "backend  " << (path.empty() ? "loaded, but the system does not tell from where" : path) << '\n'
              << "version  " << (version.empty() ? "the module states none" : version) << '\n';
    printAllEntries();
    const bool filters = printEntries("filters  ", allFilters(), tryFilter);
    const bool spectra = printEntries("spectra  ", spectrumKinds(), trySpectrum);
    if (!filters || !spectra)
        throw Failure(ExitCode::BackendMissing, "the analysis backend lacks entries", "install a complete backend");
}

void run()
{
    const AnalysisLibErrType status = tryFilter(allFilters().front());
    std::cout << "tool     quordsp " QUORDSP_VERSION "\n" << "library  " << os::modulePathOf(insideLibrary()) << '\n';
    if (status != QUORDSP_BACKEND_NOT_FOUND) {
        printBackend();
        return;
    }
    std::cout << "backend  " << os::kBackendFile << ", not found\n";
    printPlaces();
    throw Failure(ExitCode::BackendMissing, statusText(status),
                  std::string("put ") + os::kBackendFile + " into one of the places listed");
}

} // namespace

void info(Command& command)
{
    command.run(run);
}

} // namespace quordsp::cli::command

#include "status.h"

#include <algorithm>
#include <iostream>
#include <iterator>

#include "failure.h"

namespace quordsp::cli {
namespace {

struct Meaning {
    int status;
    const char* text;
};

constexpr Meaning kMeanings[] = {
    {0, "success"},
    {-5093, "the analysis backend could not be found or loaded"},
    {-5094, "the analysis backend is loaded but lacks the entry for this call"},
    {-20001, "not enough memory"},
    {-20002, "the inputs must have the same length"},
    {-20003, "the number of samples or coefficients must be greater than zero"},
    {-20004, "the number of samples or points must not be negative"},
    {-20005, "at least one sample is needed"},
    {-20006, "at least two samples are needed"},
    {-20007, "at least three samples or coefficients are needed"},
    {-20008, "an array does not hold the right number of values"},
    {-20009, "the number of samples must be a power of two"},
    {-20010, "the transform is too large"},
    {-20015, "the sampling interval must not be negative"},
    {-20016, "the sampling interval must be greater than zero"},
    {-20020, "the cut-off must lie above 0 and below half the sampling rate"},
    {-20021, "the order must be greater than zero"},
    {-20023, "the band edges must ascend and lie between 0 and half the sampling rate"},
    {-20024, "the ripple must be greater than 0 dB"},
    {-20025, "the attenuation must be greater than 0 dB"},
    {-20026, "the width must be greater than zero"},
    {-20028, "the attenuation must be greater than the ripple"},
    {-20031, "the filter cannot be designed with these values"},
    {-20032, "the ranks must lie inside the signal"},
    {-20033, "the number of coefficients must be odd"},
    {-20034, "the number of coefficients must be even"},
    {-20037, "the number of points must be greater than the order"},
    {-20041, "the system of equations is singular"},
    {-20060, "division by zero"},
    {-20061, "a selection or parameter is out of its range"},
    {-20062, "the limit of iterations was exceeded"},
    {-20064, "the internal state was not initialised correctly"},
    {-20066, "the structure of the filter is not correct"},
    {-20068, "the input holds a value that is not finite"},
    {-20103, "the order must not be negative"},
    {-20104, "the input holds a value that is not finite"},
    {-20322, "a voltage is out of the range of the thermocouple"},
    {20032, "an array is missing or empty"},
    {20033, "the file cannot be created"},
    {2147483647, "there is no such type of thermocouple"},
    {-20115, "the size of the transform must be greater than zero"},
};

const char* meaning(int status)
{
    const auto* found = std::ranges::find(kMeanings, status, &Meaning::status);
    if (found != std::end(kMeanings))
        return found->text;
    return status > 0 ? "a warning that this program has no words for" : "an error that this program has no words for";
}

bool backendIsMissing(int status)
{
    return status == QUORDSP_BACKEND_NOT_FOUND || status == QUORDSP_ENTRY_NOT_FOUND;
}

const char* advice(int status)
{
    if (backendIsMissing(status))
        return "'quordsp info' tells where the backend was looked for";
    return "";
}

} // namespace

std::string statusText(int status)
{
    return std::string(meaning(status)) + " (status " + std::to_string(status) + ")";
}

void check(AnalysisLibErrType status, const std::string& call)
{
    const int value = status;
    if (value > 0)
        std::cerr << "quordsp: warning: " << call << ": " << statusText(value) << '\n';
    if (value < 0)
        throw Failure(backendIsMissing(value) ? ExitCode::BackendMissing : ExitCode::BackendError,
                      call + ": " + statusText(value), advice(value));
}

void requireSuccess(AnalysisLibErrType status, const std::string& call)
{
    if (status != 0)
        throw Failure(ExitCode::Internal, call + ": " + statusText(status));
}

} // namespace quordsp::cli

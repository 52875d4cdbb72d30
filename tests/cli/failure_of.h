// What a call fails with, for tests of messages and exit codes.
#pragma once
#include <gtest/gtest.h>
#include <string>

#include "failure.h"

namespace quordsp::cli {

template <class Call>
Failure failureOf(Call call)
{
    try {
        call();
    } catch (const Failure& failure) {
        return failure;
    }
    ADD_FAILURE() << "the call did not fail";
    return Failure(ExitCode::Success, "");
}

template <class Call>
std::string messageOf(Call call)
{
    return failureOf(call).what();
}

} // namespace quordsp::cli

// The backend, the run-time and the disposer in the process, as a test wants them; and what the run-time services are
// told.
#pragma once
#include <array>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <string>

#include <gmock/gmock.h>

#include "fakes/argument_text.h"
#include "fakes/stage.h"
#include "support/folders.h"
#include "support/library.h"

class Tracking : public testing::Test {
protected:
    Tracking() { fakes::stage().object = &object_; }

    // Each loads a fake module from its folder below fakes/.
    static void loadBackend(const std::filesystem::path& variant = "backend") { load(variant / support::kBackendFile); }
    static void loadRunTime(const std::filesystem::path& file) { load("run_time" / file); }
    static support::Module loadDisposer(const std::filesystem::path& variant = "disposer")
    {
        return load(variant / "cviresourcedisposer.dll");
    }
    static support::Module load(const std::filesystem::path& relative)
    {
        const auto module = support::Module::load(support::fake(relative));
        EXPECT_TRUE(module) << relative;
        fakes::takeNotes();
        return module;
    }

    // What the backend's entries hand out.
    void* object() { return &object_; }
    std::string objectText() { return fakes::argumentText(object()); }

    static QuorDSP_FFTTable* createTable(int n = 64) { return EXPORT(QuorDSP_CreateFFTTable)(n); }
    static void destroyTable(void* table) { EXPORT(QuorDSP_DestroyFFTTable)(static_cast<QuorDSP_FFTTable*>(table)); }
    static QuorDSP_FIRFilter* allocFilter() { return EXPORT(QuorDSP_AllocFIRFilterPtr)(); }
    static void freeFilter(void* filter) { EXPORT(QuorDSP_FreeFIRFilterPtr)(static_cast<QuorDSP_FIRFilter*>(filter)); }

    // The notes of the fakes.
    static std::string acquired(const std::string& module, const void* object, const std::string& category,
                                const char* format, ...)
    {
        std::array<char, 256> message{};
        va_list arguments;
        va_start(arguments, format);
        std::vsnprintf(message.data(), message.size(), format, arguments);
        va_end(arguments);
        return module + " acquire " + fakes::argumentText(object) + " | " + category + " | " + format + " | " +
               message.data();
    }
    std::string tableAcquired(const std::string& module, int n = 64)
    {
        return acquired(module, object(), "Analysis library", "FFT table 0x%016p of size %llu", object(),
                        static_cast<unsigned long long>(n));
    }
    std::string filterAcquired(const std::string& module)
    {
        return acquired(module, object(), "Analysis library", "FIR filter 0x%016p", object());
    }
    static std::string registered(const void* object, const support::Module& disposer, const std::string& releaseEntry)
    {
        const auto callback = disposer.symbol("CommonAnalysisResourceDisposer");
        return registered(object, reinterpret_cast<const void*>(callback), releaseEntry);
    }
    static std::string registered(const void* object, const void* callback, const std::string& releaseEntry)
    {
        return "register " + fakes::argumentText(object) + " callback " + fakes::argumentText(callback) + " " +
               releaseEntry;
    }

private:
    int object_ = 0;
};

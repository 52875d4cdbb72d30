// What the tests of all forwarding exports have in common: calls by name with telling arguments, and memory to watch.
#pragma once
#include <gtest/gtest.h>

#include "exports/forwarding_table.h"
#include "fakes/stage.h"
#include "support/folders.h"

class ForwardingExports : public testing::Test {
protected:
    static constexpr int kTellingCount = -1;

    ForwardingExports()
    {
        for (auto& cell : cells_)
            cell.fill(kUntouched);
    }

    ArgumentSource arguments(int firstInteger = kTellingCount, int step = -1) { return {firstInteger, step, cells_}; }

    std::string call(const Forwarded& row, ArgumentSource source)
    {
        const auto exported = support::library().symbol(row.name);
        return exported ? row.call(exported, source) : "not exported";
    }
    std::string call(const Forwarded& row) { return call(row, arguments()); }

    // All that the caller's pointers point to.
    bool memoryIsUntouched() const
    {
        for (const auto& cell : cells_)
            for (const std::byte byte : cell)
                if (byte != kUntouched)
                    return false;
        return true;
    }

    // Loads a fake backend, which the library then finds by its bare name.
    static support::Module loadBackend(const char* variant)
    {
        const auto backend =
            support::Module::load(support::fake(std::filesystem::path{variant} / support::kBackendFile));
        EXPECT_TRUE(backend);
        fakes::takeNotes();
        return backend;
    }

    void* someObject() { return cells_.back().data(); }

private:
    static constexpr std::byte kUntouched{0xA5};
    alignas(64) ArgumentSource::Cells cells_;
};

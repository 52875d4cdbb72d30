// Announces backend-owned objects to the run-time's resource services, where the host process has them: the tracker
// lists an object as open, the disposer frees it if the client never does. Where they are missing nothing is tracked
// and nothing else changes.
#pragma once
#include <atomic>

#include "frame/disposer.h"
#include "frame/os.h"

namespace quordsp {

// A kind of tracked object: how the tracker lists it, and the backend entry that frees it. The first argument of the
// format is the object.
struct ResourceKind {
    const char* category;
    const char* format;
    const char* releaseEntry;
};
inline constexpr ResourceKind kFftTable{"Analysis library", "FFT table 0x%016p of size %llu", "AALFunc261"};
inline constexpr ResourceKind kFirFilter{"Analysis library", "FIR filter 0x%016p", "AALFunc492"};
inline constexpr ResourceKind kMemoryBlock{"Memory", "Block 0x%016p of %llu byte%s", "AALFunc238"};

// An entry of the tracker in the first run-time module that the process has loaded; null when there is none.
os::Symbol findTrackerEntry(const char* name) noexcept;

// One entry of the tracker, looked up until it is found. Every export that announces objects keeps its own.
class TrackerEntry {
public:
    consteval explicit TrackerEntry(const char* name) : name_{name} {}

    // Looks the entry up unless it is known.
    void find() noexcept
    {
        if (known())
            return;
        if (const os::Symbol found = findTrackerEntry(name_))
            found_.store(found, std::memory_order_relaxed);
    }

    os::Symbol known() const noexcept { return found_.load(std::memory_order_relaxed); }

private:
    const char* name_;
    std::atomic<os::Symbol> found_{nullptr};
};

class ResourceAcquire : public TrackerEntry {
public:
    consteval ResourceAcquire() : TrackerEntry{"__CVI_Resource_AcquireUtf8"} {}

    // Announces a new object, with the further arguments of its kind's format.
    template <class... FormatArgs>
    void operator()(const ResourceKind& kind, void* object, FormatArgs... formatArgs) const noexcept
    {
        if (!known())
            return;
        disposer.add(object, kind.releaseEntry);
        reinterpret_cast<Acquire*>(known())(object, kind.category, kind.format, object, formatArgs...);
    }

private:
    using Acquire = void(void* object, const char* category, const char* format, ...);
};

class ResourceRelease : public TrackerEntry {
public:
    consteval ResourceRelease() : TrackerEntry{"__CVI_Resource_Release"} {}

    // Takes an object off the lists, before it is freed.
    void operator()(void* object) const noexcept
    {
        if (!known())
            return;
        disposer.remove(object);
        reinterpret_cast<Release*>(known())(object);
    }

private:
    using Release = void(void* object);
};

} // namespace quordsp

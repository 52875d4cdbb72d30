// The exports that hand out objects of the backend, or take them back. Where the host process has the run-time's
// resource services they hear of every such object; each export keeps its own look-up of them.
#include "frame/entries.h"
#include "frame/tracker.h"

using namespace quordsp;

QuorDSP_FFTTable* QuorDSP_CreateFFTTable(int n) noexcept
{
    static constinit ResourceAcquire acquire;
    if (entry::CreateFFTTable.bind() != QUORDSP_SUCCESS)
        return nullptr;
    acquire.find();
    QuorDSP_FFTTable* const table = entry::CreateFFTTable(widen(n));
    if (table)
        acquire(kFftTable, table, widen(n));
    return table;
}

void QuorDSP_DestroyFFTTable(QuorDSP_FFTTable* table) noexcept
{
    static constinit ResourceRelease release;
    if (entry::DestroyFFTTable.bind() != QUORDSP_SUCCESS)
        return;
    release.find();
    release(table);
    entry::DestroyFFTTable(table);
}

QuorDSP_FIRFilter* QuorDSP_AllocFIRFilterPtr() noexcept
{
    static constinit ResourceAcquire acquire;
    if (entry::AllocFIRFilterPtr.bind() != QUORDSP_SUCCESS)
        return nullptr;
    acquire.find();
    QuorDSP_FIRFilter* const filter = entry::AllocFIRFilterPtr();
    if (filter)
        acquire(kFirFilter, filter);
    return filter;
}

void QuorDSP_FreeFIRFilterPtr(QuorDSP_FIRFilter* filter) noexcept
{
    static constinit ResourceRelease release;
    if (entry::FreeFIRFilterPtr.bind() != QUORDSP_SUCCESS)
        return;
    release.find();
    release(filter);
    entry::FreeFIRFilterPtr(filter);
}

AnalysisLibErrType QuorDSP_PeakDetector(const double* in, int n, double threshold, int width, int polarity,
                                        int initialize, int endOfData, int64_t* count, double** locations,
                                        double** amplitudes, double** secondDerivatives) noexcept
{
    static constinit ResourceAcquire acquire;
    if (const Status failure = entry::PeakDetector.bind(); failure != QUORDSP_SUCCESS)
        return failure;
    acquire.find();
    const Status status = entry::PeakDetector(in, widen(n), threshold, widen(width), polarity, initialize, endOfData,
                                              count, locations, amplitudes, secondDerivatives);
    if (status < 0 || !acquire.known())
        return status;
    // The plural suffix stands for every size, 0 and 8 bytes included.
    for (double** const array : {locations, amplitudes, secondDerivatives})
        acquire(kMemoryBlock, *array, *count * Size{sizeof(double)}, "s");
    return status;
}

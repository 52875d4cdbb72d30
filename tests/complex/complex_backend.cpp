#include "complex/complex_backend.h"

#include <algorithm>

#include "fakes/argument_text.h"
#include "fakes/stage.h"

namespace quordsp::complex_exports {

Sample answerTo(Sample sample)
{
    return {sample.im + 1.0, 2.0 * sample.re};
}

Sample answerTo(int index)
{
    return {index + 0.25, -0.5 - index};
}

namespace {

// The complex cascade's record as the backend takes it.
struct StateRecord {
    std::int32_t count;
    Sample* samples;
};

// One call as it arrives.
class Arrival {
public:
    Arrival(const Export& row, const fakes::Arguments& arguments) : row_{row}, arguments_{arguments} {}

    Received received() const
    {
        Received all{row_.entry, {}, {}, {}};
        for (std::size_t i = 0; i < row_.shape.size(); ++i) {
            all.note += ' ' + text(i);
            if (row_.shape[i] == 'x')
                all.input = samples(i, n());
            if (row_.shape[i] == 'A')
                all.pastOutputs = samples(i, std::max(n(), pastAt(i)));
            if (row_.shape[i] == 'S')
                all.state = samples(i, std::max(n(), pastAt(i)));
            if (row_.shape[i] == 'R' && record(i))
                all.state = copy(record(i)->samples, std::max<std::int64_t>(n(), record(i)->count));
        }
        return all;
    }

    void answer() const
    {
        Sample* const in = row_.has('x') ? at<Sample*>(0) : nullptr;
        Sample* const out = row_.has('y') ? at<Sample*>(row_.shape.size() - 1) : in;
        if (!row_.hasOutput() || !out)
            return;
        const std::int64_t size = row_.has('m') ? std::max(n(), at<std::int64_t>(2)) : n();
        for (int i = 0; i < size; ++i)
            out[i] = in && i < n() ? answerTo(in[i]) : answerTo(i);
    }

private:
    template <class T>
    const T& at(std::size_t position) const
    {
        return arguments_.at<T>(position);
    }
    std::int64_t n() const { return at<std::int64_t>(1); }
    std::int64_t pastAt(std::size_t position) const { return std::int64_t{at<int>(position + 1)} - 1; }
    const StateRecord* record(std::size_t position) const { return at<const StateRecord*>(position); }

    static Samples copy(const Sample* from, std::int64_t count)
    {
        return from && count > 0 ? Samples(from, from + count) : Samples{};
    }
    Samples samples(std::size_t position, std::int64_t count) const { return copy(at<const Sample*>(position), count); }

    std::string text(std::size_t position) const
    {
        switch (row_.shape[position]) {
        case 'n':
        case 'm':
            return fakes::argumentText(at<std::int64_t>(position));
        case 'd':
            return fakes::argumentText(at<double>(position));
        case 'i':
        case 'c':
            return fakes::argumentText(at<int>(position));
        case 'p':
            return fakes::argumentText(at<const void*>(position));
        case 'r':
            return fakes::argumentText(at<QuorDSP_FIRFilter>(position));
        case 'R':
            return record(position) ? fakes::argumentText(record(position)->count) + " block" : "null";
        default:
            return at<const void*>(position) ? "block" : "null";
        }
    }

    const Export& row_;
    const fakes::Arguments& arguments_;
};

const Export* rowOf(std::string_view entry)
{
    for (const Export& row : exports())
        if (row.entry == entry)
            return &row;
    return nullptr;
}

} // namespace

void answerCalls()
{
    fakes::stage().onCall = [](std::string_view entry, const fakes::Arguments& arguments) {
        if (const Export* const row = rowOf(entry))
            Arrival{*row, arguments}.answer();
    };
}

void answerCallsInto(std::vector<Received>& received)
{
    fakes::stage().onCall = [&received](std::string_view entry, const fakes::Arguments& arguments) {
        if (const Export* const row = rowOf(entry)) {
            const Arrival arrival{*row, arguments};
            received.push_back(arrival.received());
            arrival.answer();
        }
    };
}

} // namespace quordsp::complex_exports

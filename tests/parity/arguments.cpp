#include "parity/arguments.h"

#include <algorithm>
#include <bit>

#include "parity/arrays.h"

namespace quordsp::parity {
namespace {

bool sameBits(double a, double b)
{
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

// Imaginary parts, next to the real ones.
bool belongsToTheOneBefore(char letter)
{
    return letter == 'W' || letter == 'F';
}

} // namespace

Arguments::~Arguments()
{
    if (cascade_)
        backendFunction<QuorDSP_FreeIIRFilterPtrFunction>("FreeIIRFilterPtr")(cascade_);
    if (narrowBand_)
        QuorDSP_FreeFIRFilterPtr(narrowBand_);
    if (table_)
        QuorDSP_DestroyFFTTable(table_);
}

double Arguments::scalar(char letter) const
{
    const double value = settings_.at(letter);
    if (letter == 'p' || letter == 'q')
        return value + scalar('o') * (scalar('t') == 2 || scalar('t') == 3 ? 2 : 1) + 1;
    if (letter == '5' && value == 0)
        return static_cast<double>(bandCount(*this));
    return value;
}

std::vector<double>& Arguments::array(char letter)
{
    const auto found = arrays_.find(letter);
    if (found != arrays_.end())
        return found->second.values;
    std::vector<double> values = newArray(letter, *this);
    values.reserve(1); // an empty array has an address, too
    Array& made = arrays_[letter];
    made.before = values;
    made.values = std::move(values);
    return made.values;
}

QuorDSP_IIRFilter* Arguments::pointer(char letter, std::type_identity<QuorDSP_IIRFilter>)
{
    if (!cascade_)
        cascade_ = backendFunction<QuorDSP_AllocIIRFilterPtrFunction>("AllocIIRFilterPtr")(integer('t'), integer('o'));
    if (letter == 'I' && !designed_)
        designed_ = QuorDSP_Bw_CascadeCoef(1000, 100, 200, cascade_) == QUORDSP_SUCCESS;
    return cascade_;
}

QuorDSP_FIRFilter* Arguments::pointer(char, std::type_identity<QuorDSP_FIRFilter>)
{
    if (!narrowBand_)
        narrowBand_ = QuorDSP_AllocFIRFilterPtr();
    return narrowBand_;
}

QuorDSP_FFTTable* Arguments::pointer(char, std::type_identity<QuorDSP_FFTTable>)
{
    return table_ = table_ ? table_ : QuorDSP_CreateFFTTable(integer('z'));
}

QuorDSP_FIRFilter Arguments::narrowBandFilter()
{
    QuorDSP_FIRFilter* const record = pointer('D', std::type_identity<QuorDSP_FIRFilter>{});
    QuorDSP_FIRNarrowBandCoef(1000, scalar('6'), scalar('7'), 100, 0.01, 60, integer('t'), record);
    return record ? *record : QuorDSP_FIRFilter{};
}

// A new design, or the state that a filter has left.
void Arguments::addRecord(char letter, std::vector<Output>& all) const
{
    if (cascade_ && letter == 'J') {
        all.push_back({'a', {cascade_->reverse, cascade_->reverse + cascade_->reverseCount}});
        all.push_back({'b', {cascade_->forward, cascade_->forward + cascade_->forwardCount}});
        all.push_back({'r', {static_cast<double>(cascade_->reset)}});
    }
    if (cascade_ && letter == 'I')
        all.push_back({'s', {cascade_->state, cascade_->state + cascade_->stateCount}});
    if (narrowBand_ && letter == 'D') {
        all.push_back({'g', {narrowBand_->model, narrowBand_->model + narrowBand_->modelCount}});
        all.push_back({'h', {narrowBand_->image, narrowBand_->image + narrowBand_->imageCount}});
        all.push_back({'f', {static_cast<double>(narrowBand_->type), static_cast<double>(narrowBand_->interpolation)}});
    }
}

void Arguments::addArray(char letter, std::vector<Output>& all) const
{
    const auto found = arrays_.find(letter);
    if (found == arrays_.end() || !isWritten(letter))
        return;
    const auto& [now, before] = found->second;
    if (std::ranges::equal(now, before, sameBits))
        return;
    const auto input = arrays_.find(letter == 'Y' ? 'X' : letter == 'W' ? 'Z' : ' ');
    if (input != arrays_.end() && std::ranges::equal(now, input->second.values, sameBits)) {
        all.push_back({'=', {}}); // a copy
        return;
    }
    std::vector<double> values = now;
    if (settings_.contains('m') && scalar('m') > 0 && scalar('m') < static_cast<double>(values.size()))
        values.resize(static_cast<std::size_t>(integer('m'))); // what lies beyond is unspecified
    if (belongsToTheOneBefore(letter) && !all.empty())
        all.back().values.insert(all.back().values.end(), values.begin(), values.end());
    else
        all.push_back({letter, values});
}

std::vector<Output> Arguments::outputs() const
{
    std::vector<Output> all;
    for (const char letter : shape_.substr(0, shape_.find('|'))) {
        if (const auto index = indices_.find(letter); index != indices_.end())
            all.push_back({letter, {static_cast<double>(index->second)}});
        addArray(letter, all);
        addRecord(letter, all);
    }
    all.insert(all.end(), added_.begin(), added_.end());
    return all;
}

} // namespace quordsp::parity

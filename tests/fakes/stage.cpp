#include "fakes/stage.h"

#include <mutex>
#include <utility>

namespace fakes {
namespace {

std::mutex guard;
std::vector<std::string> notes;

} // namespace

Stage& stage()
{
    static Stage only;
    return only;
}

void note(const std::string& line)
{
    const std::lock_guard lock{guard};
    notes.push_back(line);
}

std::vector<std::string> takeNotes()
{
    const std::lock_guard lock{guard};
    return std::exchange(notes, {});
}

} // namespace fakes

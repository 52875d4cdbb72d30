// A backend that is found and fails to load: it needs a function that no module has.
#include "fakes/export.h"

extern "C" void quordspFakeThatNobodyDefines();

extern "C" FAKE_EXPORT void AALFunc21()
{
    quordspFakeThatNobodyDefines();
}

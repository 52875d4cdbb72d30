// The run-time's resource disposer: notes what it is told, and disposes of nothing.
#include <string>

#include "fakes/argument_text.h"
#include "fakes/stage.h"

extern "C" FAKE_EXPORT int RegisterCVIResource(void* object, void (*callback)(), const char* releaseEntry)
{
    fakes::note("register " + fakes::argumentText(object) + " callback " +
                fakes::argumentText(reinterpret_cast<const void*>(callback)) + " " + releaseEntry);
    return fakes::stage().disposerResult;
}

extern "C" FAKE_EXPORT int UnregisterCVIResource(void* object)
{
    fakes::note("unregister " + fakes::argumentText(object));
    return fakes::stage().disposerResult;
}

// Known to the library by its address alone.
extern "C" FAKE_EXPORT void CommonAnalysisResourceDisposer()
{
    fakes::note("dispose");
}

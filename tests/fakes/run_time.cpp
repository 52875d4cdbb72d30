// A run-time module: its resource tracker notes what it is told, the message both as it came and as it reads.
#include <array>
#include <cstdarg>
#include <cstdio>
#include <string>

#include "fakes/argument_text.h"
#include "fakes/stage.h"

extern "C" FAKE_EXPORT void __CVI_Resource_AcquireUtf8(void* object, const char* category, const char* format, ...)
{
    std::array<char, 256> message{};
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(message.data(), message.size(), format, arguments);
    va_end(arguments);
    fakes::note(FAKE_NAME " acquire " + fakes::argumentText(object) + " | " + category + " | " + format + " | " +
                message.data());
}

extern "C" FAKE_EXPORT void __CVI_Resource_Release(void* object)
{
    fakes::note(FAKE_NAME " release " + fakes::argumentText(object));
}

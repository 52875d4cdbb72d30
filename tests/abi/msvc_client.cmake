# Compiled with the ABI of Microsoft's compiler and linked, by the linker that stands in for Microsoft's, against
# QuorDSP_DAQ.lib.
find_program(LLD_LINK lld-link-19 REQUIRED)
set(msvc_compile --target=x86_64-pc-windows-msvc -ffreestanding -Wall -Wextra -Wpedantic -Werror
    -I${PROJECT_SOURCE_DIR}/include)
set(headers ${PROJECT_SOURCE_DIR}/include/QuorDSP_DAQ.h ${CMAKE_CURRENT_SOURCE_DIR}/client_checks.h)
set(source ${CMAKE_CURRENT_SOURCE_DIR})
set(client ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/client_msvc.exe)

file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/kernel32.def "LIBRARY kernel32.dll\nEXPORTS\nExitProcess\n")
# C finds the two decorated names by way of aliases, which only a linker can try.
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/decorated.def "LIBRARY QuorDSP_DAQ.dll\nEXPORTS\n"
    "\"?QuorDSP_Parks_McClellanCoef@@YA?AW4AnalysisLibErrType@@HNQEAN000HH0PEAN@Z\"\n"
    "\"?QuorDSP_Vibration_Acceleration_Euler@@YA?AW4AnalysisLibErrType@@QEANHNNNNNNNNN0000H@Z\"\n")
add_custom_command(OUTPUT ${client} DEPENDS client_msvc.cpp header_c11.c header_cpp17.cpp ${headers} QuorDSP_DAQ
    COMMAND ${CMAKE_C_COMPILER} ${msvc_compile} -std=c11 -c ${source}/header_c11.c -o header_c11_msvc.obj
    COMMAND ${LLVM_DLLTOOL} -m i386:x86-64 -d decorated.def -l decorated.lib
    COMMAND ${LLD_LINK} /nologo /nodefaultlib /dll /noentry /alternatename:_fltused=useDecoratedNames
        /out:header_c11_msvc.dll header_c11_msvc.obj decorated.lib
    COMMAND ${CMAKE_CXX_COMPILER} ${msvc_compile} -std=c++17 -fsyntax-only ${source}/header_cpp17.cpp
    COMMAND ${CMAKE_CXX_COMPILER} ${msvc_compile} -std=c++17 -O1 -c ${source}/client_msvc.cpp -o client_msvc.obj
    COMMAND ${LLVM_DLLTOOL} -m i386:x86-64 -d kernel32.def -l kernel32.lib
    COMMAND ${LLD_LINK} /nologo /nodefaultlib /subsystem:console /entry:start /out:${client}
        client_msvc.obj ${QUORDSP_MSVC_LIBRARY} kernel32.lib
    COMMENT "Linking client_msvc.exe as Microsoft's linker does")
add_custom_target(client_msvc ALL DEPENDS ${client})
add_test(NAME abi.client_msvc COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} ${client})
set_tests_properties(abi.client_msvc PROPERTIES ENVIRONMENT "${with_backend}")

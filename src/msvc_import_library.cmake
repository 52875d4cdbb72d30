# The import library that Microsoft's linker takes, made from the names that the module exports.
# The linker's command line is part of the debug information: no absolute path in it.
set(definition QuorDSP_DAQ.def)
set(QUORDSP_MSVC_LIBRARY ${CMAKE_ARCHIVE_OUTPUT_DIRECTORY}/QuorDSP_DAQ.lib)
target_link_options(QuorDSP_DAQ PRIVATE LINKER:--output-def=${definition})
find_program(LLVM_DLLTOOL llvm-dlltool-19 REQUIRED)
add_custom_command(TARGET QuorDSP_DAQ POST_BUILD BYPRODUCTS ${QUORDSP_MSVC_LIBRARY}
    WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
    COMMAND ${LLVM_DLLTOOL} -m i386:x86-64 -D QuorDSP_DAQ.dll -d ${definition} -l ${QUORDSP_MSVC_LIBRARY}
    COMMENT "Making QuorDSP_DAQ.lib")
set(QUORDSP_MSVC_LIBRARY ${QUORDSP_MSVC_LIBRARY} PARENT_SCOPE)

install(FILES ${QUORDSP_MSVC_LIBRARY} TYPE LIB)
install(FILES $<TARGET_FILE_DIR:QuorDSP_DAQ>/QuorDSP_DAQ.pdb TYPE BIN)

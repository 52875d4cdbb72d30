# quordsp_add_resources(target description): gives a Windows module its version and a minimal manifest, which makes it
# a module with an activation context of its own.
if(WIN32)
    enable_language(RC)
endif()
function(quordsp_add_resources target description)
    if(WIN32)
        configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/module.rc.in ${target}.rc @ONLY)
        target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    endif()
endfunction()

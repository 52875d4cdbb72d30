# find_package(QuorDSP_DAQ) for an installation: the imported target QuorDSP::DAQ.
include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/QuorDSP_DAQ)
if(WIN32)
    set(library_location ${CMAKE_INSTALL_BINDIR}/QuorDSP_DAQ.dll)
else()
    set(library_location ${CMAKE_INSTALL_LIBDIR}/libQuorDSP_DAQ.so)
endif()
configure_package_config_file(cmake/QuorDSP_DAQConfig.cmake.in ${PROJECT_BINARY_DIR}/package/QuorDSP_DAQConfig.cmake
    INSTALL_DESTINATION ${package_folder}
    PATH_VARS CMAKE_INSTALL_INCLUDEDIR CMAKE_INSTALL_LIBDIR library_location
    NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/QuorDSP_DAQConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/package/QuorDSP_DAQConfig.cmake
    ${PROJECT_BINARY_DIR}/package/QuorDSP_DAQConfigVersion.cmake
    DESTINATION ${package_folder})

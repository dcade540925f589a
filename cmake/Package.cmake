# What `cmake --install` lays out: the library, its headers and a package for find_package(tarnlib).
include(CMakePackageConfigHelpers)

set(TARNLIB_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/tarnlib")

install(TARGETS tarnlib EXPORT tarnlibTargets LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(FILES "${PROJECT_SOURCE_DIR}/include/tarnlib.h" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/tarnlib"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(EXPORT tarnlibTargets NAMESPACE tarnlib:: DESTINATION "${TARNLIB_PACKAGE_DIR}")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/tarnlibConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/tarnlibConfig.cmake" INSTALL_DESTINATION "${TARNLIB_PACKAGE_DIR}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/tarnlibConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/tarnlibConfig.cmake"
    "${PROJECT_BINARY_DIR}/tarnlibConfigVersion.cmake"
    DESTINATION "${TARNLIB_PACKAGE_DIR}")
if(TARGET tarncalc)
    install(TARGETS tarncalc RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()

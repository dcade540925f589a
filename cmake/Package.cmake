# What `cmake --install` lays out, in three components, of which Debian.cmake makes a package each:
# the library; what development against it needs; the calculator.
include(CMakePackageConfigHelpers)

set(TARNLIB_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/tarnlib")

install(TARGETS tarnlib EXPORT tarnlibTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        COMPONENT library NAMELINK_COMPONENT development)
install(FILES "${PROJECT_SOURCE_DIR}/include/tarnlib.h"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/tarnlib"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development)

# find_package(tarnlib)
install(EXPORT tarnlibTargets NAMESPACE tarnlib::
    DESTINATION "${TARNLIB_PACKAGE_DIR}" COMPONENT development)
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/tarnlibConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/tarnlibConfig.cmake" INSTALL_DESTINATION "${TARNLIB_PACKAGE_DIR}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/tarnlibConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/tarnlibConfig.cmake"
    "${PROJECT_BINARY_DIR}/tarnlibConfigVersion.cmake"
    DESTINATION "${TARNLIB_PACKAGE_DIR}" COMPONENT development)

# pkg-config tarnlib. The prefix is told from where the file lies, so that the tree can be moved;
# but /usr is named: pkg-config leaves out its directories, which compilers search by themselves.
set(TARNLIB_PREFIX /usr)
if(NOT CMAKE_INSTALL_PREFIX STREQUAL TARNLIB_PREFIX)
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
        BASE_DIRECTORY "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" OUTPUT_VARIABLE TARNLIB_PREFIX)
    string(PREPEND TARNLIB_PREFIX "\${pcfiledir}/")
endif()
cmake_path(APPEND TARNLIB_LIBDIR "\${prefix}" "${CMAKE_INSTALL_LIBDIR}")
cmake_path(APPEND TARNLIB_INCLUDEDIR "\${prefix}" "${CMAKE_INSTALL_INCLUDEDIR}")
configure_file(cmake/tarnlib.pc.in tarnlib.pc @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/tarnlib.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)

set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
    CHANGELOG.md examples/sum.c include/tarnlib/version.h)

# The date of the version as its heading in CHANGELOG.md gives it; before its release, today's.
file(STRINGS CHANGELOG.md TARNLIB_DATE REGEX "^## \\[${PROJECT_VERSION}\\]")
string(REGEX MATCH "[0-9]+-[0-9]+-[0-9]+$" TARNLIB_DATE "${TARNLIB_DATE}")
if(NOT TARNLIB_DATE)
    string(TIMESTAMP TARNLIB_DATE "%Y-%m-%d" UTC)
endif()

# The example in tarnlib(3), in the language of manual pages.
file(READ examples/sum.c TARNLIB_EXAMPLE)
string(REPLACE "\\" "\\e" TARNLIB_EXAMPLE "${TARNLIB_EXAMPLE}")
string(REGEX REPLACE "-" "\\\\-" TARNLIB_EXAMPLE "${TARNLIB_EXAMPLE}")

function(tarnlib_install_manual section page component)
    configure_file("docs/man/${page}.${section}.in" "man/${page}.${section}" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/man/${page}.${section}"
        DESTINATION "${CMAKE_INSTALL_MANDIR}/man${section}" COMPONENT "${component}")
endfunction()

tarnlib_install_manual(3 tarnlib development)
if(TARGET tarncalc)
    tarnlib_install_manual(1 tarncalc tarncalc)
    install(TARGETS tarncalc RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tarncalc)
endif()

if(PROJECT_IS_TOP_LEVEL AND TARGET tarncalc)
    include(Debian)
endif()

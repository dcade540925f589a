# What `cpack` makes: a Debian package of each component. `script/package` calls it.
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL library development tarncalc)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# A script that CPack runs; it gets every variable whose name begins with CPACK_.
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/DebianTree.cmake")
set(CPACK_TARNLIB_DIR "${PROJECT_SOURCE_DIR}")
set(CPACK_TARNLIB_DATE "${TARNLIB_DATE}")

set(CPACK_PACKAGE_NAME tarnlib)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "The tarnlib authors <tarnlib@example.org>")
# Each description below has a summary of its own as its first line.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(debianVersion "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
# Programs need this version or a later one of the same major number, which only adds to it.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
# Where dpkg-shlibdeps finds the library that tarncalc calls; of what package, it can't know yet.
get_target_property(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS tarnlib BINARY_DIR)

set(about "The run-time support of compiled Verilog: plain C functions on vectors of
any width, up to 20 million bits, whose bits are 0, 1, Z or X.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME "libtarnlib${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/debian/triggers")
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "operations on four-state logic vectors
${about}

This package holds the shared library.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtarnlib-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} (= ${debianVersion})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "operations on four-state logic vectors - development files
${about}

This package holds the headers, what pkg-config and CMake need to find the
library, and its manual page.")

set(CPACK_DEBIAN_TARNCALC_PACKAGE_NAME tarncalc)
set(CPACK_DEBIAN_TARNCALC_PACKAGE_SECTION math)
set(CPACK_DEBIAN_TARNCALC_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_TARNCALC_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} (>= ${debianVersion})")
set(CPACK_COMPONENT_TARNCALC_DESCRIPTION "calculator for four-state Verilog
Calculates with all operators of IEEE 1364 on vectors of any width, whose
bits are 0, 1, x or z, and on reals; with variables, memories and $display;
from the command line, a terminal or a file.")

include(CPack)

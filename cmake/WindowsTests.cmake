# What tests on Windows are built with that other systems have as installed libraries: GoogleTest
# from its sources, and integers of any size from headers alone.
set(INSTALL_GTEST OFF)
set(BUILD_GMOCK OFF)
set(gtest_disable_pthreads ON)
include_directories("${PROJECT_SOURCE_DIR}/tests/support/windows")
add_subdirectory(/usr/src/googletest "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)

# A directory of its own, because the one that the headers lie in has those of the host's C library.
find_path(BOOST_HEADERS boost/multiprecision/cpp_int.hpp
    PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/boost")
file(CREATE_LINK "${BOOST_HEADERS}/boost" "${PROJECT_BINARY_DIR}/boost/boost" SYMBOLIC)
add_library(tarnlib_test_integers INTERFACE)
target_include_directories(tarnlib_test_integers SYSTEM INTERFACE "${PROJECT_BINARY_DIR}/boost")
set(TARNLIB_TEST_INTEGERS tarnlib_test_integers)

# The tests are compiled for a module, whose exports they reach through pointers that its import
# library holds. Where they are linked with the objects of the library, this takes its place.
file(STRINGS "${PROJECT_SOURCE_DIR}/tests/abi/exports.txt" exports)
set(pointers "${PROJECT_BINARY_DIR}/import_pointers.c")
string(REGEX REPLACE "([A-Za-z0-9_]+);?" "extern char \\1[];\nvoid* const __imp_\\1 = \\1;\n"
    definitions "${exports}")
file(CONFIGURE OUTPUT "${pointers}" CONTENT "${definitions}")
add_library(tarnlib_test_imports OBJECT "${pointers}")
set(TARNLIB_TEST_IMPORTS tarnlib_test_imports)

# norvane_test(NAME SOURCES ... LIBS ... [LABEL ...]): one test program over the named libraries. Every case of it is
# a ctest test of its own with a time limit, on the offscreen platform and with a home of its own.
find_package(GTest REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
include(GoogleTest)

# Where this tree lies, as a header: on the command line it would keep a compiler cache from
# serving another tree.
set(NORVANE_TEST_PLACES ${CMAKE_BINARY_DIR}/places)
file(CONFIGURE OUTPUT ${NORVANE_TEST_PLACES}/TestPlaces.h CONTENT
"// Where the tests find the sources and what was built.
#pragma once

#define NORVANE_SOURCE_DIR \"${PROJECT_SOURCE_DIR}\"
#define NORVANE_BINARY_DIR \"${CMAKE_BINARY_DIR}\"
")

function(norvane_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBS" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE norvane_flags ${ARG_LIBS} GTest::gtest)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests ${NORVANE_TEST_PLACES})
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
        PROPERTIES TIMEOUT ${ARG_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=UTC;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/test-home")
endfunction()

# The engine's calls of the system go past tests/engine/FailingCalls.cpp, which lets them fail.
function(norvane_failing_calls name)
    foreach(call IN ITEMS fcntl fdatasync fstat fsync ftruncate open pread pwrite rename unlink)
        target_link_options(${name} PRIVATE -Wl,--wrap=${call})
    endforeach()
endfunction()

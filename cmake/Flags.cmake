# One interface target that carries the language level, warnings and Qt defines of all our targets.
add_library(norvane_flags INTERFACE)
target_compile_features(norvane_flags INTERFACE cxx_std_20)
target_include_directories(norvane_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)

if(MSVC)
    target_compile_options(norvane_flags INTERFACE /W4 /utf-8
        $<$<BOOL:${NORVANE_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(norvane_flags INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
        -Wcast-qual -Wextra-semi -Wnull-dereference
        $<$<BOOL:${NORVANE_WARNINGS_AS_ERRORS}>:-Werror>)
endif()

if(NORVANE_SANITIZE)
    target_compile_options(norvane_flags INTERFACE
        -fsanitize=${NORVANE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(norvane_flags INTERFACE -fsanitize=${NORVANE_SANITIZE})
endif()

target_compile_definitions(norvane_flags INTERFACE
    QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_CONTEXTLESS_CONNECT
    QT_NO_FOREACH QT_NO_KEYWORDS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_USE_QSTRINGBUILDER)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# norvane_library(NAME SOURCES ... LIBS ...): a static library of ours with our flags.
function(norvane_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC norvane_flags ${ARG_LIBS})
endfunction()

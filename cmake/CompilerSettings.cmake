set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
# The modules are found beside the core library, wherever the build folder stands.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

find_program(CCACHE ccache)
if(CCACHE)
    # ccache accepts a precompiled header only when told that times and pch defines may differ.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE})
endif()

# Every target of ours compiles with these; borrowed headers are system headers and stay quiet.
add_library(tamble_options INTERFACE)
target_compile_options(tamble_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    # The fuzzers' compiler has other ideas of some warnings.
    $<$<CXX_COMPILER_ID:GNU>:-Werror> $<$<CXX_COMPILER_ID:Clang>:-Wno-unknown-warning-option>
    # Designated initialisers leave fields out on purpose: they get their defaults.
    -Wno-missing-field-initializers
    # g++ 12 finds these faults in its own inlined std::string, depending on what else it inlined (its bug 105329).
    -Wno-restrict -Wno-stringop-overread -Wno-stringop-overflow -fdiagnostics-color=auto)

set(TAMBLE_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them")
if(TAMBLE_SANITIZE)
    add_compile_options(-fsanitize=${TAMBLE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${TAMBLE_SANITIZE})
endif()

# What confines a worker process: linked into the worker alone, so that the other programs start without it.
pkg_check_modules(SECCOMP REQUIRED IMPORTED_TARGET libseccomp)

file(GLOB sandbox_sources CONFIGURE_DEPENDS Sources/TambleCore/Platform/Sandbox/*.cpp)
add_library(TambleSandbox STATIC ${sandbox_sources})
target_link_libraries(TambleSandbox PUBLIC TambleCore PRIVATE tamble_options PkgConfig::SECCOMP)

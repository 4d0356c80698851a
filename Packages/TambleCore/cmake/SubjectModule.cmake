# Finding subjects: loaded on first use and apart from the picture libraries, since few jobs need it.
file(GLOB_RECURSE subject_sources CONFIGURE_DEPENDS Sources/TambleCore/Images/Subject/*.cpp)
add_library(TambleSubject SHARED ${subject_sources})
target_precompile_headers(TambleSubject PRIVATE <TambleCore/Support/Precompiled.h>)
target_include_directories(TambleSubject SYSTEM PRIVATE /usr/include/opencv4)
target_link_libraries(TambleSubject PUBLIC TambleCore PRIVATE tamble_options opencv_core opencv_imgproc opencv_dnn)

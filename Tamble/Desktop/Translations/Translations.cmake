# The languages of the window: tables that are compiled into it under :/i18n. Included by the window's own list.
set(translations ${CMAKE_CURRENT_SOURCE_DIR}/Translations)
file(GLOB tables CONFIGURE_DEPENDS ${translations}/tamble_*.ts)
set_source_files_properties(${tables} PROPERTIES OUTPUT_LOCATION i18n)
qt_add_lrelease(TambleDesktop TS_FILES ${tables} OPTIONS -silent QM_FILES_OUTPUT_VARIABLE compiled_tables)
qt_add_resources(TambleDesktop tamble_translations
    PREFIX /i18n BASE ${CMAKE_CURRENT_BINARY_DIR}/i18n FILES ${compiled_tables})

# Prints the engine's texts as source code, since lupdate can't see them in the engine.
file(GLOB engine_texts CONFIGURE_DEPENDS ${translations}/EngineTexts/*.cpp)
list(FILTER engine_texts EXCLUDE REGEX "/main\\.cpp$")
add_library(TambleEngineTexts STATIC ${engine_texts})
target_link_libraries(TambleEngineTexts PUBLIC TambleModel PRIVATE tamble_options)
add_executable(tamble-engine-texts ${translations}/EngineTexts/main.cpp)
target_link_libraries(tamble-engine-texts PRIVATE tamble_options TambleEngineTexts)

set(update_arguments
    -DSOURCE=${CMAKE_SOURCE_DIR}
    -DENGINE_TEXTS=$<TARGET_FILE:tamble-engine-texts>
    -DLUPDATE=$<TARGET_FILE:Qt6::lupdate>)
add_custom_target(update_translations
    COMMAND ${CMAKE_COMMAND} ${update_arguments} -P ${translations}/UpdateTranslations.cmake
    COMMENT "Looking for texts to translate" VERBATIM)
add_dependencies(update_translations tamble-engine-texts)

add_test(NAME Translations.TablesAreCompleteAndUpToDate
    COMMAND ${CMAKE_COMMAND} ${update_arguments} -DCHECK=${CMAKE_CURRENT_BINARY_DIR}/i18n/check
        -P ${translations}/UpdateTranslations.cmake)
set_tests_properties(Translations.TablesAreCompleteAndUpToDate PROPERTIES SKIP_REGULAR_EXPRESSION "Skipped:")

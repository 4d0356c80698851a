# Brings the tables up to what the window and the engine say. With -DCHECK=<folder> it changes nothing, but fails when
# anything would be changed or is not translated.
cmake_minimum_required(VERSION 3.25)
set(desktop ${SOURCE}/Tamble/Desktop)
set(committed ${desktop}/Translations)
file(GLOB languages RELATIVE ${committed} ${committed}/tamble_*.ts)
list(TRANSFORM languages REPLACE "tamble_(.*)\\.ts" "\\1")
set(trouble "")

if(NOT EXISTS ${LUPDATE})
    message("Skipped: there is no lupdate.")
    return()
endif()

if(CHECK)
    file(REMOVE_RECURSE ${CHECK})
    file(MAKE_DIRECTORY ${CHECK})
    file(COPY ${committed}/ DESTINATION ${CHECK} FILES_MATCHING PATTERN "*.ts" PATTERN EngineTexts EXCLUDE)
    set(tables ${CHECK})
    set(keys ${CHECK}/EngineKeys.h)
else()
    set(tables ${committed})
    set(keys ${committed}/EngineKeys.h)
endif()

execute_process(COMMAND ${ENGINE_TEXTS} OUTPUT_FILE ${keys} COMMAND_ERROR_IS_FATAL ANY)
if(CHECK)
    file(SHA256 ${keys} now)
    file(SHA256 ${committed}/EngineKeys.h before)
    if(NOT now STREQUAL before)
        list(APPEND trouble "EngineKeys.h is out of date.")
    endif()
endif()

foreach(language IN LISTS languages)
    set(table ${tables}/tamble_${language}.ts)
    execute_process(
        COMMAND ${LUPDATE} -silent -recursive Tamble/Desktop -extensions cpp,h,qml -I . -locations none -no-obsolete
            -disable-heuristic sametext -disable-heuristic similartext -disable-heuristic number
            -source-language en -target-language ${language} -ts ${table}
        WORKING_DIRECTORY ${SOURCE} COMMAND_ERROR_IS_FATAL ANY)
    file(READ ${table} text)
    if(language STREQUAL en)
        # English texts stand in the code as they are shown, but for those that name another system.
        string(REGEX REPLACE
            "(<source>([^<]*)</source>\n[^\n]*<translation) type=\"unfinished\"></translation>"
            "\\1>\\2</translation>" text "${text}")
        string(REGEX REPLACE "(<translation>[^<]*)([Tt]his|[Yy]our) Mac([^A-Za-z])" "\\1\\2 computer\\3" text "${text}")
        file(WRITE ${table} "${text}")
    endif()
    if(CHECK)
        file(READ ${committed}/tamble_${language}.ts before)
        if(NOT text STREQUAL before)
            list(APPEND trouble "tamble_${language}.ts is out of date.")
        endif()
        string(REGEX MATCHALL "<source>[^<]*</source>\n[^\n]*<translation type=\"[^\"]*\"" open "${text}")
        string(REGEX MATCHALL "type=\"unfinished\"|<numerusform></numerusform>" parts "${text}")
        list(LENGTH parts count)
        if(count GREATER 0)
            list(JOIN open "\n  " open)
            list(APPEND trouble "tamble_${language}.ts has ${count} texts without a translation:\n  ${open}")
        endif()
    endif()
endforeach()

if(trouble)
    list(JOIN trouble "\n" text)
    message(FATAL_ERROR "${text}\nBuild the target update_translations and translate what is new.")
endif()

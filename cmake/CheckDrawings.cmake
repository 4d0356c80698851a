# Fails when something names a drawing that is not there. Run as: cmake -DSOURCE=<repository> -P CheckDrawings.cmake
cmake_minimum_required(VERSION 3.25)
set(desktop ${SOURCE}/Tamble/Desktop)
set(trouble "")

# Every tool's symbol: the last of the texts in its line of the catalog.
file(READ ${SOURCE}/Packages/TambleCore/Sources/TambleCore/Catalog/ToolCatalog.cpp catalog)
string(REGEX MATCHALL "\"[^\"]*\"},?[ \n]" symbols "${catalog}")
list(LENGTH symbols count)
if(count LESS 39)
    list(APPEND trouble "only ${count} symbols found in the catalog")
endif()

# The window's own signs, wherever they are named in full.
file(GLOB_RECURSE sources ${desktop}/*.qml ${desktop}/*.cpp ${desktop}/*.h)
foreach(source IN LISTS sources)
    file(READ ${source} text)
    string(REGEX MATCHALL "\"(ui|category)\\.[a-z.]*[a-z]\"" signs "${text}")
    list(APPEND symbols ${signs})
endforeach()

list(TRANSFORM symbols REPLACE "^\"([^\"]*)\".*" "\\1")
list(REMOVE_DUPLICATES symbols)
foreach(symbol IN LISTS symbols)
    if(NOT EXISTS ${desktop}/Symbols/${symbol}.svg)
        list(APPEND trouble "Symbols/${symbol}.svg")
    endif()
endforeach()

# Symbols take the colour they are asked for.
file(GLOB drawings ${desktop}/Symbols/*.svg)
foreach(drawing IN LISTS drawings)
    file(READ ${drawing} text)
    if(NOT text MATCHES "stroke=\"currentColor\"" OR text MATCHES "#[0-9A-Fa-f][0-9A-Fa-f][0-9A-Fa-f]")
        list(APPEND trouble "${drawing} has a colour of its own")
    endif()
endforeach()

foreach(expression waiting catching working happy sorry)
    foreach(part arms eyes mouth)
        if(NOT EXISTS ${desktop}/QML/Components/mascot/${part}-${expression}.svg)
            list(APPEND trouble "mascot/${part}-${expression}.svg")
        endif()
    endforeach()
endforeach()

if(trouble)
    list(JOIN trouble "\n  " text)
    message(FATAL_ERROR "These drawings are missing or wrong:\n  ${text}")
endif()

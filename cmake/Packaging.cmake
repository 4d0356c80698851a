# What `cmake --install` puts where, and the Debian package that `cpack -G DEB` makes in the build folder.
#
# The libraries stand in lib itself and not in the folder of the machine's kind: the engine looks for its modules beside
# itself and for the worker in ../libexec/tamble.
include(GNUInstallDirs)
set(tamble_programs tamble tamble-desktop)
set(tamble_libraries TambleCore TambleImages TambleSubject TamblePDF)

# Moves a target, if there is one, into a folder of the installation; `libraries` leads from there to lib.
function(install_target target folder libraries)
    if(NOT TARGET ${target})
        return()
    endif()
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN${libraries}")
    install(TARGETS ${target} RUNTIME DESTINATION ${folder} LIBRARY DESTINATION ${folder})
endfunction()

foreach(program IN LISTS tamble_programs)
    install_target(${program} ${CMAKE_INSTALL_BINDIR} /../lib)
endforeach()
foreach(library IN LISTS tamble_libraries)
    install_target(${library} lib "")
endforeach()
install_target(tamble-worker libexec/tamble /../../lib)

# The program writes its manual page and completions itself, so what is installed always fits it.
set(documents ${CMAKE_BINARY_DIR}/documents)
install(CODE "
    file(MAKE_DIRECTORY \"${documents}\")
    function(write_document file)
        execute_process(COMMAND \"$<TARGET_FILE:tamble>\" \${ARGN}
            OUTPUT_FILE \"${documents}/\${file}\" COMMAND_ERROR_IS_FATAL ANY)
    endfunction()
    write_document(tamble.1 man)
    write_document(tamble completion bash)
    write_document(_tamble completion zsh)
    write_document(tamble.fish completion fish)
    execute_process(COMMAND gzip -9nf \"${documents}/tamble.1\" COMMAND_ERROR_IS_FATAL ANY)
")
install(FILES ${documents}/tamble.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${documents}/tamble DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${documents}/_tamble DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES ${documents}/tamble.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
install(FILES ${CMAKE_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tamble RENAME copyright)

# Who makes a package answers for it.
foreach(field name email)
    execute_process(COMMAND git config user.${field} WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
        OUTPUT_VARIABLE packager_${field} OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endforeach()
if(NOT packager_name OR NOT packager_email)
    set(packager_name "Tamble maintainers")
    set(packager_email "maintainers@tamble.invalid")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tamble)
set(CPACK_PACKAGE_VENDOR "The Tamble maintainers")
set(CPACK_PACKAGE_CONTACT "${packager_name} <${packager_email}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "everyday tools for photos, PDFs and other files")
set(CPACK_PACKAGE_DESCRIPTION
    "Converts, shrinks, resizes and turns photos, combines, splits and signs PDFs, and renames many files at once.
Everything happens on this computer, no original is lost, and every job can be undone.")
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
set(CPACK_STRIP_FILES ON)

set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
# Libraries are seen in the programs; these are started, imported or loaded by name.
set(needed poppler-utils)
set(recommended "")
if(TARGET tamble-desktop)
    foreach(module qt-labs-folderlistmodel qtcore qtqml qtqml-models qtqml-workerscript qtquick qtquick-controls qtquick-dialogs qtquick-layouts
                   qtquick-shapes qtquick-templates qtquick-window)
        list(APPEND needed qml6-module-${module})
    endforeach()
    list(APPEND needed libqt6svg6 fonts-inter)
    list(APPEND recommended qt6-translations-l10n qt6-wayland xdg-desktop-portal)
endif()
list(JOIN needed ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
list(JOIN recommended ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS)
include(CPack)

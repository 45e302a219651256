# Installs the icons, menu entry, metainfo, man page and the link in PATH. The file names match
# QGuiApplication::setDesktopFileName().
set(icons)
foreach(points 16 22 24 32 48 64 128 256 512)
    set(icon ${CMAKE_CURRENT_BINARY_DIR}/icons/${points}/zolmark.png)
    render_icon(${points} ${icon})
    list(APPEND icons ${icon})
    install(FILES ${icon} DESTINATION share/icons/hicolor/${points}x${points}/apps)
endforeach()
add_custom_target(icons ALL DEPENDS ${icons})
install(FILES ${icon_source} DESTINATION share/icons/hicolor/scalable/apps)

install(FILES zolmark.desktop DESTINATION share/applications)

# The dates and texts of the releases come from CHANGELOG.md only.
set(changelog ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changelog} releases.awk)
function(write_releases form result)
    execute_process(
        COMMAND awk -v form=${form} -f ${CMAKE_CURRENT_SOURCE_DIR}/releases.awk ${changelog}
        OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    set(${result} ${text} PARENT_SCOPE)
endfunction()
file(STRINGS ${changelog} releases REGEX "^## ")
list(GET releases 0 release)
if(NOT release MATCHES "^## ([^ ]+) \\(([-0-9]+)\\)$" OR NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
    message(FATAL_ERROR "CHANGELOG.md does not begin with version ${PROJECT_VERSION} and its day.")
endif()
set(ZOLMARK_RELEASE_DATE ${CMAKE_MATCH_2})
write_releases(metainfo ZOLMARK_RELEASES)

configure_file(example.zolmark.zolmark.metainfo.xml.in example.zolmark.zolmark.metainfo.xml @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/example.zolmark.zolmark.metainfo.xml
    DESTINATION share/metainfo)

# Compresses without file name and timestamp, so that equal texts result in equal files.
function(install_compressed text folder)
    add_custom_command(
        OUTPUT ${text}.gz
        COMMAND gzip --best --no-name --keep --force ${text}
        DEPENDS ${text}
        COMMENT "Compressing ${text}"
        VERBATIM)
    add_custom_target(${text}_compressed ALL DEPENDS ${text}.gz)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${text}.gz DESTINATION ${folder})
endfunction()
write_releases(debian debian_changelog)
file(CONFIGURE OUTPUT changelog CONTENT "${debian_changelog}" @ONLY)
configure_file(zolmark.1.in zolmark.1 @ONLY)
install_compressed(changelog share/doc/zolmark)
install_compressed(zolmark.1 share/man/man1)
install(FILES copyright DESTINATION share/doc/zolmark)
# The documentation folder of the package has a link to the manual; the program opens the original.
set(manual_link ${CMAKE_CURRENT_BINARY_DIR}/doc/Zolmark.pdf)
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/doc)
file(CREATE_LINK ../../../lib/zolmark/Resources/Zolmark.pdf ${manual_link} SYMBOLIC)
install(FILES ${manual_link} DESTINATION share/doc/zolmark)

# A link is sufficient: the program resolves it and finds Resources next to the real file's folder.
set(link ${CMAKE_CURRENT_BINARY_DIR}/zolmark)
file(CREATE_LINK ../lib/zolmark/bin/zolmark ${link} SYMBOLIC)
install(FILES ${link} DESTINATION bin)

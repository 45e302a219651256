# What an installation has beside the program: icons, menu entry, metainfo, man page, and the link on
# the path. The names fit that of QGuiApplication::setDesktopFileName.
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

# The changelog is the one place for the day of a release.
file(STRINGS changelog releases REGEX "^zolmark ")
file(STRINGS changelog signatures REGEX "^ -- ")
list(GET releases 0 release)
list(GET signatures 0 signature)
if(NOT release MATCHES "^zolmark \\(${PROJECT_VERSION}\\) ")
    message(FATAL_ERROR "packaging/changelog does not begin with version ${PROJECT_VERSION}.")
endif()
string(REGEX MATCH "([0-9][0-9]) ([A-Z][a-z]+) ([0-9]+) " day "${signature}")
set(months Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec)
list(FIND months ${CMAKE_MATCH_2} month)
math(EXPR month "${month} + 101")
string(SUBSTRING ${month} 1 2 month)
set(ZOLMARK_RELEASE_DATE ${CMAKE_MATCH_3}-${month}-${CMAKE_MATCH_1})

configure_file(example.zolmark.zolmark.metainfo.xml.in example.zolmark.zolmark.metainfo.xml @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/example.zolmark.zolmark.metainfo.xml
    DESTINATION share/metainfo)

# Without name and time inside, so that equal texts make equal files.
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
configure_file(changelog changelog COPYONLY)
configure_file(zolmark.1.in zolmark.1 @ONLY)
install_compressed(changelog share/doc/zolmark)
install_compressed(zolmark.1 share/man/man1)
install(FILES copyright DESTINATION share/doc/zolmark)

# A link works: the program looks for its resources from the folder of its real file.
set(link ${CMAKE_CURRENT_BINARY_DIR}/zolmark)
file(CREATE_LINK ../lib/zolmark/bin/zolmark ${link} SYMBOLIC)
install(FILES ${link} DESTINATION bin)

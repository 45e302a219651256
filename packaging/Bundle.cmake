# The icon and the Info.plist of the macOS app bundle. add_to_resources() adds pictures and manual.
set(iconset ${CMAKE_CURRENT_BINARY_DIR}/Zolmark.iconset)
set(icons)
foreach(points 16 32 128 256 512)
    math(EXPR double_points "2 * ${points}")
    render_icon(${points} ${iconset}/icon_${points}x${points}.png)
    render_icon(${double_points} ${iconset}/icon_${points}x${points}@2x.png)
    list(APPEND icons ${iconset}/icon_${points}x${points}.png
        ${iconset}/icon_${points}x${points}@2x.png)
endforeach()

set(icns ${CMAKE_CURRENT_BINARY_DIR}/Zolmark.icns)
add_custom_command(
    OUTPUT ${icns}
    COMMAND iconutil --convert icns --output ${icns} ${iconset}
    DEPENDS ${icons}
    COMMENT "Making the icon of the bundle"
    VERBATIM)
add_custom_target(icon DEPENDS ${icns})
add_dependencies(zolmark icon)
add_to_resources(${icns})

set_target_properties(zolmark PROPERTIES
    MACOSX_BUNDLE_INFO_PLIST ${CMAKE_CURRENT_SOURCE_DIR}/Info.plist.in)

# Installing Brimly on Linux; included from the top level on Linux only.
#
# `cmake --install <dir>` (`make install`) puts the program in bin/ and its desktop entry, AppStream
# metadata and hicolor icons under share/.
include(GNUInstallDirs)

set(BRIMLY_HOMEPAGE "https://brimly.app/")
# Where the web site publishes the images of docs/screenshots/.
set(BRIMLY_SCREENSHOTS_URL "${BRIMLY_HOMEPAGE}screenshots/")
# No licence has been chosen for Brimly yet: until one is, the metadata says all rights reserved.
set(BRIMLY_PROJECT_LICENSE "LicenseRef-proprietary")
# The day the version in project() was released, for the AppStream metadata: change both together.
set(BRIMLY_RELEASE_DATE "2026-11-25")

# The program.
install(TARGETS brimly RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

# The desktop entry and the metadata, both named after the bundle identifier, which the autostart
# entry the program writes also uses as its icon name.
set(brimly_linux "${PROJECT_SOURCE_DIR}/packaging/linux")
configure_file("${brimly_linux}/brimly.desktop.in" "${BRIMLY_BUNDLE_ID}.desktop" @ONLY)
configure_file("${brimly_linux}/brimly.metainfo.xml.in" "${BRIMLY_BUNDLE_ID}.metainfo.xml" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${BRIMLY_BUNDLE_ID}.desktop"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${BRIMLY_BUNDLE_ID}.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")

# The icon: the drawing itself, and PNGs rendered from it at build time for desktops that want
# pixels in the sizes the hicolor theme has folders for.
set(brimly_icon_svg "${PROJECT_SOURCE_DIR}/src/artwork/app-icon.svg")
set(brimly_hicolor "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
install(FILES "${brimly_icon_svg}" DESTINATION "${brimly_hicolor}/scalable/apps"
        RENAME "${BRIMLY_BUNDLE_ID}.svg")

set(BRIMLY_ICON_SIZES 16 22 24 32 48 64 128 256 512)
add_executable(brimly_render_icon "${brimly_linux}/RenderIcon.cpp")
target_link_libraries(brimly_render_icon PRIVATE Qt6::Gui Qt6::Svg brimly_warnings)
set_target_properties(brimly_render_icon PROPERTIES AUTOMOC OFF)
set(brimly_icon_pngs)
foreach(size IN LISTS BRIMLY_ICON_SIZES)
  set(png "${CMAKE_CURRENT_BINARY_DIR}/icons/${size}x${size}/${BRIMLY_BUNDLE_ID}.png")
  add_custom_command(OUTPUT "${png}"
    COMMAND brimly_render_icon "${brimly_icon_svg}" "${png}" ${size}
    DEPENDS brimly_render_icon "${brimly_icon_svg}"
    COMMENT "Rendering the ${size}x${size} application icon"
    VERBATIM)
  list(APPEND brimly_icon_pngs "${png}")
  install(FILES "${png}" DESTINATION "${brimly_hicolor}/${size}x${size}/apps")
endforeach()
add_custom_target(brimly_icons ALL DEPENDS ${brimly_icon_pngs})

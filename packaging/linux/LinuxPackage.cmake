# Installing Brimly on Linux; included from the top level on Linux only.
#
# `cmake --install <dir>` (`make install`) puts the program in bin/ and its desktop entry, AppStream
# metadata and hicolor icons under share/. `make package` wraps the same files in a Debian package
# with CPack's DEB generator: <dir>/brimly_<version>_<architecture>.deb, installed under /usr.
# scripts/check-package validates that package, installs it, runs it and removes it again.
include(GNUInstallDirs)

set(BRIMLY_HOMEPAGE "https://brimly.app/")
# Where the web site publishes the images of docs/screenshots/.
set(BRIMLY_SCREENSHOTS_URL "${BRIMLY_HOMEPAGE}screenshots/")
# No licence has been chosen for Brimly yet: until one is, the metadata says all rights reserved.
set(BRIMLY_PROJECT_LICENSE "LicenseRef-proprietary")
# The day the version in project() was released, for the AppStream metadata: change both together.
set(BRIMLY_RELEASE_DATE "2026-11-25")
set(BRIMLY_MAINTAINER "The Brimly developers <maintainers@brimly.app>")

# Packages the .deb recommends: the typefaces Brimly's text is set in. Qt falls back to other
# installed fonts without them, so they are recommended rather than required.
set(BRIMLY_DEBIAN_RECOMMENDS fonts-quicksand fonts-jetbrains-mono)
# Packages the .deb needs beyond the libraries the program links to (those are found by
# dpkg-shlibdeps): Qt's X11 platform plug-in, without which no window or tray item can show. Debian
# makes it only a recommendation of libqt6gui6.
set(BRIMLY_DEBIAN_DEPENDS qt6-qpa-plugins)

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

set(CPACK_GENERATOR "DEB")
set(CPACK_PACKAGE_NAME "brimly")
set(CPACK_PACKAGE_VENDOR "Brimly")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "${BRIMLY_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "glanceable system statistics at the top of the screen")
# Debian shows the long description as it is written: lines are broken here, below 80 columns.
string(JOIN "\n" CPACK_PACKAGE_DESCRIPTION
  "Brimly shows CPU, GPU, memory, disk, temperature and power readings in a"
  "black card that grows out of the top centre of the screen when the pointer"
  "comes near it, and shrinks back when it leaves. A tray item opens its"
  "controls and settings."
  "It runs on X11 (or XWayland) and reads the kernel's own counters;"
  "brimly --audit prints every reading beside its source.")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
# The program is built with debugging information; the package carries it stripped.
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME "DEB-DEFAULT")
set(CPACK_DEBIAN_PACKAGE_SECTION "utils")
set(CPACK_DEBIAN_PACKAGE_PRIORITY "optional")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${BRIMLY_HOMEPAGE}")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
list(JOIN BRIMLY_DEBIAN_DEPENDS ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
list(JOIN BRIMLY_DEBIAN_RECOMMENDS ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS)
include(CPack)

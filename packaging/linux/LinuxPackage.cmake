# Installing Brimly on Linux; included from the top level on Linux only.
#
# `cmake --install <dir>` (`make install`) puts the program in bin/ and its desktop entry, AppStream
# metadata, hicolor icons, manual page, changelog and copyright notice under share/. `make package`
# wraps the same files in a Debian package with CPack's DEB generator:
# <dir>/brimly_<version>_<architecture>.deb, installed under /usr.
# scripts/check-package validates that package, installs it, runs it and removes it again.
include(GNUInstallDirs)

set(BRIMLY_HOMEPAGE "https://brimly.app/")
# Where the web site publishes the images of docs/screenshots/.
set(BRIMLY_SCREENSHOTS_URL "${BRIMLY_HOMEPAGE}screenshots/")
# No licence has been chosen for Brimly yet: until one is, the metadata and packaging/linux/copyright
# say all rights reserved.
set(BRIMLY_PROJECT_LICENSE "LicenseRef-proprietary")

set(brimly_linux "${PROJECT_SOURCE_DIR}/packaging/linux")
# Each release is an entry at the top of packaging/linux/changelog, in Debian's format; the package
# carries the file as its changelog. That entry must be for the version in project(), and it gives
# the release date (for the metadata and the manual page) and the maintainer.
file(READ "${brimly_linux}/changelog" brimly_changelog)
if(NOT brimly_changelog MATCHES "^brimly \\(([^)]+)\\)")
  message(FATAL_ERROR "packaging/linux/changelog does not begin with an entry \"brimly (<version>)\"")
endif()
if(NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "packaging/linux/changelog's latest entry is for ${CMAKE_MATCH_1}, project() "
                      "says ${PROJECT_VERSION}: add an entry for ${PROJECT_VERSION} at its top")
endif()
if(NOT brimly_changelog MATCHES
   "\n -- ([^\n]+)  [A-Z][a-z][a-z], ([0-9][0-9]?) ([A-Z][a-z][a-z]) ([0-9][0-9][0-9][0-9]) ")
  message(FATAL_ERROR "packaging/linux/changelog's latest entry has no \" -- <maintainer>  <date>\" line")
endif()
set(BRIMLY_MAINTAINER "${CMAKE_MATCH_1}")
set(brimly_day "${CMAKE_MATCH_2}")
set(brimly_year "${CMAKE_MATCH_4}")
set(brimly_months Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec)
list(FIND brimly_months "${CMAKE_MATCH_3}" brimly_month)
if(brimly_month EQUAL -1)
  message(FATAL_ERROR "packaging/linux/changelog's latest date has no month: ${CMAKE_MATCH_3}")
endif()
math(EXPR brimly_month "${brimly_month} + 1")
string(REGEX REPLACE "^([0-9])$" "0\\1" brimly_month "${brimly_month}")
string(REGEX REPLACE "^([0-9])$" "0\\1" brimly_day "${brimly_day}")
set(BRIMLY_RELEASE_DATE "${brimly_year}-${brimly_month}-${brimly_day}")

# Packages the .deb recommends: the typefaces Brimly's text is set in (the windows' Inter, with its
# medium and semibold faces, and the panel's Quicksand and JetBrains Mono). Qt falls back to other
# installed fonts without them, so they are recommended rather than required.
set(BRIMLY_DEBIAN_RECOMMENDS fonts-inter fonts-quicksand fonts-jetbrains-mono)
# Packages the .deb needs beyond the libraries the program links to (those are found by
# dpkg-shlibdeps): Qt's X11 platform plug-in, without which no window or tray item can show. Debian
# makes it only a recommendation of libqt6gui6.
set(BRIMLY_DEBIAN_DEPENDS qt6-qpa-plugins)

# The program.
install(TARGETS brimly RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

# The desktop entry and the metadata, both named after the bundle identifier, which the autostart
# entry the program writes also uses as its icon name.
configure_file("${brimly_linux}/brimly.desktop.in" "${BRIMLY_BUNDLE_ID}.desktop" @ONLY)
configure_file("${brimly_linux}/brimly.metainfo.xml.in" "${BRIMLY_BUNDLE_ID}.metainfo.xml" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${BRIMLY_BUNDLE_ID}.desktop"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${BRIMLY_BUNDLE_ID}.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")

# The manual page and the changelog, compressed as Debian wants them (gzip -9, without the name
# and time that would make each build differ), and the copyright notice. Debian names the
# documentation folder after the package, in lower case.
function(brimly_gzip source output)
  get_filename_component(name "${output}" NAME_WLE)
  set(copy "${CMAKE_CURRENT_BINARY_DIR}/gzip/${name}")
  add_custom_command(OUTPUT "${output}"
    COMMAND "${CMAKE_COMMAND}" -E copy "${source}" "${copy}"
    COMMAND gzip -9nf "${copy}"
    COMMAND "${CMAKE_COMMAND}" -E rename "${copy}.gz" "${output}"
    DEPENDS "${source}"
    COMMENT "Compressing ${name}"
    VERBATIM)
endfunction()
configure_file("${brimly_linux}/brimly.1.in" brimly.1 @ONLY)
brimly_gzip("${CMAKE_CURRENT_BINARY_DIR}/brimly.1" "${CMAKE_CURRENT_BINARY_DIR}/brimly.1.gz")
brimly_gzip("${brimly_linux}/changelog" "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz")
add_custom_target(brimly_documents ALL
  DEPENDS "${CMAKE_CURRENT_BINARY_DIR}/brimly.1.gz" "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz")
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/brimly.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
set(brimly_docdir "${CMAKE_INSTALL_DATADIR}/doc/brimly")
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz" "${brimly_linux}/copyright"
        DESTINATION "${brimly_docdir}")

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

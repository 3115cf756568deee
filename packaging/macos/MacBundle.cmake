# brimly_macos_bundle(<target>)
# Makes an executable target the application bundle Brimly.app (its program is
# Brimly.app/Contents/MacOS/Brimly): our identifier and version in its Info.plist, the deployment
# target as the oldest macOS it starts on, and an agent application (LSUIElement) from its first
# moment, so that it never shows a Dock icon.
function(brimly_macos_bundle target)
  # Two passes over packaging/macos/Info.plist.in: here the @…@ names (the minimum macOS), leaving
  # the ${MACOSX_BUNDLE_…} names for CMake's own pass when it writes the bundle's Info.plist.
  set(template "${CMAKE_CURRENT_BINARY_DIR}/Info.plist.in")
  configure_file("${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in" "${template}" @ONLY)
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME "Brimly"
    MACOSX_BUNDLE TRUE
    MACOSX_BUNDLE_INFO_PLIST "${template}"
    MACOSX_BUNDLE_GUI_IDENTIFIER "${BRIMLY_BUNDLE_ID}"
    MACOSX_BUNDLE_BUNDLE_NAME "Brimly"
    MACOSX_BUNDLE_SHORT_VERSION_STRING "${PROJECT_VERSION}"
    MACOSX_BUNDLE_BUNDLE_VERSION "${PROJECT_VERSION}")
endfunction()

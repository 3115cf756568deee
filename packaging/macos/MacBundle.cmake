# brimly_macos_bundle(<target>)
# Makes an executable target the application bundle Brimly.app (its program is
# Brimly.app/Contents/MacOS/Brimly): our identifier and version in its Info.plist, and an agent
# application (LSUIElement) from its first moment, so that it never shows a Dock icon.
function(brimly_macos_bundle target)
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME "Brimly"
    MACOSX_BUNDLE TRUE
    MACOSX_BUNDLE_INFO_PLIST "${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in"
    MACOSX_BUNDLE_GUI_IDENTIFIER "${BRIMLY_BUNDLE_ID}"
    MACOSX_BUNDLE_BUNDLE_NAME "Brimly"
    MACOSX_BUNDLE_SHORT_VERSION_STRING "${PROJECT_VERSION}"
    MACOSX_BUNDLE_BUNDLE_VERSION "${PROJECT_VERSION}")
endfunction()

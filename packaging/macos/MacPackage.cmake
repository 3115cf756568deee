# The self-contained application and its disk image; included from the top level on macOS only.
#
# `cmake --build <dir> --target deploy` makes <dir>/deploy/Brimly.app: a copy of the built bundle
# with the Qt frameworks and plug-ins it uses inside it, signed ad hoc and checked to link to
# nothing but itself and the system (packaging/macos/deploy-app). The built bundle stays as it is,
# for `make run` and the next build.
#
# `make package` then puts that copy on a disk image beside a link to /Applications, with CPack's
# DragNDrop generator: <dir>/Brimly-<version>-macOS-<processor>.dmg.

if(TARGET Qt6::macdeployqt)
  set(BRIMLY_MACDEPLOYQT "$<TARGET_FILE:Qt6::macdeployqt>")
else()
  # Qt's own bin folder first, as Qt's deployment support looks there.
  find_program(BRIMLY_MACDEPLOYQT_PROGRAM macdeployqt HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}")
  set(BRIMLY_MACDEPLOYQT "${BRIMLY_MACDEPLOYQT_PROGRAM}")
endif()

set(BRIMLY_DEPLOYED_APP "${CMAKE_BINARY_DIR}/deploy/Brimly.app")
if(BRIMLY_MACDEPLOYQT)
  add_custom_target(deploy
    COMMAND "${PROJECT_SOURCE_DIR}/packaging/macos/deploy-app"
            "$<TARGET_BUNDLE_DIR:brimly>" "${BRIMLY_DEPLOYED_APP}" "${BRIMLY_MACDEPLOYQT}"
    DEPENDS brimly
    COMMENT "Deploying Qt into ${BRIMLY_DEPLOYED_APP} and signing it ad hoc"
    VERBATIM)
else()
  add_custom_target(deploy
    COMMAND "${CMAKE_COMMAND}" -E echo "deploy: macdeployqt not found beside Qt (${QT6_INSTALL_PREFIX})"
    COMMAND "${CMAKE_COMMAND}" -E false
    VERBATIM)
endif()

# The disk image holds the deployed bundle, never the built one (which needs the Qt it was built
# against): the deploy target must have run first, as `make package` does.
install(DIRECTORY "${BRIMLY_DEPLOYED_APP}" DESTINATION "." USE_SOURCE_PERMISSIONS)

set(CPACK_GENERATOR "DragNDrop")
set(CPACK_PACKAGE_NAME "Brimly")
set(CPACK_PACKAGE_VENDOR "Brimly")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Glanceable system statistics at the notch")
set(CPACK_PACKAGE_FILE_NAME "Brimly-${PROJECT_VERSION}-macOS-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_DMG_VOLUME_NAME "Brimly")
set(CPACK_DMG_FORMAT "UDZO")
include(CPack)

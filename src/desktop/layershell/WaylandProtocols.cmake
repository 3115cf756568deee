# brimly_wayland_protocol(<target> <xml file>)
# Generates the C glue and the client header of a Wayland protocol description with
# wayland-scanner and adds both to <target>; the header lands in <target>'s build folder, which
# becomes one of its public include folders.
find_package(PkgConfig REQUIRED)
pkg_get_variable(BRIMLY_WAYLAND_SCANNER wayland-scanner wayland_scanner)
if(NOT BRIMLY_WAYLAND_SCANNER)
  message(FATAL_ERROR "wayland-scanner is missing (Debian: libwayland-bin, libwayland-dev)")
endif()

function(brimly_wayland_protocol target xml)
  get_filename_component(name ${xml} NAME_WE)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/wayland-protocols)
  set(header ${folder}/${name}-client-protocol.h)
  set(glue ${folder}/${name}-protocol.c)
  add_custom_command(
    OUTPUT ${header} ${glue}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${BRIMLY_WAYLAND_SCANNER} client-header ${xml} ${header}
    COMMAND ${BRIMLY_WAYLAND_SCANNER} private-code ${xml} ${glue}
    DEPENDS ${xml}
    COMMENT "wayland-scanner ${name}"
    VERBATIM)
  target_sources(${target} PRIVATE ${header} ${glue})
  target_include_directories(${target} PUBLIC ${folder})
endfunction()

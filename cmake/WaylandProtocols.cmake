# wayland_protocol(<target> <xml>…): adds the client side of protocols that the system's packages describe.
find_program(WAYLAND_SCANNER wayland-scanner REQUIRED)
function(wayland_protocol target)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/wayland)
  file(MAKE_DIRECTORY ${folder})
  foreach(xml IN LISTS ARGN)
    get_filename_component(name ${xml} NAME_WE)
    add_custom_command(OUTPUT ${folder}/${name}.h
      COMMAND ${WAYLAND_SCANNER} client-header ${xml} ${folder}/${name}.h DEPENDS ${xml} VERBATIM)
    add_custom_command(OUTPUT ${folder}/${name}.c
      COMMAND ${WAYLAND_SCANNER} private-code ${xml} ${folder}/${name}.c DEPENDS ${xml} VERBATIM)
    target_sources(${target} PRIVATE ${folder}/${name}.c ${folder}/${name}.h)
  endforeach()
  target_include_directories(${target} SYSTEM PRIVATE ${folder})
endfunction()

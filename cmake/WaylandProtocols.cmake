# wayland_protocol(<target> <xml>…): a library of the client side of protocols that the system's packages describe.
find_program(WAYLAND_SCANNER wayland-scanner REQUIRED)
function(wayland_protocol target)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/wayland)
  set(sources)
  file(MAKE_DIRECTORY ${folder})
  foreach(xml IN LISTS ARGN)
    get_filename_component(name ${xml} NAME_WE)
    add_custom_command(OUTPUT ${folder}/${name}.h
      COMMAND ${WAYLAND_SCANNER} client-header ${xml} ${folder}/${name}.h DEPENDS ${xml} VERBATIM)
    add_custom_command(OUTPUT ${folder}/${name}.c
      COMMAND ${WAYLAND_SCANNER} private-code ${xml} ${folder}/${name}.c DEPENDS ${xml} VERBATIM)
    list(APPEND sources ${folder}/${name}.c ${folder}/${name}.h)
  endforeach()
  add_library(${target} STATIC ${sources})
  target_include_directories(${target} SYSTEM INTERFACE ${folder})
  target_link_libraries(${target} PUBLIC PkgConfig::WAYLAND)
endfunction()

# `format` rewrites, `format-check` and `tidy` only complain. Another version of clang-format would see it otherwise.
file(GLOB_RECURSE QUIETLARK_SOURCES CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/WumbleCore/*.cpp ${CMAKE_SOURCE_DIR}/Quietlark/*.cpp ${CMAKE_SOURCE_DIR}/tools/*.cpp ${CMAKE_SOURCE_DIR}/tests/*.cpp
  ${CMAKE_SOURCE_DIR}/fuzz/*.cpp ${CMAKE_SOURCE_DIR}/benchmarks/*.cpp)
file(GLOB_RECURSE QUIETLARK_HEADERS CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/WumbleCore/*.h ${CMAKE_SOURCE_DIR}/Quietlark/*.h ${CMAKE_SOURCE_DIR}/tools/*.h ${CMAKE_SOURCE_DIR}/tests/*.h
  ${CMAKE_SOURCE_DIR}/fuzz/*.h ${CMAKE_SOURCE_DIR}/benchmarks/*.h)

add_custom_target(format COMMAND clang-format-14 -i ${QUIETLARK_SOURCES} ${QUIETLARK_HEADERS} VERBATIM)
add_custom_target(format-check
  COMMAND clang-format-14 --dry-run --Werror ${QUIETLARK_SOURCES} ${QUIETLARK_HEADERS} VERBATIM)
add_custom_target(tidy
  COMMAND ${CMAKE_SOURCE_DIR}/scripts/tidy ${CMAKE_BINARY_DIR} USES_TERMINAL VERBATIM)

# `format` rewrites, `format-check` and `tidy` only complain. Another version of clang-format would see it otherwise.
file(GLOB_RECURSE QUIETLARK_SOURCES CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/WumbleCore/*.cpp ${CMAKE_SOURCE_DIR}/Quietlark/*.cpp ${CMAKE_SOURCE_DIR}/tools/*.cpp ${CMAKE_SOURCE_DIR}/tests/*.cpp
  ${CMAKE_SOURCE_DIR}/fuzz/*.cpp ${CMAKE_SOURCE_DIR}/benchmarks/*.cpp)
file(GLOB_RECURSE QUIETLARK_HEADERS CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/WumbleCore/*.h ${CMAKE_SOURCE_DIR}/Quietlark/*.h ${CMAKE_SOURCE_DIR}/tools/*.h ${CMAKE_SOURCE_DIR}/tests/*.h
  ${CMAKE_SOURCE_DIR}/fuzz/*.h ${CMAKE_SOURCE_DIR}/benchmarks/*.h)

# In a list of their own, so that a complaint isn't preceded by the names of them all.
list(JOIN QUIETLARK_SOURCES "\n" SOURCE_LINES)
list(JOIN QUIETLARK_HEADERS "\n" HEADER_LINES)
set(FORMATTED ${CMAKE_BINARY_DIR}/formatted)
file(CONFIGURE OUTPUT ${FORMATTED} CONTENT "${SOURCE_LINES}\n${HEADER_LINES}\n")

add_custom_target(format COMMAND xargs -d \\n -a ${FORMATTED} clang-format-14 -i VERBATIM)
add_custom_target(format-check COMMAND xargs -d \\n -a ${FORMATTED} clang-format-14 --dry-run --Werror VERBATIM)
add_custom_target(tidy
  COMMAND ${CMAKE_SOURCE_DIR}/scripts/tidy ${CMAKE_BINARY_DIR} USES_TERMINAL VERBATIM)

add_library(QuietlarkWarnings INTERFACE)
target_compile_options(QuietlarkWarnings INTERFACE
  -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
  # A record is made by naming the fields that differ from their initialisers.
  -Wno-missing-field-initializers)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees the unused alternatives of a variant as uninitialised reads, and takes the buffer within a string for
  # all of it; the sanitizers find what is really written past an end.
  target_compile_options(QuietlarkWarnings INTERFACE
    -Wno-maybe-uninitialized -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread -Wno-restrict)
endif()

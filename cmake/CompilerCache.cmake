find_program(CCACHE ccache)
if(CCACHE)
  # Precompiled headers are taken for what they were made from, not for when. The compiler tells what it read, so that
  # nothing is read twice.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_DEPEND=1 CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()

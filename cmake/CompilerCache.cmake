find_program(CCACHE ccache)
if(CCACHE)
  # Precompiled headers are taken for what they were made from, not for when.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()

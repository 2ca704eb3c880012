if(QUIETLARK_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
  add_link_options(-fsanitize=address,undefined)
endif()
if(QUIETLARK_FUZZ)
  # More takes long to compile, and finds nothing else.
  add_compile_options(-fsanitize=fuzzer-no-link -O1)
endif()

# Several times as fast as the usual one, which tells where dozens of test programs with sanitizers are linked.
find_program(LLD ld.lld)
if(LLD)
  add_link_options(-fuse-ld=lld)
endif()

# Debugger libraries that the tests of target/ load, as a host would: a whole one and one that lacks a function.
foreach(library debugger_library debugger_library_lacking)
  add_library(${library} MODULE ${CMAKE_CURRENT_LIST_DIR}/modules/debugger_library.cpp)
  target_link_libraries(${library} PRIVATE pvw_options)
  set_target_properties(${library} PROPERTIES PREFIX "" SUFFIX ".dll" CXX_VISIBILITY_PRESET hidden)
  add_dependencies(test_target ${library})
endforeach()
target_compile_definitions(debugger_library_lacking PRIVATE LACKS_ASM_INFO)

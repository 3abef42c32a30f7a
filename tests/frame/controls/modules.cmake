# A component with a help engine, and one whose engine lacks the entry point: bin/../test_modules/NAME.so.
foreach(module help_module engine_without_entry)
  add_library(test_module_${module} MODULE frame/controls/modules/help_module.cpp)
  target_link_libraries(test_module_${module} PRIVATE pvw_options platform)
  set_target_properties(test_module_${module} PROPERTIES PREFIX "" SUFFIX ".so" OUTPUT_NAME ${module}
    LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/test_modules)
  add_dependencies(test_frame_controls test_module_${module})
endforeach()
target_compile_definitions(test_module_engine_without_entry PRIVATE PVW_WITHOUT_ENTRY)

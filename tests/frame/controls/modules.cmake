# A component with a help engine: bin/../test_modules/help_module.so.
add_library(test_module_help_module MODULE frame/controls/modules/help_module.cpp)
target_link_libraries(test_module_help_module PRIVATE pvw_options platform)
set_target_properties(test_module_help_module PROPERTIES PREFIX "" SUFFIX ".so" OUTPUT_NAME help_module
  LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/test_modules)
add_dependencies(test_frame_controls test_module_help_module)

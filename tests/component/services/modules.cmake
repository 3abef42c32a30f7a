# Another component, for the test of the module state: bin/../test_modules/other_component.so.
add_library(test_module_other_component MODULE component/services/modules/other_component.cpp)
target_link_libraries(test_module_other_component PRIVATE pvw_options platform)
set_target_properties(test_module_other_component PROPERTIES PREFIX "" SUFFIX ".so" OUTPUT_NAME other_component
  LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/test_modules)
add_dependencies(test_component_services test_module_other_component)

# Modules that the tests of resources/ load: the resource library itself, and a component that refers to no resource
# by name.
add_library(bare_component MODULE ${CMAKE_CURRENT_LIST_DIR}/modules/bare_component.cpp)
target_link_libraries(bare_component PRIVATE pvw_resources)
set_target_properties(bare_component PROPERTIES PREFIX "" SUFFIX .dll CXX_VISIBILITY_PRESET hidden)
add_dependencies(test_resources PvwIOExtRes bare_component)

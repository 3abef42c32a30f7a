# Modules that the tests of resources/ load: the resource library itself, one that holds a text of its own, and a
# component that refers to no resource by name.
add_library(override_library MODULE ${CMAKE_CURRENT_LIST_DIR}/modules/override_library.cpp)
target_link_libraries(override_library PRIVATE pvw_options platform)
add_library(bare_component MODULE ${CMAKE_CURRENT_LIST_DIR}/modules/bare_component.cpp)
target_link_libraries(bare_component PRIVATE pvw_resources)
set_target_properties(override_library bare_component PROPERTIES PREFIX "" SUFFIX .dll CXX_VISIBILITY_PRESET hidden)
add_dependencies(test_resources PvwIOExtRes override_library bare_component)

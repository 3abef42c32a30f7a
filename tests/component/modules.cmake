# The tests of component/ load the built component, and debugger libraries that a host would hand out.
if(TARGET test_component)
  add_dependencies(test_component PvwIO PvwIOExtRes debugger_library debugger_library_lacking)
endif()

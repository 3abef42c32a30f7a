# Small libraries for the tests of the resource library's loader: test_modules/NAME.so in the build directory.
foreach(module scripted_library bare_library)
  add_library(test_module_${module} MODULE support_library/modules/${module}.cpp)
  target_link_libraries(test_module_${module} PRIVATE pvw_options)
  # A library with unique symbols is never unloaded, and the tests look whether it was.
  target_compile_options(test_module_${module} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
  set_target_properties(test_module_${module} PROPERTIES PREFIX "" SUFFIX ".so" OUTPUT_NAME ${module}
    LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/test_modules)
  add_dependencies(test_support test_module_${module})
endforeach()

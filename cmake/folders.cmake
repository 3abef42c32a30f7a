# One target a folder. `pvw_folder(model LINKS target support)` makes the static library pvw_model
# from every source in the calling folder and gives it exactly those links; a folder with headers
# only becomes an interface library of the same name.

add_library(pvw_options INTERFACE)
target_include_directories(pvw_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(pvw_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow
  -Werror -Wno-error=maybe-uninitialized
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(PVW_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -O1 -g1)
  add_link_options(-fsanitize=address,undefined)
endif()
if(PVW_FUZZ)
  # clang doesn't know the one warning above by name.
  target_compile_options(pvw_options INTERFACE -Wno-unknown-warning-option)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

function(pvw_folder name)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  if(sources)
    add_library(pvw_${name} STATIC ${sources})
    target_link_libraries(pvw_${name} PUBLIC pvw_options ${ARG_LINKS})
    set_target_properties(pvw_${name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  else()
    add_library(pvw_${name} INTERFACE)
    target_link_libraries(pvw_${name} INTERFACE pvw_options ${ARG_LINKS})
  endif()
endfunction()

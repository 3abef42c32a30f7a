# A drag is real only where there is a screen, so this test has a virtual one and a pointer that moves on it.
# Where either is missing CTest says that it was skipped.
add_executable(test_ioview_drag ${CMAKE_CURRENT_LIST_DIR}/drag_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/../desktop_stage.cpp)
target_link_libraries(test_ioview_drag PRIVATE pvw_ioview pvw_test_support Qt6::Test GTest::gmock_main)
target_compile_definitions(test_ioview_drag PRIVATE SOURCE_DIR="${PROJECT_SOURCE_DIR}")
add_dependencies(test_ioview_drag PvwIO PvwIOExtRes)

find_program(XVFB_RUN xvfb-run)
find_program(XDOTOOL xdotool)
if(XVFB_RUN AND XDOTOOL)
  add_test(NAME ioview_drag
    COMMAND ${XVFB_RUN} -a -s "-screen 0 1400x900x24" $<TARGET_FILE:test_ioview_drag>)
  # Without the session's message bus, whose library leaks.
  set_tests_properties(ioview_drag PROPERTIES TIMEOUT 120
    ENVIRONMENT "QT_QPA_PLATFORM=xcb;DBUS_SESSION_BUS_ADDRESS=disabled:")
else()
  add_test(NAME ioview_drag
    COMMAND ${CMAKE_COMMAND} -E echo "SKIPPED: xvfb-run or xdotool is missing; scripts/setup installs them")
  set_tests_properties(ioview_drag PROPERTIES SKIP_REGULAR_EXPRESSION "^SKIPPED")
endif()

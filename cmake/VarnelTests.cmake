include(GoogleTest)

# varnel_test(NAME [LABEL ...] SOURCES ... LINKS ...): one test binary for a room, every case a ctest entry
# that has the room's name as its label, if no other one is given.
function(varnel_test name)
  cmake_parse_arguments(arg "" "LABEL" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} GTest::gtest GTest::gtest_main varnel_options)
  if(NOT arg_LABEL)
    get_filename_component(arg_LABEL ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120
    PROPERTIES TIMEOUT 300 LABELS ${arg_LABEL}
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()

# varnel_widget_test(NAME SOURCES ... LINKS ...): the same with an application for widgets.
function(varnel_widget_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  varnel_test(${name} LABEL windows
    SOURCES ${arg_SOURCES} ${CMAKE_SOURCE_DIR}/tests/support/widgets_main.cpp
    LINKS ${arg_LINKS} Qt6::Widgets Qt6::Test)
endfunction()

# varnel_window_test(NAME SOURCES ... LINKS ...): a test on a real window, under Xvfb. One ctest entry.
find_program(XVFB_RUN xvfb-run)
function(varnel_window_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES} ${CMAKE_SOURCE_DIR}/tests/support/widgets_main.cpp)
  target_link_libraries(${name} PRIVATE ${arg_LINKS} GTest::gtest Qt6::Widgets Qt6::Test varnel_options)
  if(XVFB_RUN)
    # Folders of its own: among hundreds of others the folder trees of the dialogs take their time.
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/temporary)
    add_test(NAME ${name} COMMAND ${XVFB_RUN} -a -s "-screen 0 3840x2160x24" $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
      "TMPDIR=${CMAKE_CURRENT_BINARY_DIR}/temporary;QT_QPA_PLATFORM=xcb;QT_QPA_PLATFORMTHEME=;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/leaks-of-others.supp")
  endif()
endfunction()

include(GoogleTest)

# varnel_test(NAME SOURCES ... LINKS ...): one test binary for a room, every case a ctest entry.
function(varnel_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} GTest::gtest_main varnel_options)
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120
    PROPERTIES TIMEOUT 300
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()

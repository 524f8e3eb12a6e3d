# velmora_add_test(<name> SOURCES <files...> LIBS <targets...> [LABELS <labels...>])
# One GoogleTest executable, its tests discovered by CTest. The shared main picks the
# offscreen Qt platform when no display is set, so discovery at build time works too.
function(velmora_add_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS;LABELS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE velmora_test_support ${ARG_LIBS})
  gtest_discover_tests(${name}
    DISCOVERY_TIMEOUT 60
    DISCOVERY_MODE PRE_TEST
    PROPERTIES
      LABELS "${ARG_LABELS}"
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${VELMORA_ROOT}/tests/support/lsan.supp;VELMORA_BUILD_DIR=${CMAKE_BINARY_DIR};VELMORA_LOG_LEVEL=warn"
      TIMEOUT 300)
endfunction()

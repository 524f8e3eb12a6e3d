# velmora_add_test(<name> SOURCES <files...> LIBS <targets...> [LABELS <labels...>])
# One GoogleTest executable, its tests discovered by CTest just before they run. The shared
# main picks the offscreen Qt platform when no display is set.
function(velmora_add_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS;LABELS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE velmora_test_support ${ARG_LIBS})
  velmora_sanitizer_defaults(${name})
  set(env
    "QT_QPA_PLATFORM=offscreen"
    "LSAN_OPTIONS=suppressions=${VELMORA_ROOT}/tests/support/lsan.supp"
    "VELMORA_BUILD_DIR=${CMAKE_BINARY_DIR}"
    "VELMORA_LOG_LEVEL=warn")
  string(REPLACE ";" "\\;" env "${env}")
  set(props ENVIRONMENT "${env}" TIMEOUT 300)
  if(ARG_LABELS)
    string(REPLACE ";" "\\;" labels "${ARG_LABELS}")
    list(APPEND props LABELS "${labels}")
  endif()
  gtest_discover_tests(${name}
    DISCOVERY_TIMEOUT 60
    DISCOVERY_MODE PRE_TEST
    PROPERTIES ${props})
endfunction()

# velmora_add_test(<name> SOURCES <files...> LIBS <targets...> [LABELS <labels...>])
# One GoogleTest executable, its tests discovered by CTest just before they run. The shared
# main picks the offscreen Qt platform when no display is set.
function(velmora_add_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS;LABELS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE velmora_test_support ${ARG_LIBS})
  velmora_sanitizer_defaults(${name})
  # gtest_discover_tests hands PROPERTIES on as one flat list, so list-valued properties
  # (ENVIRONMENT, several LABELS) would be cut apart there. The test environment is therefore
  # set by the shared main (tests/support/test_main.cpp), and a test takes one label.
  list(LENGTH ARG_LABELS label_count)
  if(label_count GREATER 1)
    message(FATAL_ERROR "velmora_add_test(${name}): one label per test program")
  endif()
  set(props TIMEOUT 300)
  if(ARG_LABELS)
    list(APPEND props LABELS ${ARG_LABELS})
  endif()
  gtest_discover_tests(${name}
    DISCOVERY_TIMEOUT 60
    DISCOVERY_MODE PRE_TEST
    PROPERTIES ${props})
endfunction()

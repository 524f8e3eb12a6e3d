# Warnings and sanitizers shared by every target of the tree.
add_compile_options(-Wall -Wextra)
if(VELMORA_WERROR)
  add_compile_options(-Werror)
endif()
if(VELMORA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
  # RapidJSON 1.1.0's internal stack does pointer arithmetic on null; silence that header only.
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    add_compile_options(-fsanitize-ignorelist=${CMAKE_CURRENT_LIST_DIR}/ubsan-ignorelist.txt)
  endif()
endif()

# velmora_sanitizer_defaults(<target>): an executable of the sanitizer build gets the leak
# suppressions of the libraries we run on (nothing happens in other builds).
function(velmora_sanitizer_defaults target)
  if(VELMORA_SANITIZE)
    target_sources(${target} PRIVATE ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/LsanSuppressions.cpp)
  endif()
endfunction()

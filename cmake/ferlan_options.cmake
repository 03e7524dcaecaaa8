# One options function for every target of the project.
function(ferlan_set_options target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow
    -Wnon-virtual-dtor -Wold-style-cast -Wcast-align -Wunused -Woverloaded-virtual
    -Wimplicit-fallthrough)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 reports -Wrestrict inside std::basic_string at -O2 where no
    # overlap can happen.
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
  if(FERLAN_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  # Private: each of our targets asks for the sanitizers itself, and an
  # installed library never passes them on to a host.
  if(FERLAN_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-omit-frame-pointer
      -fno-sanitize-recover=all)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
  endif()
endfunction()

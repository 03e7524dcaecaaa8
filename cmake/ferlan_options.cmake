# One options function for every target of the project.
function(ferlan_set_options target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow
    -Wnon-virtual-dtor -Wold-style-cast -Wcast-align -Wunused -Woverloaded-virtual
    -Wnull-dereference -Wimplicit-fallthrough)
  if(FERLAN_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(FERLAN_SANITIZE)
    target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-omit-frame-pointer
      -fno-sanitize-recover=all)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  endif()
endfunction()

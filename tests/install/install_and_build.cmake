# Installs Ferlan into a scratch prefix and builds a host against it with
# find_package(ferlan), as a host application would.
#   BUILD_DIR     an existing build tree to install, or
#   SOURCE_DIR    the sources, configured and built here with STATIC libraries
#   HOST_SOURCE   the host project; HOST_FLAGS its compile and link flags
#   BUILD_ONLY    build the host without running it
#   EXTRA_HOST    a second host project, built too (not run)
file(REMOVE_RECURSE ${WORK})
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGN}\n${out}\n${err}")
  endif()
  set(last_output "${out}" PARENT_SCOPE)
endfunction()

if(SOURCE_DIR)
  set(BUILD_DIR ${WORK}/ferlan-build)
  run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${BUILD_DIR} -G Ninja -DCMAKE_BUILD_TYPE=Release
      -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
      -DBUILD_SHARED_LIBS=OFF -DFERLAN_TESTS=OFF -DFERLAN_BENCH=OFF)
  run(${CMAKE_COMMAND} --build ${BUILD_DIR})
endif()
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK}/prefix)
# A library's private headers stay with its sources.
foreach(private kit/decimal_text.hpp raster/glyph_cache.hpp window/key_map.hpp
    window/x11_selection.hpp)
  if(EXISTS ${WORK}/prefix/include/ferlan-platform/${private})
    message(FATAL_ERROR "a private header is installed: ${private}")
  endif()
endforeach()
function(build_host source dir)
  run(${CMAKE_COMMAND} -S ${source} -B ${dir} -G Ninja
      -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_PREFIX_PATH=${WORK}/prefix
      "-DCMAKE_CXX_FLAGS=${HOST_FLAGS}" "-DCMAKE_EXE_LINKER_FLAGS=${HOST_FLAGS}")
  run(${CMAKE_COMMAND} --build ${dir})
endfunction()
build_host(${HOST_SOURCE} ${WORK}/build)
if(EXTRA_HOST)
  build_host(${EXTRA_HOST} ${WORK}/build-extra)
endif()
if(BUILD_ONLY)
  return()
endif()
run(${WORK}/build/host)
if(NOT last_output STREQUAL "WinLigne(2.5) = 780\n")
  message(FATAL_ERROR "unexpected output from the host: '${last_output}'")
endif()

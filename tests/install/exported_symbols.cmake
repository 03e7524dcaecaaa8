# The shared component exports what its headers declare and nothing of its
# insides: the calls of KySaisie are there, the editor's caret form, the
# module's state and the screens subsystem are not.
execute_process(COMMAND nm -DC --defined-only ${LIBRARY} OUTPUT_VARIABLE symbols
  RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "nm failed on ${LIBRARY}")
endif()
foreach(wanted "ferlan::KySaisie::Modif(" "ferlan::KySaisie::Dorvi(" "typeinfo for ferlan::PlatformError")
  string(FIND "${symbols}" "${wanted}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "${LIBRARY} does not export ${wanted}")
  endif()
endforeach()
foreach(hidden "ferlan::CaretForm" "ferlan::CurrentZone(" "ferlan::screens::" "ferlan::entry::")
  string(FIND "${symbols}" "${hidden}" at)
  if(NOT at EQUAL -1)
    message(FATAL_ERROR "${LIBRARY} exports an internal symbol: ${hidden}")
  endif()
endforeach()

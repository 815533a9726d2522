# The real game, started in an empty directory under a virtual display, stops at the shared
# animation file with status 1.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
# A virtual display that fails to start (another one starting on the same number at the same
# moment) is retried; the game's own result is never retried.
foreach(attempt 1 2 3)
  execute_process(COMMAND ${XVFB_RUN} -a ${GAME}
                  WORKING_DIRECTORY ${WORK}
                  OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status TIMEOUT 60)
  if(out MATCHES "Preload")
    break()
  endif()
endforeach()
if(NOT status STREQUAL "1")
  message(FATAL_ERROR "expected exit status 1, got [${status}]; stderr: ${err}")
endif()
if(NOT out STREQUAL "Preload FX3 Error ")
  message(FATAL_ERROR "expected the preload message, got [${out}]")
endif()

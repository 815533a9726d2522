# The real game, started in an empty directory under a virtual display, stops at the shared
# animation file with status 1.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
execute_process(COMMAND ${XVFB_RUN} -a ${GAME}
                WORKING_DIRECTORY ${WORK}
                OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status TIMEOUT 60)
if(NOT status STREQUAL "1")
  message(FATAL_ERROR "expected exit status 1, got [${status}]; stderr: ${err}")
endif()
if(NOT out STREQUAL "Preload FX3 Error ")
  message(FATAL_ERROR "expected the preload message, got [${out}]")
endif()

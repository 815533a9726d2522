# The real game, given an empty data directory under a virtual display, stops at the shared
# animation file with status 1 and a diagnostic line saying so. --help needs no display.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
# A virtual display that fails to start (another one starting on the same number at the same
# moment) is retried; the game's own result is never retried.
foreach(attempt 1 2 3)
  execute_process(COMMAND ${XVFB_RUN} -a ${GAME} --data ${WORK}
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
if(NOT err MATCHES "valdrune: fatal: PRELOAD.FA: missing; the game stops \\(exit status 1\\)\n")
  message(FATAL_ERROR "expected the fatal line, got [${err}]")
endif()

execute_process(COMMAND ${GAME} --help OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)
if(NOT status STREQUAL "0" OR NOT out MATCHES "^usage: valdrune \\[--data DIR\\]")
  message(FATAL_ERROR "--help: status [${status}], [${out}] [${err}]")
endif()
execute_process(COMMAND ${GAME} --data ${WORK}/none OUTPUT_VARIABLE out ERROR_VARIABLE err
                RESULT_VARIABLE status)
if(NOT status STREQUAL "2" OR NOT err MATCHES "^valdrune: --data: cannot enter ")
  message(FATAL_ERROR "--data to nowhere: status [${status}], [${err}]")
endif()

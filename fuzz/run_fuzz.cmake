# One bounded fuzz run: TARGET over RUNS inputs from the SEEDS corpus, growing a scratch
# corpus in WORK that is removed afterwards; a crashing input is kept under ARTIFACTS.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
execute_process(COMMAND ${CMAKE_COMMAND} -E env LSAN_OPTIONS=suppressions=${SUPPRESSIONS}
                        ${TARGET} -runs=${RUNS} -max_len=65536 -rss_limit_mb=2048
                        -artifact_prefix=${ARTIFACTS} ${WORK} ${SEEDS}
                RESULT_VARIABLE status ERROR_VARIABLE err)
file(REMOVE_RECURSE ${WORK})
string(REGEX MATCH "Done [0-9]+ runs in [0-9]+ second\\(s\\)" done "${err}")
message(STATUS "${done}")
if(NOT status STREQUAL "0")
  message(FATAL_ERROR "the fuzz target failed (${status}):\n${err}")
endif()

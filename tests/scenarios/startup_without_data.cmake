# Started in a directory without the data set, the game stops at the shared animation file:
# the game's own message, and one diagnostic line that names the file and says it stops.
include(${SRC}/support/scenario.cmake)
file(MAKE_DIRECTORY ${WORK}/empty)
run_headless(r ${WORK}/empty --frames 50)
expect_equal("exit status" "${r_STATUS}" "1")
expect_match("message" "${r_OUT}" "^Preload FX3 Error \n")
expect_equal("summary" "${r_SUMMARY}" "frames=0 presented=2 mode=5 exit=1")
expect_equal("diagnostic" "${r_ERR}"
             "valdrune: fatal: PRELOAD.FA: missing; the game stops (exit status 1)\n")

# A damaged one says why.
file(MAKE_DIRECTORY ${WORK}/damaged)
file(WRITE ${WORK}/damaged/PRELOAD.FA "abc")
run_headless(r ${WORK}/damaged --frames 50)
expect_equal("exit status (damaged)" "${r_STATUS}" "1")
expect_equal("diagnostic (damaged)" "${r_ERR}"
             "valdrune: fatal: PRELOAD.FA: too short: 3 bytes, less than the 4-byte head; the game stops (exit status 1)\n")

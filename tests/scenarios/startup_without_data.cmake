# Started in a directory without the data set, the game stops at the shared animation file.
include(${SRC}/support/scenario.cmake)
file(MAKE_DIRECTORY ${WORK}/empty)
run_headless(r ${WORK}/empty --frames 50)
expect_equal("exit status" "${r_STATUS}" "1")
expect_match("message" "${r_OUT}" "^Preload FX3 Error \n")
expect_equal("summary" "${r_SUMMARY}" "frames=0 presented=2 mode=5 exit=1")

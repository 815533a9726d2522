# The headless program's command line: numbers parse whole and in range or are refused with
# a line naming the option; --help prints the usage and ends with status 0.
include(${SRC}/support/scenario.cmake)
foreach(bad 0 abc 10x -5 99999999999)
  run_headless(r ${WORK} --frames ${bad})
  expect_equal("exit status (--frames ${bad})" "${r_STATUS}" "2")
  expect_match("message (--frames ${bad})" "${r_ERR}"
               "^valdrune-headless: --frames: \"${bad}\" is not a whole number from 1 to 2147483647\n")
endforeach()
run_headless(r ${WORK} --shots ${WORK}/shots --shot-every 0)
expect_match("message (--shot-every 0)" "${r_ERR}" "--shot-every: \"0\" is not a whole number")
run_headless(r ${WORK} --frames)
expect_match("message (no value)" "${r_ERR}" "^valdrune-headless: --frames needs a value \\(N\\)\n")
run_headless(r ${WORK} --frames 5 --shots ${WORK}/shots)
expect_match("message (half a pair)" "${r_ERR}" "^valdrune-headless: --shots and --shot-every go together\n")
run_headless(r ${WORK} --start fight:0:30)
expect_match("message (slot)" "${r_ERR}" "--start: \"fight:0:30\" is not of the form fight:S0:S1\\|demo")

run_headless(r ${WORK} --frames 10x --help)
expect_equal("exit status (--help)" "${r_STATUS}" "0")
expect_match("usage" "${r_OUT}" "^usage: valdrune-headless --data DIR")
expect_match("usage lists --frames" "${r_OUT}" "\n  --frames N +stop after N frames")
expect_equal("nothing on standard error (--help)" "${r_ERR}" "")

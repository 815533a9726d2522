# A script line the headless program cannot read stops it with a message naming the line.
include(${SRC}/support/scenario.cmake)
file(WRITE ${WORK}/bad.txt "# comment\n3 tap F2\n7 press F1\n")
run_headless(r ${WORK} --script ${WORK}/bad.txt)
expect_equal("exit status" "${r_STATUS}" "2")
expect_match("message" "${r_ERR}" "bad.txt:3: unknown event: \"7 press F1\"")
file(WRITE ${WORK}/bad2.txt "2 joy 1 axis x 70000\n")
run_headless(r ${WORK} --script ${WORK}/bad2.txt)
expect_match("message" "${r_ERR}" "bad2.txt:1: axis value must be 0..65535")

# A data set with only the shared animation file: the opening starts and names each file it
# goes on without; a prepared match stops at its pictures with the failure code and a line
# that begins "valdrune: fatal:", although the exit status is 0.
include(${SRC}/support/scenario.cmake)
file(MAKE_DIRECTORY ${WORK}/data)
execute_process(COMMAND ${MINIMAL_DATA} ${WORK}/data RESULT_VARIABLE made)
expect_equal("minimal data set" "${made}" "0")

run_headless(r ${WORK}/data --frames 3)
expect_equal("exit status (opening)" "${r_STATUS}" "0")
expect_match("camera path" "${r_ERR}" "valdrune: OPEN_POS.CAM: missing; camera path 1 keeps what it held\n")
expect_match("sounds" "${r_ERR}" "valdrune: 00.wav to 177.wav: missing; sounds 0 to 177 stay silent\n")
expect_match("music" "${r_ERR}" "valdrune: music/track02.ogg to music/track17.ogg: missing; tracks 2 to 17 stay silent\n")
if(r_ERR MATCHES "fatal")
  message(FATAL_ERROR "nothing in the opening's start is fatal: ${r_ERR}")
endif()

run_headless(r ${WORK}/data --start fight:0:9 --frames 10)
expect_equal("exit status (match)" "${r_STATUS}" "0")
expect_match("code and fatal line" "${r_ERR}"
             "\n002\nvaldrune: fatal: [^:\n]+\\.bmp: missing; the game stops \\(exit status 0\\)\n$")

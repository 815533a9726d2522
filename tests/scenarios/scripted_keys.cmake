# A scripted run: F2 opens the options from the opening; Escape quits.
include(${SRC}/support/scenario.cmake)
file(MAKE_DIRECTORY ${WORK}/shots)
game_data(data)
file(WRITE ${WORK}/options.txt "3 tap F2\n")
run_headless(r ${data} --frames 20 --script ${WORK}/options.txt --shots ${WORK}/shots --shot-every 1)
expect_equal("exit status" "${r_STATUS}" "0")
expect_match("summary" "${r_SUMMARY}" "^frames=20 presented=[0-9]+ mode=10 exit=0$")
string(REGEX MATCH "presented=([0-9]+)" unused "${r_SUMMARY}")
# Every presented picture was captured, numbered from 1.
file(GLOB shots ${WORK}/shots/frame-*.png)
list(LENGTH shots count)
expect_equal("captured pictures" "${count}" "${CMAKE_MATCH_1}")
if(NOT EXISTS ${WORK}/shots/frame-000001.png)
  message(FATAL_ERROR "the first picture was not captured")
endif()

file(WRITE ${WORK}/quit.txt "# hold the coin key, then escape\n2 down F1\n4 down ESC\n8 up F1\n")
run_headless(r ${data} --frames 100 --script ${WORK}/quit.txt)
expect_equal("exit status" "${r_STATUS}" "0")
# Escape is ignored while F1 is held (frames 4-7); the frame after the release quits.
expect_match("summary" "${r_SUMMARY}" "^frames=8 presented=[0-9]+ mode=-?[0-9]+ exit=0$")

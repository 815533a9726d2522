# A scripted run: F2 opens the options from the opening; Escape quits.
include(${SRC}/support/scenario.cmake)
set(data ${DATA})
if(NOT EXISTS ${DATA}/PRELOAD.FA)
  # No generated data set in this build yet: a shared animation file with no key frames.
  set(data ${WORK}/data)
  file(MAKE_DIRECTORY ${data})
  file(WRITE ${data}/PRELOAD.FA "")
endif()
file(WRITE ${WORK}/options.txt "3 tap F2\n")
run_headless(r ${data} --frames 20 --script ${WORK}/options.txt)
expect_equal("exit status" "${r_STATUS}" "0")
expect_match("summary" "${r_SUMMARY}" "^frames=20 presented=[0-9]+ mode=10 exit=0$")

file(WRITE ${WORK}/quit.txt "# hold the coin key, then escape\n2 down F1\n4 down ESC\n8 up F1\n")
run_headless(r ${data} --frames 100 --script ${WORK}/quit.txt)
expect_equal("exit status" "${r_STATUS}" "0")
# Escape is ignored while F1 is held (frames 4-7); the frame after the release quits.
expect_match("summary" "${r_SUMMARY}" "^frames=8 presented=[0-9]+ mode=-?[0-9]+ exit=0$")

# The front end in the real window, as a player drives it. With the keyboard (keys sent to the
# X server): F1 sends the opening to the title, A starts, Tab confirms a character, the match
# begins; F2 opens the options from the fight, right raises the difficulty, up wraps to the
# exit row and Tab saves OPTION.CFG and returns to the title; Escape quits. With a game pad
# (an SDL virtual joystick): start, the d-pad and a face button take a player to a match.
# Pictures of each step are kept in WORK/shots.
include(${SRC}/support/scenario.cmake)
include(${SRC}/support/mode_runs.cmake)
generated_data(data "the front end's walk")

# The game writes OPTION.CFG where it runs: a directory of links to the data set (WORK/run).
linked_data(run)
file(MAKE_DIRECTORY ${WORK}/shots)

file(WRITE ${WORK}/drive.sh "
cd '${WORK}/run'
shot() { python3 '${SRC}/real/x_shot.py' '${WORK}/shots/'$1.png; }
'${GAME}' & pid=$!
sleep 4
shot opening
xdotool key F1; sleep 1; shot title
xdotool key a; sleep 1; shot select
xdotool key Tab; sleep 6; shot fight
kill -0 $pid || { echo 'the game ended during the walk'; exit 3; }
xdotool key F2; sleep 1; shot options
xdotool key g; sleep 0.3; xdotool key r; sleep 0.3; shot exit_row
xdotool key Tab; sleep 1; shot title_again
test -f OPTION.CFG || { echo 'the options were not saved'; kill $pid; exit 4; }
xdotool key Escape
for i in 1 2 3 4 5 6 7 8 9 10; do kill -0 $pid 2>/dev/null || break; sleep 0.5; done
if kill -0 $pid 2>/dev/null; then kill $pid; echo 'Escape did not quit'; exit 5; fi
wait $pid
")
execute_process(COMMAND ${XVFB_RUN} -a -s "-screen 0 640x480x24" bash ${WORK}/drive.sh
                OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status TIMEOUT 120)
if(NOT status STREQUAL "0")
  message(FATAL_ERROR "keyboard walk: status [${status}]: ${out} ${err}")
endif()
# The difficulty (the file's second byte) went from 2 to 3.
file(READ ${WORK}/run/OPTION.CFG cfg HEX)
string(SUBSTRING "${cfg}" 2 2 difficulty)
expect_equal("saved difficulty" "${difficulty}" "03")

if(REAL_TESTS)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env VALDRUNE_TEST_DATA=${data}
                          ${XVFB_RUN} -a -s "-screen 0 640x480x24"
                          ${REAL_TESTS} --gtest_filter=RealPadWalk.*
                  OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status TIMEOUT 120)
  if(NOT status STREQUAL "0" OR NOT out MATCHES "\\[  PASSED  \\] 1 test")
    message(FATAL_ERROR "pad walk: status [${status}]: ${out} ${err}")
  endif()
endif()

# The real game opens its window, runs frames, and quits with status 0 when Escape is pressed
# (keys read from the X server, as a player's keyboard).
include(${SRC}/support/scenario.cmake)
game_data(data)
file(WRITE ${WORK}/drive.sh "
cd '${data}'
'${GAME}' & pid=$!
sleep 3
kill -0 $pid || { echo 'the game ended before Escape'; exit 3; }
xdotool key Escape
for i in 1 2 3 4 5 6 7 8 9 10; do kill -0 $pid 2>/dev/null || break; sleep 0.5; done
if kill -0 $pid 2>/dev/null; then kill $pid; echo 'Escape did not quit'; exit 4; fi
wait $pid
")
execute_process(COMMAND ${XVFB_RUN} -a -s "-screen 0 640x480x24" bash ${WORK}/drive.sh
                OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status TIMEOUT 90)
if(NOT status STREQUAL "0")
  message(FATAL_ERROR "status [${status}]: ${out} ${err}")
endif()

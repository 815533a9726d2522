# Started outside any data directory and without --data, the real game plays from the data set
# its build generated, says so, and Escape quits it with status 0.
if(NOT EXISTS ${DATA}/PRELOAD.FA)
  return()  # a build without a generated data set has none to fall back on
endif()
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/elsewhere)
file(WRITE ${WORK}/drive.sh "
cd '${WORK}/elsewhere'
'${GAME}' 2>'${WORK}/err.txt' & pid=$!
sleep 3
kill -0 $pid || { echo 'the game ended before Escape'; cat '${WORK}/err.txt'; exit 3; }
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
file(READ ${WORK}/err.txt said)
if(NOT said MATCHES "^valdrune: no data set here; playing from ")
  message(FATAL_ERROR "expected the game to say where it plays from, got [${said}]")
endif()

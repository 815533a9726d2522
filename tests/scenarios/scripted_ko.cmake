# A scripted match: player 1 keeps kicking a player 2 who does nothing. The damage rises, the
# first round ends in a knock-out for player 1 (after the ending wait, the closing replay and
# the victory pose the next round starts), and the same script run twice traces byte for byte
# the same fight.
include(${SRC}/support/scenario.cmake)
generated_data(data "the scripted match")
set(script ${SRC}/scenarios/scripts/forward_kicks.txt)
foreach(run 1 2)
  run_headless(r ${data} --start fight:0:9 --script ${script} --frames 1800 --draw-shots-only
               --trace ${WORK}/trace${run}.txt)
  expect_equal("exit status (run ${run})" "${r_STATUS}" "0")
endforeach()
file(READ ${WORK}/trace1.txt first)
file(READ ${WORK}/trace2.txt second)
if(NOT first STREQUAL second)
  message(FATAL_ERROR "the same script gave two different traces")
endif()
string(REGEX MATCH "frame=600 [^\n]*" at600 "${first}")
expect_match("player 2 has taken blows by frame 600" "${at600}" " p1=[0-9]+,[0-9]+,[-0-9.]+,[-0-9.]+,[0-9]+,([0-7][0-9]|[0-9]),")
expect_match("player 1 wins the first round by knock-out" "${first}" "ko=1 wins=1,0")
expect_match("the beaten player lies down after the closing replay" "${first}" "p0=1[23],[^\n]* p1=50,[^\n]*ko=2 wins=1,0")
expect_match("the next round starts" "${first}" "p0=0,[0-9]+,-5.000,[^\n]*clock=0 ko=0 wins=1,0")

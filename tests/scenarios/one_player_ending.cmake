# A one-player game from power-on to the ending: the same player as in the game-over run, but
# each time the continue offer shows he presses start at once. He beats ten opponents and the
# boss, the ending's panels play, the title and the attract show follow.
include(${SRC}/support/scenario.cmake)
include(${SRC}/support/mode_runs.cmake)
if(SANITIZE)
  # Some 200,000 frames: minutes under the sanitizers. The game-over run covers the same scenes
  # but the ending there.
  message(STATUS "a sanitizer build: the run to the ending is skipped")
  return()
endif()
generated_data(data "the one-player game")
linked_data(data)

file(READ ${SRC}/scenarios/scripts/one_player_run.txt script)
file(WRITE ${WORK}/ending.txt "${script}"
     "# He presses start one second into every continue offer.\n"
     "in 3 every 100000 +65 tap A\n")
run_modes(run ${data} 260000 --script ${WORK}/ending.txt --shots ${WORK}/shots --shot-every 500)
message(STATUS "modes: ${run_MODES}")
message(STATUS "frames in each: ${run_LENGTHS}")

expect_modes_begin("the start" "${run_MODES}" "5;-1;10;-1;0;1;2")
list(FIND run_MODES 7 at)
if(at LESS 0)
  message(FATAL_ERROR "the ending never came: [${run_MODES}]")
endif()
# Up to the ending every fight leads to the next match or, through a continue, to the same
# opponent again: never back to the title.
math(EXPR fights_end "${at} - 1")
math(EXPR fights_length "${fights_end} - 5")
list(SUBLIST run_MODES 5 ${fights_length} run_of_fights)
list(FILTER run_of_fights EXCLUDE REGEX "^(1|2|3)$")
expect_equal("modes between the fights" "${run_of_fights}" "")
set(won ${run_MODES})
list(SUBLIST won 0 ${at} won)
list(FILTER won INCLUDE REGEX "^1$")
list(LENGTH won matches)  # the first set-up, then one per opponent beaten
expect_equal("opponents beaten before the boss" "${matches}" "11")
list(GET run_MODES ${fights_end} last_fight)
expect_equal("the ending follows a fight" "${last_fight}" "2")
# 24 panels of 150 steps, a step every second frame.
list(GET run_LENGTHS ${at} ending_frames)
if(ending_frames LESS 7190 OR ending_frames GREATER 7210)
  message(FATAL_ERROR "the ending ran ${ending_frames} frames, not its 3600 steps")
endif()
list(SUBLIST run_MODES ${at} -1 after)
expect_equal("after the ending" "${after}" "7;-1;9;2;-1;8")
expect_match("the run ends at the rankings" "${run_SUMMARY}" "mode=8 exit=0")

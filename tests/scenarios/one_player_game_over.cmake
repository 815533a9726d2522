# A one-player game from power-on that ends in game over: the player starts, sets one round to
# win, chooses a fighter and throws his way through the first opponents until one beats him.
# The continue offer shows; he lets its count run out, GAME OVER follows, then the title and
# the attract show (a demonstration, the title, the rankings).
include(${SRC}/support/scenario.cmake)
include(${SRC}/support/mode_runs.cmake)
generated_data(data "the one-player game")
linked_data(data)

run_modes(run ${data} 60000 --script ${SRC}/scenarios/scripts/one_player_run.txt
          --shots ${WORK}/shots --shot-every 500)
message(STATUS "modes: ${run_MODES}")
message(STATUS "frames in each: ${run_LENGTHS}")

# Modes: -1 title, 0 select, 1 match set-up, 2 fight, 3 continue, 5 opening, 8 ranking,
# 9 demonstration set-up, 10 options.
expect_modes_begin("the start" "${run_MODES}" "5;-1;10;-1;0;1;2")
list(FIND run_MODES 3 at)
if(at LESS 0)
  message(FATAL_ERROR "the continue offer never showed: [${run_MODES}]")
endif()
list(SUBLIST run_MODES ${at} -1 after_loss)
expect_equal("after the lost fight" "${after_loss}" "3;-1;9;2;-1;8")
# Left alone the offer counts 9 to 0 and shows GAME OVER to the thirteenth second of 65 frames.
list(GET run_LENGTHS ${at} continue_frames)
if(continue_frames LESS 840 OR continue_frames GREATER 850)
  message(FATAL_ERROR "the continue screen ran ${continue_frames} frames, not about 13 seconds")
endif()
list(SUBLIST run_MODES 0 ${at} before_loss)
list(FILTER before_loss INCLUDE REGEX "^1$")
list(LENGTH before_loss matches)
if(matches LESS 2)
  message(FATAL_ERROR "the player met only ${matches} opponents before losing: [${run_MODES}]")
endif()
expect_match("the run ends at the rankings" "${run_SUMMARY}" "mode=8 exit=0")

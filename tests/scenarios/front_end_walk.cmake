# The arcade from power-on, read through the per-frame trace: left alone, the attract show runs
# opening, title, demonstration, title, ranking, title; then a player walks through a game: F1
# during the opening, start at the title, a character chosen, the versus picture and a fight
# against the computer lost on purpose, the continue offer left to run out, game over, title.
include(${SRC}/support/scenario.cmake)
game_data(data)
if(NOT EXISTS ${data}/OPEN_POS.CAM)
  message(STATUS "no generated data set: the front end's walk is skipped")
  return()
endif()

# run_traced(<modes-var> <frames> [args...]): runs the game with a trace and gives the modes
# it went through, each run of equal modes once, in order.
function(run_traced var frames)
  execute_process(COMMAND ${HEADLESS} --data ${data} --frames ${frames} --draw-shots-only
                          --trace ${WORK}/trace.txt ${ARGN}
                  WORKING_DIRECTORY ${WORK} OUTPUT_VARIABLE out ERROR_VARIABLE err
                  RESULT_VARIABLE status TIMEOUT 1200)
  if(NOT status STREQUAL "0")
    message(FATAL_ERROR "the game ended with [${status}]: ${out} ${err}")
  endif()
  file(STRINGS ${WORK}/trace.txt lines REGEX "^frame=")
  set(modes "")
  set(last "none")
  foreach(line IN LISTS lines)
    string(REGEX MATCH "mode=(-?[0-9]+)" unused "${line}")
    if(NOT CMAKE_MATCH_1 STREQUAL last)
      list(APPEND modes ${CMAKE_MATCH_1})
      set(last ${CMAKE_MATCH_1})
    endif()
  endforeach()
  set(${var} "${modes}" PARENT_SCOPE)
endfunction()

function(expect_modes what modes expected)
  list(LENGTH expected n)
  list(SUBLIST modes 0 ${n} head)
  if(NOT "${head}" STREQUAL "${expected}")
    message(FATAL_ERROR "${what}: the modes ran [${modes}], expected to begin [${expected}]")
  endif()
endfunction()

# Modes: -1 title, 0 select, 1 match set-up, 2 fight, 3 continue, 5 opening, 8 ranking,
# 9 demonstration set-up.
run_traced(attract 9000)
expect_modes("the attract show" "${attract}" "5;-1;9;2;-1;8;-1")

# The game writes OPTION.CFG where it runs: a directory of links to the data set.
file(MAKE_DIRECTORY ${WORK}/run)
file(GLOB files ${data}/*)
foreach(f IN LISTS files)
  get_filename_component(name ${f} NAME)
  if(NOT name STREQUAL "OPTION.CFG")
    file(CREATE_LINK ${f} ${WORK}/run/${name} SYMBOLIC)
  endif()
endforeach()
set(data ${WORK}/run)

# F1 during the opening; F2 at the title, one round to win (down three rows, left), up round
# to the exit row and attack 1 saves; start, attack 1 confirms the first character; then no
# input at all: the computer wins, the continue count runs out, game over.
file(WRITE ${WORK}/walk.txt "100 tap F1\n150 tap F2\n"
                            "160 tap F\n170 tap F\n180 tap F\n190 tap D\n"
                            "200 tap R\n210 tap R\n220 tap R\n230 tap R\n240 tap TAB\n"
                            "300 tap A\n400 tap TAB\n")
run_traced(walk 7000 --script ${WORK}/walk.txt)
expect_modes("a lost game" "${walk}" "5;-1;10;-1;0;1;2;3;-1")
file(READ ${data}/OPTION.CFG cfg HEX)
string(SUBSTRING "${cfg}" 10 2 rounds)  # byte 5: rounds to win
expect_equal("saved rounds to win" "${rounds}" "01")

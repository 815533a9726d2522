# The arcade from power-on, read through the per-frame trace: left alone, the attract show runs
# opening, title, demonstration, title, ranking, title; then a player walks through a game: F1
# during the opening, start at the title, a character chosen, the versus picture and a fight
# against the computer lost on purpose, the continue offer left to run out, game over, title.
include(${SRC}/support/scenario.cmake)
include(${SRC}/support/mode_runs.cmake)
generated_data(data "the front end's walk")

# Modes: -1 title, 0 select, 1 match set-up, 2 fight, 3 continue, 5 opening, 8 ranking,
# 9 demonstration set-up.
run_modes(attract ${data} 9000)
expect_modes_begin("the attract show" "${attract_MODES}" "5;-1;9;2;-1;8;-1")

linked_data(data)  # the options save OPTION.CFG where the game runs

# F1 during the opening; F2 at the title, one round to win (down three rows, left), up round
# to the exit row and attack 1 saves; start, attack 1 confirms the first character; then no
# input at all: the computer wins, the continue count runs out, game over.
file(WRITE ${WORK}/walk.txt "100 tap F1\n150 tap F2\n"
                            "160 tap F\n170 tap F\n180 tap F\n190 tap D\n"
                            "200 tap R\n210 tap R\n220 tap R\n230 tap R\n240 tap TAB\n"
                            "300 tap A\n400 tap TAB\n")
run_modes(walk ${data} 7000 --script ${WORK}/walk.txt)
expect_modes_begin("a lost game" "${walk_MODES}" "5;-1;10;-1;0;1;2;3;-1")
file(READ ${data}/OPTION.CFG cfg HEX)
string(SUBSTRING "${cfg}" 10 2 rounds)  # byte 5: rounds to win
expect_equal("saved rounds to win" "${rounds}" "01")

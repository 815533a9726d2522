# A two-player fight on the generated data set, read through --trace: player 1 walks in at
# 0.24 a frame and stops 4.0 from the opponent, steps back, then each attack button starts its
# attack, which ends back in the idle; a quarter circle forward with button 1 starts the
# character's special move of that command.
include(${SRC}/support/scenario.cmake)
generated_data(data "the moving fighters")
file(WRITE ${WORK}/moves.txt
  "150 down G\n200 up G\n205 down D\n215 up D\n"
  "240 tap TAB\n330 tap Q\n420 tap CAPSLOCK\n510 tap A\n"
  "600 down F\n603 down G\n605 up F\n606 tap TAB\n608 up G\n")
run_headless(r ${data} --start fight:0:9 --frames 640 --script ${WORK}/moves.txt
             --trace ${WORK}/trace.txt)
expect_equal("exit status" "${r_STATUS}" "0")
file(STRINGS ${WORK}/trace.txt lines)
list(LENGTH lines count)
expect_equal("trace lines" "${count}" "640")

# thousandths(<var> <text>): a number with three decimals as whole thousandths.
function(thousandths var text)
  string(REGEX MATCH "^(-?)([0-9]+)\\.([0-9][0-9][0-9])$" ok "${text}")
  if(NOT ok)
    message(FATAL_ERROR "not a position: [${text}]")
  endif()
  math(EXPR value "${CMAKE_MATCH_1}(${CMAKE_MATCH_2} * 1000 + 1${CMAKE_MATCH_3} - 1000)")
  set(${var} ${value} PARENT_SCOPE)
endfunction()

# trace_at(<frame> <prefix>): each fighter's action and X (in thousandths) on that frame.
function(trace_at frame prefix)
  list(GET lines ${frame} line)
  if(NOT line MATCHES "^frame=${frame} mode=2 p0=([-0-9.,]+) p1=([-0-9.,]+)( .*)?$")
    message(FATAL_ERROR "trace line ${frame} does not read: [${line}]")
  endif()
  set(fighter0 ${CMAKE_MATCH_1})
  set(fighter1 ${CMAKE_MATCH_2})
  foreach(i 0 1)
    string(REPLACE "," ";" fields "${fighter${i}}")
    list(LENGTH fields n)
    expect_equal("fields of fighter ${i} on frame ${frame}" "${n}" "7")
    list(GET fields 0 action)
    list(GET fields 2 x)
    thousandths(x "${x}")
    set(${prefix}_action${i} ${action} PARENT_SCOPE)
    set(${prefix}_x${i} ${x} PARENT_SCOPE)
  endforeach()
endfunction()

# Walking in: 0.24 a frame.
trace_at(160 a)
trace_at(161 b)
expect_equal("player 1 walks in" "${b_action0}" "1")
math(EXPR step "${b_x0} - ${a_x0}")
expect_equal("walking step (thousandths)" "${step}" "240")
# Stopped against the opponent, pushing it back: 4.0 apart.
trace_at(198 c)
math(EXPR gap "${c_x1} - ${c_x0}")
expect_equal("separation while pushing (thousandths)" "${gap}" "4000")

# Each button: its attack starts on the press and is back in the idle before the next.
set(taps 240 330 420 510)
set(attacks 180 240 210 290)
foreach(i RANGE 3)
  list(GET taps ${i} tap)
  list(GET attacks ${i} attack)
  trace_at(${tap} t)
  expect_equal("attack of the press at ${tap}" "${t_action0}" "${attack}")
  math(EXPR last "${tap} + 89")
  set(back 0)
  foreach(f RANGE ${tap} ${last})
    trace_at(${f} t)
    if(t_action0 STREQUAL "0")
      set(back 1)
      break()
    endif()
  endforeach()
  expect_equal("attack ${attack} ends back in action 0" "${back}" "1")
endforeach()

# Down, down-forward, forward and button 1: character 0's special move of that command.
trace_at(606 s)
expect_equal("special move of the quarter circle" "${s_action0}" "220")

# Helpers for the headless scenario tests. Each scenario runs valdrune-headless as a player
# would and checks what it prints.
#   HEADLESS  the headless program     DATA  the generated data set
#   SRC       tests/ in the source     WORK  a scratch directory for this scenario

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

# run_headless(<result-prefix> <data-dir> [args...]): runs the game; sets
# <prefix>_OUT (standard output), <prefix>_ERR, <prefix>_STATUS and <prefix>_SUMMARY (the last line).
function(run_headless prefix data)
  execute_process(COMMAND ${HEADLESS} --data ${data} ${ARGN}
                  WORKING_DIRECTORY ${WORK}
                  OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status
                  TIMEOUT 120)
  string(STRIP "${out}" stripped)
  string(FIND "${stripped}" "\n" last_break REVERSE)
  math(EXPR from "${last_break} + 1")
  string(SUBSTRING "${stripped}" ${from} -1 summary)
  set(${prefix}_OUT "${out}" PARENT_SCOPE)
  set(${prefix}_ERR "${err}" PARENT_SCOPE)
  set(${prefix}_STATUS "${status}" PARENT_SCOPE)
  set(${prefix}_SUMMARY "${summary}" PARENT_SCOPE)
endfunction()

function(expect_equal what actual expected)
  if(NOT "${actual}" STREQUAL "${expected}")
    message(FATAL_ERROR "${what}: expected [${expected}], got [${actual}]")
  endif()
endfunction()

function(expect_match what actual regex)
  if(NOT "${actual}" MATCHES "${regex}")
    message(FATAL_ERROR "${what}: [${actual}] does not match [${regex}]")
  endif()
endfunction()

# game_data(<var>): the generated data set, or, in a build without one, the smallest set the
# game starts with (written into WORK/data).
function(game_data var)
  set(data ${DATA})
  if(NOT EXISTS ${DATA}/PRELOAD.FA)
    set(data ${WORK}/data)
    file(MAKE_DIRECTORY ${data})
    execute_process(COMMAND ${MINIMAL_DATA} ${data} RESULT_VARIABLE made)
    if(NOT made STREQUAL "0")
      message(FATAL_ERROR "cannot write the minimal data set")
    endif()
  endif()
  set(${var} ${data} PARENT_SCOPE)
endfunction()

# generated_data(<var> <what>): the generated data set in <var>; in a build without one (the
# minimal set has no fighters, no fight pictures and no opening), says that <what> is skipped
# and ends the calling scenario (a macro, so its return() leaves the caller).
macro(generated_data var what)
  game_data(${var})
  if(NOT EXISTS ${${var}}/OPEN_POS.CAM OR NOT EXISTS ${${var}}/life.bmp)
    message(STATUS "no generated data set: ${what} is skipped")
    return()
  endif()
endmacro()

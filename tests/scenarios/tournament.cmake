# --tournament on the generated data set: every character meets every other once on each
# side, the computer playing both, and the table adds up.
include(${SRC}/support/scenario.cmake)

run_headless(bad ${DATA} --level 50)
expect_equal("--level without --tournament" "${bad_STATUS}" "2")
run_headless(bad ${DATA} --tournament 0)
expect_equal("--tournament 0" "${bad_STATUS}" "2")

if(NOT EXISTS ${DATA}/ban.3dm)
  return()  # no fighters without the generated data set
endif()
run_headless(r ${DATA} --tournament 1 --level 50 --usage)
expect_equal("exit status" "${r_STATUS}" "0")
expect_match("summary" "${r_SUMMARY}"
             "^tournament rounds=210 ko_share=[01]\\.[0-9][0-9][0-9] frames_per_second=[0-9]+$")

set(wins 0)
foreach(c RANGE 0 14)
  expect_match("character ${c}" "${r_OUT}"
               "(^|\n)char=${c} wins=[0-9]+ rounds=28 ko=[0-9]+ timeouts=[0-9]+ mean_frames=[0-9]+\n")
  string(REGEX MATCH "(^|\n)char=${c} wins=([0-9]+) " line "${r_OUT}")
  math(EXPR wins "${wins} + ${CMAKE_MATCH_2}")
  expect_match("usage of ${c}" "${r_OUT}" "\nusage char=${c}( [0-9]+:[0-9]+)+\n")
endforeach()
# Every round is won or drawn; a tournament in which nobody lands a blow wins nothing.
if(wins LESS 100 OR wins GREATER 210)
  message(FATAL_ERROR "the characters won ${wins} of 210 rounds")
endif()

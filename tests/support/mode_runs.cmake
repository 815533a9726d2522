# Helpers for the scenarios that follow the game's modes: a run from power-on, read back through
# the per-frame trace.

# linked_data(<var>): a directory of links to the data set (the options screen saves OPTION.CFG
# where the game runs).
function(linked_data var)
  game_data(data)
  file(MAKE_DIRECTORY ${WORK}/run)
  file(GLOB files ${data}/*)
  foreach(f IN LISTS files)
    get_filename_component(name ${f} NAME)
    if(NOT name STREQUAL "OPTION.CFG")
      file(CREATE_LINK ${f} ${WORK}/run/${name} SYMBOLIC)
    endif()
  endforeach()
  set(${var} ${WORK}/run PARENT_SCOPE)
endfunction()

# run_modes(<prefix> <data> <frames> [args...]): runs the game for at most <frames> frames with
# a trace, drawing in full only the screenshots the arguments ask for. Sets <prefix>_MODES (the
# modes it went through, each run of equal modes once, in order), <prefix>_LENGTHS (the frames
# of each of those runs) and <prefix>_SUMMARY (the last line).
function(run_modes prefix data frames)
  # One rasteriser thread: the pictures nobody keeps are a single pixel.
  execute_process(COMMAND ${CMAKE_COMMAND} -E env LP_NUM_THREADS=0 ${HEADLESS} --data ${data}
                          --frames ${frames} --trace ${WORK}/trace.txt --draw-shots-only ${ARGN}
                  WORKING_DIRECTORY ${WORK} OUTPUT_VARIABLE out ERROR_VARIABLE err
                  RESULT_VARIABLE status TIMEOUT 600)
  if(NOT status STREQUAL "0")
    message(FATAL_ERROR "the game ended with [${status}]: ${out} ${err}")
  endif()
  string(STRIP "${out}" out)
  string(REGEX MATCH "[^\n]*$" summary "${out}")
  file(READ ${WORK}/trace.txt trace)
  string(REGEX REPLACE "frame=[0-9]+ mode=(-?[0-9]+)[^\n]*\n" "\\1;" all "${trace}")
  set(modes "")
  set(lengths "")
  set(last "none")
  set(length 0)
  foreach(mode IN LISTS all)
    if(NOT mode STREQUAL last)
      if(NOT last STREQUAL "none")
        list(APPEND lengths ${length})
      endif()
      list(APPEND modes ${mode})
      set(last ${mode})
      set(length 0)
    endif()
    math(EXPR length "${length} + 1")
  endforeach()
  list(APPEND lengths ${length})
  set(${prefix}_MODES "${modes}" PARENT_SCOPE)
  set(${prefix}_LENGTHS "${lengths}" PARENT_SCOPE)
  set(${prefix}_SUMMARY "${summary}" PARENT_SCOPE)
endfunction()

# expect_modes_begin(<what> <modes> <expected>): the modes ran begin with the expected ones.
function(expect_modes_begin what modes expected)
  list(LENGTH expected n)
  list(SUBLIST modes 0 ${n} head)
  if(NOT "${head}" STREQUAL "${expected}")
    message(FATAL_ERROR "${what}: the modes ran [${modes}], expected to begin [${expected}]")
  endif()
endfunction()

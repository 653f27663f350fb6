# The sounds of the game: csound renders each source in assets/sounds into BROLGAN_RUN_DIR, the
# folder in which the game runs. Sets the target brolgan_sounds. Without csound the target is
# empty and the game is silent.
#
# Run as a script (cmake -D CSOUND= -D SOURCE= -D WAV= -P sounds.cmake) this file renders one sound.
# csound leaves a WAV behind when it fails, and calls a score with broken notes a success: the
# sound gets its name only when all of its notes were played.
if(CMAKE_SCRIPT_MODE_FILE)
  set(unfinished ${WAV}.unfinished)
  file(REMOVE ${WAV} ${unfinished})
  execute_process(COMMAND ${CSOUND} -o ${unfinished} ${SOURCE}
    INPUT_FILE /dev/null OUTPUT_VARIABLE log ERROR_VARIABLE log RESULT_VARIABLE result)
  string(ASCII 27 escape)
  string(REGEX REPLACE "${escape}\\[[0-9;]*m" "" log "${log}")
  if(NOT result EQUAL 0
      OR NOT log MATCHES "Score finished"
      OR NOT log MATCHES "[^0-9]0 errors in performance"
      OR log MATCHES "note deleted"
      OR log MATCHES "samples out of range:[ \t]*([1-9]|0[ \t]+[1-9])"
      OR NOT EXISTS ${unfinished})
    file(REMOVE ${unfinished})
    message(FATAL_ERROR "csound could not render ${SOURCE} (${result}):\n${log}")
  endif()
  file(RENAME ${unfinished} ${WAV})
  return()
endif()

if(NOT BROLGAN_RUN_DIR)
  message(FATAL_ERROR "sounds.cmake: set BROLGAN_RUN_DIR, the folder in which the game runs")
endif()

find_program(BROLGAN_CSOUND csound DOC "csound 6, renders the sounds of the game")
set(sounds)
if(BROLGAN_CSOUND)
  set(here ${CMAKE_CURRENT_LIST_DIR}/../assets/sounds)
  cmake_path(NORMAL_PATH here)
  file(GLOB sources CONFIGURE_DEPENDS ${here}/*.csd)
  file(MAKE_DIRECTORY ${BROLGAN_RUN_DIR}/guit)
  foreach(source IN LISTS sources)
    cmake_path(GET source STEM name)
    if(name STREQUAL "hard2")
      set(name guit/hard2)
    endif()
    set(wav ${BROLGAN_RUN_DIR}/${name}.wav)
    add_custom_command(OUTPUT ${wav}
      COMMAND ${CMAKE_COMMAND} -D CSOUND=${BROLGAN_CSOUND} -D SOURCE=${source} -D WAV=${wav}
        -P ${CMAKE_CURRENT_LIST_FILE}
      DEPENDS ${source} ${here}/lib.inc
      COMMENT "Rendering ${name}.wav"
      VERBATIM)
    list(APPEND sounds ${wav})
  endforeach()
else()
  message(STATUS "csound not found: no sounds are rendered, the game is silent")
endif()
add_custom_target(brolgan_sounds ALL DEPENDS ${sounds})

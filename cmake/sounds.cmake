# The sounds of the game: csound renders each source in assets/sounds into BROLGAN_RUN_DIR, the
# folder in which the game runs. Sets the target brolgan_sounds. Without csound the target is
# empty and the game is silent.
#
# An effect is rendered three times, as NAME.wav, NAME-2.wav and NAME-3.wav, struck anew each time:
# VARIANT sets what comes by chance, PACE the beats a minute (60 as written). The fanfare is heard
# once a game and rendered once; each piece of music has a source of its own.
#
# Where the game is installed they lie in the same folders, as they are or smaller.
#
# Run as a script (cmake -D CSOUND= -D SOURCE= -D VARIANT= -D PACE= -D WAV= -P sounds.cmake) this
# file renders one sound.
# csound leaves a WAV behind when it fails, and calls a score with broken notes a success: the
# sound gets its name only when all of its notes were played.
if(CMAKE_SCRIPT_MODE_FILE)
  set(unfinished ${WAV}.unfinished)
  file(REMOVE ${WAV} ${unfinished})
  execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C ${CSOUND}
      --omacro:VARIANT=${VARIANT} --smacro:PACE=${PACE} -o ${unfinished} ${SOURCE}
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
option(BROLGAN_SMALL_SOUNDS "Install the sounds in MS ADPCM, a quarter of their size (needs sox)" OFF)
if(BROLGAN_SMALL_SOUNDS)
  find_program(BROLGAN_SOX sox REQUIRED)
endif()
set(sounds)

# Adds the rendering of assets/sounds/SOURCE.csd as NAME.wav.
function(brolgan_render source name variant pace)
  set(here ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/../assets/sounds)
  cmake_path(NORMAL_PATH here)
  set(wav ${BROLGAN_RUN_DIR}/${name}.wav)
  add_custom_command(OUTPUT ${wav}
    COMMAND ${CMAKE_COMMAND} -D CSOUND=${BROLGAN_CSOUND} -D SOURCE=${here}/${source}.csd
      -D VARIANT=${variant} -D PACE=${pace} -D WAV=${wav} -P ${CMAKE_CURRENT_FUNCTION_LIST_FILE}
    DEPENDS ${here}/${source}.csd ${here}/lib.inc ${here}/pace.inc
    COMMENT "Rendering ${name}.wav"
    VERBATIM)
  set(installed ${wav})
  if(BROLGAN_SMALL_SOUNDS)
    set(installed ${PROJECT_BINARY_DIR}/small/${name}.wav)
    add_custom_command(OUTPUT ${installed} DEPENDS ${wav}
      COMMAND ${BROLGAN_SOX} -D ${wav} -e ms-adpcm ${installed} VERBATIM)
  endif()
  cmake_path(GET name PARENT_PATH folder)
  install(FILES ${installed} DESTINATION ${BROLGAN_DATA_FOLDER}/${folder})
  set(sounds ${sounds} ${wav} ${installed} PARENT_SCOPE)
endfunction()

if(BROLGAN_CSOUND)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/../assets/sounds/*.csd)
  file(MAKE_DIRECTORY ${BROLGAN_RUN_DIR}/guit ${PROJECT_BINARY_DIR}/small/guit)
  foreach(source IN LISTS sources)
    cmake_path(GET source STEM name)
    if(name MATCHES "^hard2")
      brolgan_render(${name} guit/${name} 1 60)
    else()
      brolgan_render(${name} ${name} 1 60)
      if(NOT name STREQUAL "wygr")
        brolgan_render(${name} ${name}-2 2 57)
        brolgan_render(${name} ${name}-3 3 63)
      endif()
    endif()
  endforeach()
else()
  message(STATUS "csound not found: no sounds are rendered, the game is silent")
endif()
add_custom_target(brolgan_sounds ALL DEPENDS ${sounds})

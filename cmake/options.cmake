# How every target of the project is compiled.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

option(BROLGAN_FACE "Build the desktop face (needs Qt 6)" ON)
option(BROLGAN_SOUND "Build the face with sound (needs SDL2)" ON)
option(BROLGAN_TESTS "Build the tests" ON)
option(BROLGAN_BENCH "Build the measurements" OFF)
option(BROLGAN_FUZZ "Build the fuzzers (needs clang)" OFF)
option(BROLGAN_WERROR "Take warnings for errors, as makers do" OFF)
set(BROLGAN_SANITIZE "" CACHE STRING "What is checked while running: address (with undefined behaviour), thread, or nothing")
option(BROLGAN_COVERAGE "Count the lines of the rooms that run" OFF)

add_library(brolgan_options INTERFACE)
# Floating sums are done operation by operation as written: no fused or reordered ones.
target_compile_options(brolgan_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wno-sign-conversion -Wno-missing-field-initializers -Wshadow -ffp-contract=off
  $<$<BOOL:${BROLGAN_WERROR}>:-Werror>)
# GCC 12 takes the joining of two short strings for an overlapping copy.
target_compile_options(brolgan_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(EMSCRIPTEN)
  # Its standard library is older than the language; web/older_library.h fills the gaps.
  target_compile_options(brolgan_options INTERFACE
    -fwasm-exceptions -Wno-unused-lambda-capture -include ${PROJECT_SOURCE_DIR}/web/older_library.h
    $<$<CONFIG:Release>:-Oz> $<$<CONFIG:Release>:-flto>)
  target_link_options(brolgan_options INTERFACE -fwasm-exceptions $<$<CONFIG:Release>:-Oz> $<$<CONFIG:Release>:-flto>)
endif()
if(BROLGAN_SANITIZE STREQUAL "address")
  set(sanitizers address,undefined)
else()
  set(sanitizers ${BROLGAN_SANITIZE})
endif()
if(sanitizers)
  target_compile_options(brolgan_options INTERFACE -fsanitize=${sanitizers} -fno-sanitize-recover=all)
  target_link_options(brolgan_options INTERFACE -fsanitize=${sanitizers})
endif()

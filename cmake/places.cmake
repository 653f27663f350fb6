# Where an installation lies below its prefix: the program in games, its data in share/games/brolgan.
include(GNUInstallDirs)
set(BROLGAN_PROGRAM_FOLDER games)
set(BROLGAN_DATA_FOLDER ${CMAKE_INSTALL_DATAROOTDIR}/games/brolgan)
# The way from the program to its data, by which it knows that it is installed.
file(RELATIVE_PATH BROLGAN_DATA_FROM_PROGRAM
  ${CMAKE_INSTALL_PREFIX}/${BROLGAN_PROGRAM_FOLDER} ${CMAKE_INSTALL_FULL_DATAROOTDIR}/games/brolgan)

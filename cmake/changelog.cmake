# The releases of the game as CHANGELOG.md tells them: "## VERSION (DATE)" and a point a line, which may
# go on in lines that are indented. Sets BROLGAN_RELEASES to them in AppStream's form and
# BROLGAN_RELEASE_DATE to the date of the newest, which must be the version of the project.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
file(READ ${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog)
string(REPLACE "&" "&amp;" changelog "${changelog}")
string(REPLACE "<" "&lt;" changelog "${changelog}")
string(REGEX REPLACE "\n +" " " changelog "${changelog}")
# A semicolon would part a list.
string(REPLACE ";" "&#59" changelog "${changelog}")
string(REGEX REPLACE "[][`]" "" changelog "${changelog}")
string(REPLACE "\n" ";" changelog "${changelog}")

set(BROLGAN_RELEASES)
set(newest)
set(end)
foreach(line IN LISTS changelog)
  if(line MATCHES "^## ([0-9.]+) \\(([0-9-]+)\\)$")
    string(APPEND BROLGAN_RELEASES "${end}    <release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\">\n"
      "      <description>\n        <ul>\n")
    set(end "        </ul>\n      </description>\n    </release>\n")
    if(NOT newest)
      set(newest ${CMAKE_MATCH_1})
      set(BROLGAN_RELEASE_DATE ${CMAKE_MATCH_2})
    endif()
  elseif(newest AND line MATCHES "^- (.+)$")
    string(REPLACE "&#59" ";" point "${CMAKE_MATCH_1}")
    string(APPEND BROLGAN_RELEASES "          <li>${point}</li>\n")
  endif()
endforeach()
string(APPEND BROLGAN_RELEASES "${end}")
if(NOT newest STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "CHANGELOG.md ends with ${newest}, the project is ${PROJECT_VERSION}")
endif()

# The program as one file, orrel-pitchsieve.html: the code with its starter, the style and the library
# stand in it.
add_executable(orrel-pitchsieve page/main.cpp)
target_link_libraries(orrel-pitchsieve PRIVATE page shell pitchsieve_options)
target_link_options(orrel-pitchsieve PRIVATE
  -sMODULARIZE=1 -sEXPORT_NAME=OrrelPitchsieve -sENVIRONMENT=web -sTEXTDECODER=2
  -sALLOW_MEMORY_GROWTH=1 -sINITIAL_MEMORY=4MB -sTOTAL_STACK=512KB -sMALLOC=emmalloc
  "SHELL:--js-library ${CMAKE_CURRENT_LIST_DIR}/../toolkit/web/dom.js"
  "SHELL:--js-library ${CMAKE_CURRENT_LIST_DIR}/library.js")
set_target_properties(orrel-pitchsieve PROPERTIES LINK_DEPENDS
  "${CMAKE_CURRENT_LIST_DIR}/../toolkit/web/dom.js;${CMAKE_CURRENT_LIST_DIR}/library.js")

find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(parts page/page.html page/page.css page/page.js)
list(TRANSFORM parts PREPEND ${PROJECT_SOURCE_DIR}/src/)
set(scales "${PROJECT_SOURCE_DIR}/resources/Orrel Scales.csv")
set(page ${PROJECT_BINARY_DIR}/orrel-pitchsieve.html)
add_custom_command(OUTPUT ${page}
  COMMAND Python3::Interpreter ${CMAKE_CURRENT_LIST_DIR}/join.py
    ${parts} $<TARGET_FILE:orrel-pitchsieve> $<TARGET_FILE_DIR:orrel-pitchsieve>/orrel-pitchsieve.wasm
    ${scales} ${page}
  DEPENDS orrel-pitchsieve page/join.py ${parts} ${scales}
  VERBATIM)
add_custom_target(page-file ALL DEPENDS ${page})

# add_page(NAME sources... LINKS targets...)
# A program as one file, NAME.html: the code with its starter, the style and the library stand in it.
# The target of the file is NAME-page.
function(add_page name)
  cmake_parse_arguments(PARSE_ARGV 1 page "" "" "LINKS")
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  set(page_folder ${CMAKE_CURRENT_FUNCTION_LIST_DIR})
  set(operations ${page_folder}/../toolkit/web/dom.js ${page_folder}/library.js)
  add_executable(${name} EXCLUDE_FROM_ALL ${page_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PRIVATE ${page_LINKS} pitchsieve_options)
  target_link_options(${name} PRIVATE
    -sMODULARIZE=1 -sEXPORT_NAME=OrrelPitchsieve -sENVIRONMENT=web -sTEXTDECODER=2
    -sALLOW_MEMORY_GROWTH=1 -sINITIAL_MEMORY=4MB -sTOTAL_STACK=512KB -sMALLOC=emmalloc)
  foreach(script ${operations})
    target_link_options(${name} PRIVATE "SHELL:--js-library ${script}")
  endforeach()
  set_target_properties(${name} PROPERTIES LINK_DEPENDS "${operations}")

  set(parts page.html page.css page.js)
  list(TRANSFORM parts PREPEND ${page_folder}/)
  set(scales "${PROJECT_SOURCE_DIR}/resources/Orrel Scales.csv")
  set(page ${PROJECT_BINARY_DIR}/${name}.html)
  add_custom_command(OUTPUT ${page}
    COMMAND Python3::Interpreter ${page_folder}/join.py
      ${parts} $<TARGET_FILE:${name}> $<TARGET_FILE_DIR:${name}>/${name}.wasm ${scales} ${page}
    DEPENDS ${name} ${page_folder}/join.py ${parts} ${scales}
    VERBATIM)
  add_custom_target(${name}-page DEPENDS ${page})
endfunction()

# Puts text files into a source file as constants.
#
#   cmake -DOUTPUT=assets.cpp -DHEADER=assets.h -P EmbedText.cmake -- kName=file ...
#
# HEADER declares them, as std::string_view in namespace tarnwick.
set(source "// Made by the build from the files named.\n#include \"${HEADER}\"\n\nnamespace tarnwick {\n")
set(last ${CMAKE_ARGC})
math(EXPR last "${last} - 1")
set(isFile OFF)
foreach(i RANGE ${last})
  set(word "${CMAKE_ARGV${i}}")
  if(isFile AND word MATCHES "^([A-Za-z]+)=(.*)$")
    set(name "${CMAKE_MATCH_1}")
    set(path "${CMAKE_MATCH_2}")
    file(READ "${path}" text)
    get_filename_component(shown "${path}" NAME)
    string(APPEND source
      "\n// ${shown}\nextern const std::string_view ${name} = R\"tarnwick(${text})tarnwick\";\n")
  elseif(word STREQUAL "--")
    set(isFile ON)
  endif()
endforeach()
file(WRITE "${OUTPUT}" "${source}\n}  // namespace tarnwick\n")

# Programs that run on the machine that builds, also in a build for another: the
# generator of the resources, and tests that look at a Windows file from outside.
#
#   tarnwick_native_program(NAME SOURCES file... [FLAGS flag...] [LIBRARIES flag...])
#
# The variable NAME holds its path, for commands and their DEPENDS.
function(tarnwick_native_program name)
  cmake_parse_arguments(PARSE_ARGV 1 native "" "" "SOURCES;FLAGS;LIBRARIES")
  find_program(TARNWICK_NATIVE_CXX NAMES g++ c++ clang++ REQUIRED
    DOC "Compiler for programs that run during the build")
  set(objects)
  foreach(source ${native_SOURCES})
    file(RELATIVE_PATH stem "${CMAKE_SOURCE_DIR}" "${source}")
    string(MAKE_C_IDENTIFIER "${stem}" stem)
    set(object "${CMAKE_CURRENT_BINARY_DIR}/native/${name}/${stem}.o")
    add_custom_command(OUTPUT "${object}"
      COMMAND ${CMAKE_COMMAND} -E make_directory "${CMAKE_CURRENT_BINARY_DIR}/native/${name}"
      COMMAND ${TARNWICK_NATIVE_CXX} -std=c++20 -O1 -Wall -Wextra "-I${CMAKE_SOURCE_DIR}/src"
              ${native_FLAGS} -MMD -MF "${object}.d" -c "${source}" -o "${object}"
      DEPENDS "${source}" DEPFILE "${object}.d"
      COMMENT "Native ${stem}" VERBATIM)
    list(APPEND objects "${object}")
  endforeach()
  set(program "${CMAKE_CURRENT_BINARY_DIR}/native/${name}/${name}")
  add_custom_command(OUTPUT "${program}"
    COMMAND ${TARNWICK_NATIVE_CXX} ${objects} -pthread -o "${program}" ${native_LIBRARIES}
    DEPENDS ${objects} COMMENT "Native ${name}" VERBATIM)
  set(${name} "${program}" PARENT_SCOPE)
endfunction()

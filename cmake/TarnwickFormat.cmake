# `cmake --build --preset dev -t format` rewrites, `-t format-check` only looks.
find_program(CLANG_FORMAT NAMES clang-format-14 clang-format)
if(CLANG_FORMAT)
  file(GLOB_RECURSE formatted CONFIGURE_DEPENDS
    src/*.cpp src/*.h cli/*.cpp cli/*.h content/*.cpp content/*.h host/*.cpp host/*.h
    tests/*.cpp tests/*.h bench/*.cpp bench/*.h fuzz/*.cpp fuzz/*.h)
  add_custom_target(format COMMAND ${CLANG_FORMAT} -i ${formatted}
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR})
  add_custom_target(format-check COMMAND ${CLANG_FORMAT} --dry-run -Werror ${formatted}
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR})
endif()

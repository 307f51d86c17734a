# `cmake --build --preset dev -t format` rewrites, `-t format-check` only looks.
add_custom_target(format COMMAND tools/format
  WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}" VERBATIM)
add_custom_target(format-check COMMAND tools/format --check
  WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}" VERBATIM)

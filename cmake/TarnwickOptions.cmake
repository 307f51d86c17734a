# Compiler settings shared by every target.
#
# The render has to give the same bytes on every machine and from every
# compiler, so the floating-point model is pinned here and nowhere else.

option(TARNWICK_TESTS "Build the tests" ON)
option(TARNWICK_CONTENT "Paint the data folder with the rest" ON)
option(TARNWICK_BENCH "Build the benchmarks" OFF)
option(TARNWICK_FUZZ "Build the fuzzers (clang only)" OFF)
option(TARNWICK_PCH "Read the standard library's headers once a target; a source may then lack one unnoticed" OFF)
set(TARNWICK_SANITIZE "" CACHE STRING "Sanitizers, as for -fsanitize=")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()
# Assertions stay on in every build but the released one.
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O3 -g1")
if(TARNWICK_SANITIZE)
  # Compiled in half the time; more than lines is in no report of a sanitizer.
  set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g1")
endif()

add_library(tarnwick_options INTERFACE)
target_compile_options(tarnwick_options INTERFACE
  -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Werror
  -ffp-contract=off -fno-math-errno)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # False alarms in the string class: GCC bug 105651.
  target_compile_options(tarnwick_options INTERFACE -Wno-restrict)
endif()
target_include_directories(tarnwick_options INTERFACE "${CMAKE_SOURCE_DIR}/src")

if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  # SSE arithmetic instead of the x87 stack, whose extra bits would show in the
  # picture. 32-bit Windows aligns the stack to 4 bytes only.
  target_compile_options(tarnwick_options INTERFACE -msse2 -mfpmath=sse -mstackrealign)
endif()

if(TARNWICK_SANITIZE)
  # Everything is built with them, GoogleTest too.
  add_compile_options(-fsanitize=${TARNWICK_SANITIZE} -fno-omit-frame-pointer
                      -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${TARNWICK_SANITIZE})
endif()

find_package(Threads REQUIRED)

# CMAKE_UNITY_BUILD (the presets of CI) compiles sources together by the dozen, as most
# of the time goes into headers. These stay alone: they are a platform's half, which a
# test program may bring itself instead, or have names of their own choice in common with
# their neighbours.
function(tarnwick_compile_alone)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

# For targets of many small sources, which else spend half their time on these. Not
# with GCC, which then warns of what it finds in the library itself.
function(tarnwick_precompile)
  if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    tarnwick_precompile_all(${ARGN})
  endif()
endfunction()

# With any compiler: for targets in which it does not.
function(tarnwick_precompile_all)
  if(NOT TARNWICK_PCH)
    return()
  endif()
  foreach(target ${ARGN})
    target_precompile_headers(${target} PRIVATE
      <algorithm> <array> <cmath> <cstdint> <functional> <memory> <optional> <string>
      <string_view> <vector>)
  endforeach()
endfunction()

# The same for the windows, whose sources all read windows.h; with GCC too, which has
# nothing to warn of there.
function(tarnwick_precompile_windows)
  if(NOT TARNWICK_PCH)
    return()
  endif()
  foreach(target ${ARGN})
    target_precompile_headers(${target} PRIVATE
      <windows.h> <algorithm> <array> <cstdint> <functional> <memory> <optional> <string>
      <string_view> <vector>)
  endforeach()
endfunction()

# The sources of one folder: platform halves end in _win.cpp and _posix.cpp.
function(tarnwick_sources out)
  set(found)
  foreach(folder ${ARGN})
    file(GLOB files CONFIGURE_DEPENDS "${folder}/*.cpp" "${folder}/*.h")
    list(APPEND found ${files})
  endforeach()
  if(WIN32)
    list(FILTER found EXCLUDE REGEX "_posix\\.cpp$")
  else()
    list(FILTER found EXCLUDE REGEX "_win\\.cpp$")
  endif()
  # Intrinsics live only in files named for their instruction set. Optimised even
  # in a debug build: a library template that is not inlined there might be the
  # copy that the linker keeps for all, and other processors cannot run it.
  foreach(file ${found})
    if(file MATCHES "_(win|posix)\\.cpp$")
      tarnwick_compile_alone("${file}")
    endif()
    if(file MATCHES "_avx2\\.cpp$")
      set_source_files_properties("${file}" PROPERTIES
        COMPILE_OPTIONS "-mavx2;-O3" SKIP_PRECOMPILE_HEADERS ON)
    endif()
  endforeach()
  set(${out} ${found} PARENT_SCOPE)
endfunction()

# Flags that every target of ours shares; kept in one interface target so that nothing third-party is touched.
add_library(kz_options INTERFACE)
target_compile_definitions(kz_options INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS)
# -pthread, because some libraries ask for it, and -fPIC, which libraries need and CMake does not give to programs: a
# precompiled header serves only sources with the same.
target_compile_options(kz_options INTERFACE -pthread -fPIC
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wno-sign-conversion -Werror)

if(KZ_SANITIZE STREQUAL "thread")
  target_compile_options(kz_options INTERFACE -O1 -g1 -fsanitize=thread)
  target_link_options(kz_options INTERFACE -fsanitize=thread)
elseif(KZ_SANITIZE)
  # Optimized and debugged less than elsewhere: it compiles in half the time, and the tests run as fast.
  target_compile_options(kz_options INTERFACE
    -O1 -g1 -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(kz_options INTERFACE -fsanitize=address,undefined)
endif()

if(NOT KZ_UNITY)
  set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
set(CMAKE_UNITY_BUILD ${KZ_UNITY})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 8)

# It takes a third of the time of the usual linker.
find_program(GOLD ld.gold)
if(GOLD AND NOT KZ_SANITIZE)
  target_link_options(kz_options INTERFACE -fuse-ld=gold)
endif()

find_program(CCACHE ccache)
if(CCACHE)
  # The last two settings are what ccache needs to cache sources that use a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()

# Reading Qt's headers takes most of the compiler's time, so they are compiled once for all targets that use Qt's widgets.
# KZ_UNITY=OFF is also without it, and shows which source lacks an include.
set(source ${CMAKE_BINARY_DIR}/precompiled.cpp)
file(CONFIGURE OUTPUT ${source} CONTENT "// For the target of the precompiled header, which needs a source.\n")
add_library(kz_precompiled OBJECT ${source})
set_target_properties(kz_precompiled PROPERTIES AUTOMOC OFF)
target_link_libraries(kz_precompiled PRIVATE kz_options Qt6::Widgets)
target_precompile_headers(kz_precompiled PRIVATE ${CMAKE_CURRENT_LIST_DIR}/Precompiled.h)

# kz_target(NAME [PRECOMPILED TARGET|NONE]): what every library, plug-in and program of ours has in common. Its precompiled
# header is that of the other target; NONE where Qt's widgets are not used.
function(kz_target name)
  cmake_parse_arguments(arg "" "PRECOMPILED" "" ${ARGN})
  target_link_libraries(${name} PRIVATE kz_options)
  target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>)
  if(NOT arg_PRECOMPILED)
    set(arg_PRECOMPILED kz_precompiled)
  endif()
  if(NOT arg_PRECOMPILED STREQUAL "NONE")
    target_precompile_headers(${name} REUSE_FROM ${arg_PRECOMPILED})
  endif()
endfunction()

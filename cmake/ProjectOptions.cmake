# Flags that every target of ours shares; kept in one interface target so that nothing third-party is touched.
add_library(kz_options INTERFACE)
target_compile_definitions(kz_options INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS)
target_compile_options(kz_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wno-sign-conversion -Werror)

if(KZ_SANITIZE)
  target_compile_options(kz_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(kz_options INTERFACE -fsanitize=address,undefined)
endif()

set(CMAKE_UNITY_BUILD ${KZ_UNITY})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 8)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# kz_target(NAME): what every library, plug-in and program of ours has in common.
function(kz_target name)
  target_link_libraries(${name} PRIVATE kz_options)
  target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>)
endfunction()

# kz_test(NAME SOURCES... LIBRARIES...): a GoogleTest program that runs without a display and writes nothing of the user's.
function(kz_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  kz_target(${name})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} GTest::gtest Qt6::Test)
  add_test(NAME ${name} COMMAND ${name})
  set(home ${CMAKE_BINARY_DIR}/tests/home)
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;QT_LOGGING_RULES=qt.qpa.*=false;XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache"
    TIMEOUT 300)
endfunction()

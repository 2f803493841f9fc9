# One library a source folder, one test program a test folder: a new file needs no edit here.

add_library(tarrowin_options INTERFACE)
target_include_directories(tarrowin_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(tarrowin_options INTERFACE -Wall -Wextra -Wshadow -Wconversion
                                                  -Wno-sign-conversion)
# g++ 12 warns of its own std::string in optimised builds.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(tarrowin_options INTERFACE -Wno-restrict)
endif()
if(TARROWIN_WARNINGS_AS_ERRORS)
  target_compile_options(tarrowin_options INTERFACE -Werror)
endif()

# tarrowin_library(NAME FOLDER... [LINK LIBRARY...]): the static library tarrowin_NAME of all
# sources directly inside the folders.
function(tarrowin_library name)
  cmake_parse_arguments(arg "" "" "LINK" ${ARGN})
  set(sources "")
  foreach(folder IN LISTS arg_UNPARSED_ARGUMENTS)
    file(GLOB found CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
    list(APPEND sources ${found})
  endforeach()
  add_library(tarrowin_${name} STATIC ${sources})
  target_link_libraries(tarrowin_${name} PUBLIC tarrowin_options ${arg_LINK})
endfunction()

# tarrowin_test(FOLDER LIBRARY...): the test program test_FOLDER of all sources in the folder, its
# cases known to CTest.
function(tarrowin_test folder)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
  string(REPLACE "/" "_" name ${folder})
  add_executable(test_${name} ${sources})
  target_include_directories(test_${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(test_${name}
                             PRIVATE TARROWIN_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  target_link_libraries(test_${name} PRIVATE ${ARGN} GTest::gtest GTest::gmock GTest::gtest_main)
  gtest_discover_tests(test_${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

# What most sources read first is read once for all: the standard library, the toolkit for the rooms
# that see it, the test framework. Only what nobody here writes, so that what a source of ours
# includes is still proved, and by the preset noqt also of the standard library.
function(fid_headers kind)
  cmake_parse_arguments(H "" "" "DEPENDS;OPTIONS;HEADERS" ${ARGN})
  if(NOT FIDALEON_PRECOMPILE)
    return()
  endif()
  file(WRITE ${CMAKE_BINARY_DIR}/headers/${kind}.cpp "")
  add_library(fid_headers_${kind} OBJECT ${CMAKE_BINARY_DIR}/headers/${kind}.cpp)
  target_link_libraries(fid_headers_${kind} PRIVATE ${H_DEPENDS} fid_options)
  target_compile_options(fid_headers_${kind} PRIVATE ${H_OPTIONS})
  target_precompile_headers(fid_headers_${kind} PRIVATE ${H_HEADERS})
endfunction()

function(fid_use_headers target kind)
  if(TARGET fid_headers_${kind})
    target_precompile_headers(${target} REUSE_FROM fid_headers_${kind})
  endif()
endfunction()

# A room is a folder under src/ that becomes one static library. Its headers are included by
# their path from src/ ("store/Connection.h"), but only by rooms that depend on it: each room
# exports an include directory that holds a link to itself and nothing else, so a forbidden
# include does not compile.
function(fid_room folder)
  cmake_parse_arguments(ROOM "QT" "" "DEPENDS" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  if(NOT sources)
    return()
  endif()
  add_library(fid_${name} STATIC ${sources})
  set(export ${FIDALEON_EXPORTS}/${name})
  get_filename_component(parent ${export}/${folder} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  if(NOT EXISTS ${export}/${folder})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${export}/${folder} SYMBOLIC)
  endif()
  target_include_directories(fid_${name} PUBLIC ${export})
  target_link_libraries(fid_${name} PUBLIC ${ROOM_DEPENDS} PRIVATE fid_options)
  set_target_properties(fid_${name} PROPERTIES LINKER_LANGUAGE CXX)
  if(ROOM_QT)
    set_target_properties(fid_${name} PROPERTIES AUTOMOC ON)
    # A room without windows is compiled in a way that neither set of headers was.
    if(NOT "Qt6::Core" IN_LIST ROOM_DEPENDS)
      fid_use_headers(fid_${name} toolkit)
    endif()
  else()
    fid_use_headers(fid_${name} standard)
  endif()
endfunction()

# One test program per folder of tests/, which mirrors src/; it links the rooms it names and the shared
# fixtures. SCREENLESS gives it one application of the toolkit without a display. A long one runs in
# so many SHARDS, which may run at the same time; each is one process, since starting one for each
# test takes longer than most tests. What SERVER names, as a filter of tests, is run once more with
# its databases on a server.
function(fid_test folder)
  cmake_parse_arguments(T "SCREENLESS" "SHARDS;SERVER" "DEPENDS" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/tools/")
  if(NOT sources)
    return()
  endif()
  set(headers tests)
  if(T_SCREENLESS)
    list(APPEND sources ${CMAKE_SOURCE_DIR}/tests/qt/Offscreen.cpp)
    list(REMOVE_DUPLICATES sources)
    list(APPEND T_DEPENDS fid_qt Qt6::Test)
    set(headers toolkit_tests)
  endif()
  add_executable(test_${name} ${sources})
  target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(test_${name} PRIVATE ${T_DEPENDS} fid_options GTest::gmock GTest::gtest_main)
  # Most of a first build goes into the tests; optimising them only makes it longer.
  target_compile_options(test_${name} PRIVATE -O0)
  fid_use_headers(test_${name} ${headers})
  if(NOT T_SHARDS)
    set(T_SHARDS 1)
  endif()
  foreach(shard RANGE 1 ${T_SHARDS})
    math(EXPR index "${shard} - 1")
    add_test(NAME ${name}.${shard} COMMAND test_${name} --gtest_brief=1)
    set_tests_properties(${name}.${shard} PROPERTIES TIMEOUT 600 ENVIRONMENT
      "QT_QPA_PLATFORM=offscreen;GTEST_TOTAL_SHARDS=${T_SHARDS};GTEST_SHARD_INDEX=${index}")
  endforeach()
  if(T_SERVER)
    add_test(NAME ${name}.servidor COMMAND test_${name} --gtest_brief=1 --gtest_filter=${T_SERVER})
    set_tests_properties(${name}.servidor PROPERTIES TIMEOUT 600 ENVIRONMENT
      "QT_QPA_PLATFORM=offscreen;FIDALEON_MOTOR=servidor")
  endif()
endfunction()

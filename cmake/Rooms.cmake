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
  endif()
endfunction()

# One test program per folder of tests/, which mirrors src/; it links the rooms it names and the shared
# fixtures. SCREENLESS gives it one application of the toolkit without a display.
function(fid_test folder)
  cmake_parse_arguments(T "SCREENLESS" "" "DEPENDS" ${ARGN})
  string(REPLACE "/" "_" name ${folder})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/tools/")
  if(NOT sources)
    return()
  endif()
  if(T_SCREENLESS)
    list(APPEND sources ${CMAKE_SOURCE_DIR}/tests/qt/Offscreen.cpp)
    list(REMOVE_DUPLICATES sources)
    list(APPEND T_DEPENDS fid_qt Qt6::Test)
  endif()
  add_executable(test_${name} ${sources})
  target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(test_${name} PRIVATE ${T_DEPENDS} fid_options GTest::gmock GTest::gtest_main)
  # Most of a first build goes into the tests; optimising them only makes it longer.
  target_compile_options(test_${name} PRIVATE -O0)
  gtest_discover_tests(test_${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300
                       ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()

# What every target is compiled with, and the three kinds of target of this project.

add_library(veranox_options INTERFACE)
target_compile_options(veranox_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
if(VERANOX_WERROR)
  target_compile_options(veranox_options INTERFACE -Werror)
endif()
target_compile_definitions(
  veranox_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS
)
target_include_directories(veranox_options INTERFACE ${CMAKE_SOURCE_DIR}/src)

# veranox_room(store base SQLite::SQLite3): the static library of the folder it is called in, from all its
# sources, with the rooms and libraries that it stands on.
function(veranox_room name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(${name} STATIC ${sources})
  target_link_libraries(${name} PUBLIC veranox_options Qt6::Core ${ARGN})
endfunction()

# veranox_tests(store): the GoogleTest executable of the folder it is called in, linked to that room alone.
# A main.cpp of its own takes the place of the usual one.
function(veranox_tests room)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_executable(test_${room} ${sources})
  target_include_directories(test_${room} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(test_${room} PRIVATE TEST_DATA_DIR="${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(test_${room} PRIVATE ${room} ${ARGN} GTest::gtest)
  if(NOT EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/main.cpp)
    target_link_libraries(test_${room} PRIVATE GTest::gtest_main)
  endif()
  include(GoogleTest)
  gtest_discover_tests(
    test_${room}
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 300 ENVIRONMENT "QT_QPA_PLATFORM=offscreen"
  )
endfunction()

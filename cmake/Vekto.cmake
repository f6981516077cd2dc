# Shared helpers: one static library per subsystem folder, one test executable per test file.

set(VEKTO_WARNINGS -Wall -Wextra -Wpedantic)

# vekto_library(NAME DEPS...) builds every .cpp/.h/.ui of the calling folder into a static library.
function(vekto_library name)
  file(GLOB sources CONFIGURE_DEPENDS
       ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/*.h
       ${CMAKE_CURRENT_SOURCE_DIR}/*.ui
       ${CMAKE_CURRENT_SOURCE_DIR}/*.qrc)
  list(FILTER sources INCLUDE REGEX ".*")
  set(cpp ${sources})
  list(FILTER cpp INCLUDE REGEX "\\.cpp$")
  if(NOT cpp)
    # A subsystem whose screens are not built yet: nothing to compile, nothing to link.
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} INTERFACE ${ARGN})
    return()
  endif()
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_compile_options(${name} PRIVATE ${VEKTO_WARNINGS})
  target_link_libraries(${name} PUBLIC ${ARGN})
endfunction()

# The folder with the fixtures shipped beside the project; tests skip when it is absent.
get_filename_component(VEKTO_SHARED_DIR ${CMAKE_SOURCE_DIR}/../shared ABSOLUTE)

# vekto_add_tests(LIBS...) turns every tst_*.cpp of the calling folder into one Qt Test executable.
function(vekto_add_tests)
  file(GLOB tests CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/tst_*.cpp)
  foreach(src ${tests})
    get_filename_component(name ${src} NAME_WE)
    add_executable(${name} ${src})
    target_compile_options(${name} PRIVATE ${VEKTO_WARNINGS})
    target_compile_definitions(${name} PRIVATE
      VEKTO_SHARED_DIR="${VEKTO_SHARED_DIR}"
      VEKTO_BIN_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
      VEKTO_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE Qt6::Test ${ARGN})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8"
      TIMEOUT 300)
  endforeach()
endfunction()

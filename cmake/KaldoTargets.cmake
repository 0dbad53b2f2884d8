# Warnings are errors: a warning that is let through once is never read again.
add_library(kaldo_options INTERFACE)
target_include_directories(kaldo_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_definitions(kaldo_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
if(MSVC)
  target_compile_options(kaldo_options INTERFACE /W4 /WX /utf-8)
else()
  target_compile_options(kaldo_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow=local -Werror)
endif()

# kaldo_library(folder LINKS lower libraries... [PCH core|widgets])
#
# One library per folder of src/. LINKS is the whole list of rooms that it may include from.
function(kaldo_library folder)
  cmake_parse_arguments(arg "" "PCH" "LINKS" ${ARGN})
  string(REPLACE "/" "_" suffix ${folder})
  set(target kaldo_${suffix})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp
       ${PROJECT_SOURCE_DIR}/src/${folder}/*.h ${PROJECT_SOURCE_DIR}/src/${folder}/*.qrc)
  if(NOT sources MATCHES "\\.cpp")
    add_library(${target} INTERFACE)
    target_link_libraries(${target} INTERFACE kaldo_options ${arg_LINKS})
    return()
  endif()
  add_library(${target} STATIC ${sources})
  target_link_libraries(${target} PUBLIC kaldo_options ${arg_LINKS})
  if(arg_PCH)
    target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch_${arg_PCH}.h)
  endif()
endfunction()

# kaldo_test(folder LINKS ...): tests/<folder>/*_test.cpp as the program test_<folder>.
#
# One ctest entry runs the whole program: starting it once per case would cost more than the cases.
function(kaldo_test folder)
  cmake_parse_arguments(arg "" "TIMEOUT" "LINKS" ${ARGN})
  string(REPLACE "/" "_" suffix ${folder})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*_test.cpp)
  if(NOT sources)
    return()
  endif()
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 600)
  endif()
  add_executable(test_${suffix} ${sources})
  target_link_libraries(test_${suffix} PRIVATE kaldo_options kaldo_test_support ${arg_LINKS}
                        GTest::gtest)
  target_precompile_headers(test_${suffix} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch_test.h)
  add_test(NAME ${suffix} COMMAND test_${suffix})
  set_tests_properties(${suffix} PROPERTIES TIMEOUT ${arg_TIMEOUT}
                       ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=America/Tijuana;LC_ALL=C.UTF-8")
endfunction()

# The flags of all targets, and functions that make the targets of a library and of a test.

add_library(zv_flags INTERFACE)
target_include_directories(zv_flags INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(zv_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wcast-qual -Wformat=2
  -Wnon-virtual-dtor -Woverloaded-virtual
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond;-Wlogical-op>)
# Release builds check the buffer sizes of C library calls. They resolve all symbols at the start and
# map relocations read-only. Debian requires both of a package. The linker leaves unused functions
# out: docs/performance.md has the measurements of other flags.
if(NOT ZV_SANITIZE AND NOT ZV_COVERAGE)
  target_compile_options(zv_flags INTERFACE
    $<$<CONFIG:Release,RelWithDebInfo>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-ffunction-sections;-fdata-sections>)
  target_link_options(zv_flags INTERFACE
    $<$<CONFIG:Release,RelWithDebInfo>:LINKER:-z,relro,-z,now,--gc-sections>)
endif()
if(ZV_BUILD_FUZZ)
  target_compile_options(zv_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(ZV_SANITIZE)
  # GCC's analysis of uninitialized values reports std::regex if the sanitizers are on.
  target_compile_options(zv_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(zv_flags INTERFACE -fsanitize=address,undefined)
endif()
if(ZV_COVERAGE)
  target_compile_options(zv_flags INTERFACE --coverage)
  target_link_options(zv_flags INTERFACE --coverage)
endif()

# zv_library(<folder> SOURCES <file>... [LINK <library>...] [LINK_PRIVATE <library>...])
#
# Makes the static library zv_<folder>. Without sources it is an interface library. Users of the
# installed library don't get the flags of this project.
function(zv_library folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK;LINK_PRIVATE" ${ARGN})
  if(ARG_SOURCES)
    add_library(zv_${folder} STATIC ${ARG_SOURCES})
    target_link_libraries(zv_${folder} PUBLIC $<BUILD_INTERFACE:zv_flags> ${ARG_LINK} PRIVATE ${ARG_LINK_PRIVATE})
  else()
    add_library(zv_${folder} INTERFACE)
    target_link_libraries(zv_${folder} INTERFACE $<BUILD_INTERFACE:zv_flags> ${ARG_LINK})
  endif()
endfunction()

# zv_test(<name> SOURCES <file>... [LINK <library>...] [LABELS <label>...] [ENVIRONMENT <setting>...])
#
# Makes a GoogleTest program and registers it as one test. Tests that need a screen have the label
# "screen". The driver creates no threads: the leak checker can crash while a thread ends.
function(zv_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK;LABELS;ENVIRONMENT" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE zv_flags ${ARG_LINK} GTest::gtest GTest::gtest_main)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 600 LABELS "${ARG_LABELS}"
    ENVIRONMENT "LP_NUM_THREADS=0;MESA_SHADER_CACHE_DISABLE=true;${ARG_ENVIRONMENT}")
endfunction()

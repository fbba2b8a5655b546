# How every target of the project is made: language level, warnings, include root, tests.
include_guard(GLOBAL)

option(ORVANE_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(ORVANE_TEST_CASES_APART "Run each test case as a test of its own, in its own process" ON)

# A compiler cache is used where there is one. It takes precompiled headers only when told that
# they may be trusted.
find_program(ORVANE_CCACHE ccache)
if(ORVANE_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${ORVANE_CCACHE}")
endif()

cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH ORVANE_ROOT)

# What WebAssembly links is never loaded elsewhere.
set(ORVANE_POSITION_INDEPENDENT ON)
if(EMSCRIPTEN)
  set(ORVANE_POSITION_INDEPENDENT OFF)
endif()

# The settings that all of our own code is compiled with.
add_library(orvane_compile_settings INTERFACE)
target_compile_features(orvane_compile_settings INTERFACE cxx_std_20)
target_include_directories(orvane_compile_settings INTERFACE "${ORVANE_ROOT}")
# Same input, same bits: a product and a sum are never fused behind our back.
if(MSVC)
  target_compile_options(orvane_compile_settings INTERFACE
    /W4 /utf-8 /permissive- /fp:precise $<$<BOOL:${ORVANE_WARNINGS_AS_ERRORS}>:/WX>)
  # The system's header would make macros of std::min and std::max.
  target_compile_definitions(orvane_compile_settings INTERFACE NOMINMAX)
else()
  target_compile_options(orvane_compile_settings INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -ffp-contract=off
    $<$<BOOL:${ORVANE_WARNINGS_AS_ERRORS}>:-Werror>)
endif()

function(orvane_apply_settings target)
  target_link_libraries(${target} PRIVATE orvane_compile_settings)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_STANDARD 20
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ${ORVANE_POSITION_INDEPENDENT})
  get_target_property(type ${target} TYPE)
  if(WIN32 AND type STREQUAL "EXECUTABLE")
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:orvane_program_manifest>)
  endif()
endfunction()

# orvane_library(name SOURCES file... [LINKS target...])
# A static library of one folder; LINKS are the folders it may use, and pass on to its users.
function(orvane_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  orvane_apply_settings(${name})
  target_include_directories(${name} PUBLIC "${ORVANE_ROOT}")
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_link_libraries(${name} PUBLIC ${ARG_LINKS})
endfunction()

# orvane_precompile(name header...): headers of others, which are read once for all files of the
# target where that saves the most: Emscripten's compiler takes longer than any other.
function(orvane_precompile name)
  if(EMSCRIPTEN)
    target_precompile_headers(${name} PRIVATE ${ARGN})
    # The same again in the next build, so that a compiler cache knows what is compiled with it.
    target_compile_options(${name} PRIVATE "SHELL:-Xclang -fno-pch-timestamp")
  endif()
endfunction()

# orvane_compile_fast(): every byte of a file passes through the folder of the calling CMakeLists.txt, or
# those below it. Emscripten's compiler leaves inlining to its linker unless it is asked.
macro(orvane_compile_fast)
  if(EMSCRIPTEN)
    add_compile_options(-O2 -finline-functions)
  endif()
endmacro()

# orvane_compile_small(): the folder of the calling CMakeLists.txt, and those below it, have to be
# small rather than fast where that is what a page is made of. Functions that nobody has asked to be
# inlined are the same ones in all files: that halves the program's verbs.
macro(orvane_compile_small)
  if(EMSCRIPTEN)
    add_compile_options(-Oz -finline-hint-functions)
  endif()
endmacro()

# orvane_headers(name [LINKS target...]): a folder that holds declarations only.
function(orvane_headers name)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  add_library(${name} INTERFACE)
  target_include_directories(${name} INTERFACE "${ORVANE_ROOT}")
  target_compile_features(${name} INTERFACE cxx_std_20)
  target_link_libraries(${name} INTERFACE ${ARG_LINKS})
endfunction()

# orvane_targets_below(result folder): the targets that the folder, and those below it, have made.
function(orvane_targets_below result folder)
  set(folders "${folder}")
  set(targets)
  while(folders)
    list(POP_FRONT folders folder)
    get_property(folder_targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
    get_property(subfolders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
    list(APPEND targets ${folder_targets})
    list(APPEND folders ${subfolders})
  endwhile()
  set(${result} "${targets}" PARENT_SCOPE)
endfunction()

# orvane_folder_target(name): a target that builds all that the folder of the calling CMakeLists.txt,
# and those below it, have made until then.
function(orvane_folder_target name)
  orvane_targets_below(targets "${CMAKE_CURRENT_SOURCE_DIR}")
  add_custom_target(${name} DEPENDS ${targets})
endfunction()

# Tells tests where the repository and the build are, and how the names of modules end there.
function(orvane_define_folders target)
  set(root "")
  if(WIN32 AND CMAKE_CROSSCOMPILING)
    set(root "Z:")  # where Wine shows the folders of this system
  endif()
  target_compile_definitions(${target} PRIVATE
    ORVANE_SOURCE_DIR="${root}${PROJECT_SOURCE_DIR}" ORVANE_BINARY_DIR="${root}${CMAKE_BINARY_DIR}"
    ORVANE_MODULE_SUFFIX="${CMAKE_SHARED_MODULE_SUFFIX}")
endfunction()

# orvane_put_programs(folder target...): where programs come to lie that are for the developers of
# this project; `folder` is within the build folder. On Windows a program finds the host's library
# only beside itself, so they all lie there.
function(orvane_put_programs folder)
  if(NOT WIN32)
    set_target_properties(${ARGN} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/${folder}")
  endif()
endfunction()

# The settings of a test program. The test framework's headers are read once for all of them: half
# of the time that most tests take to compile goes into those.
function(orvane_apply_test_settings target)
  orvane_apply_settings(${target})
  # Compiling a test takes far longer than running it; this halves the former.
  target_compile_options(${target} PRIVATE -O0)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -fpch-preprocess)
  endif()
  target_link_libraries(${target} PRIVATE GTest::gmock GTest::gtest_main)
  if(EMSCRIPTEN)
    target_link_options(${target} PRIVATE -sNODERAWFS=1)  # they see the files of this system
  endif()
  orvane_define_folders(${target})
endfunction()

# orvane_test(name SOURCES file... [LINKS target...] [LABELS label...] [PREFIX text] [PARTS count]):
# one test program per folder. A program that runs tests of another one says with PREFIX how theirs
# are told apart. One that takes long where its cases are not apart says with PARTS into how many
# runs its tests are dealt out, which stand side by side.
# The label "large" is for those that take seconds, which have a program of their own; ctest
# --label-exclude large leaves them out. For other systems they are not built: they would say the
# same of the same code.
function(orvane_test name)
  cmake_parse_arguments(ARG "" "PREFIX;PARTS" "SOURCES;LINKS;LABELS" ${ARGN})
  if(NOT ARG_SOURCES)
    message(FATAL_ERROR "${name} has no sources: it would run no test, and pass.")
  endif()
  if((WIN32 OR EMSCRIPTEN) AND "large" IN_LIST ARG_LABELS)
    return()
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS})
  orvane_apply_test_settings(${name})
  target_precompile_headers(${name} REUSE_FROM orvane_test_framework)
  orvane_put_programs(tests ${name})
  set(labels "")
  if(ARG_LABELS)
    set(labels LABELS "${ARG_LABELS}")
  endif()
  set(timeout 120)
  if("large" IN_LIST ARG_LABELS)
    set(timeout 600)
  endif()
  if(ORVANE_TEST_CASES_APART)
    gtest_discover_tests(${name} NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60 TEST_PREFIX "${ARG_PREFIX}"
      PROPERTIES TIMEOUT ${timeout} ${labels})
  elseif(ARG_PARTS)
    math(EXPR last "${ARG_PARTS} - 1")
    foreach(part RANGE ${last})
      add_test(NAME ${name}.${part} COMMAND ${name} --gtest_brief=1)
      set_tests_properties(${name}.${part} PROPERTIES TIMEOUT 900 ${labels}
        ENVIRONMENT "GTEST_TOTAL_SHARDS=${ARG_PARTS};GTEST_SHARD_INDEX=${part}")
    endforeach()
  else()
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT 900 ${labels})
  endif()
endfunction()

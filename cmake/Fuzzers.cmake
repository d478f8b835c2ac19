# The fuzzers beside the tests: they need clang, whatever this build's compiler is, so they are a build of their own
# (fuzz/CMakeLists.txt) that this one drives. Each then runs for a moment, always the same inputs; fuzz/run takes longer.
find_program(NORLAPLAN_CLANG NAMES clang++-14 clang++ DOC "Compiler of the fuzzers")
find_package(Python3 COMPONENTS Interpreter)

if(NORLAPLAN_SANITIZE)
  message(STATUS "Fuzzers: none in a build with sanitizers; they bring their own")
elseif(NOT NORLAPLAN_CLANG OR NOT Python3_FOUND)
  message(WARNING "Fuzzers: none, since clang++-14 or python3 is missing. The fuzz.* tests are left out.")
else()
  set(fuzz_build ${PROJECT_BINARY_DIR}/fuzz)
  set(launcher)
  if(CMAKE_CXX_COMPILER_LAUNCHER)
    set(launcher -DCMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER})
  endif()
  add_custom_target(fuzzers ALL
    COMMAND ${CMAKE_COMMAND} -S ${PROJECT_SOURCE_DIR}/fuzz -B ${fuzz_build} -G Ninja
      -DCMAKE_CXX_COMPILER=${NORLAPLAN_CLANG} ${launcher} --log-level=WARNING
    COMMAND ${CMAKE_COMMAND} --build ${fuzz_build} -- --quiet
    COMMENT "Fuzzers"
    VERBATIM)

  # So many inputs take each a second or two.
  set(runs_ApplicationFile 8000)
  set(runs_BatchCases 1500)
  set(runs_CatalogueTable 100)
  set(runs_Extras 1500)
  set(runs_FormatNumber 40000)
  set(runs_NumberText 8000)
  set(runs_Overlay 1000)
  set(runs_PartNumber 3000)
  set(runs_RtfReader 800)
  set(runs_Settings 800)
  set(runs_SheetRecords 15000)
  file(GLOB fuzz_targets CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/fuzz/*Fuzz.cpp)
  foreach(file IN LISTS fuzz_targets)
    get_filename_component(name ${file} NAME_WE)
    string(REGEX REPLACE "Fuzz$" "" name ${name})
    add_test(NAME fuzz.${name}
      COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/fuzz/run --built --build ${fuzz_build} --seed 1
        --runs ${runs_${name}} ${name})
    set_tests_properties(fuzz.${name} PROPERTIES TIMEOUT 1500)
  endforeach()
endif()

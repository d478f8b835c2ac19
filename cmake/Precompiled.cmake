# Headers of Qt, the test library and the standard library take far longer to read than our own files: where the
# compiler can keep them read, a build takes half the time. Own headers are never among them, and the presets
# without them (clang, logic) show a file that doesn't include what it uses.
option(NORLAPLAN_PRECOMPILED "Read the headers of Qt and the test library once a build" ON)

function(norlaplan_precompile target)
  if(NORLAPLAN_PRECOMPILED)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# norlaplan_headers(NAME LINKS libraries... HEADERS headers...): a target that only reads the headers, for the many
# targets with the same flags that use them after norlaplan_reuse_precompiled(TARGET NAME).
function(norlaplan_headers name)
  if(NORLAPLAN_PRECOMPILED)
    cmake_parse_arguments(ARG "" "" "LINKS;HEADERS" ${ARGN})
    file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
    add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE ${ARG_LINKS})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
  endif()
endfunction()

function(norlaplan_reuse_precompiled target name)
  if(NORLAPLAN_PRECOMPILED)
    target_precompile_headers(${target} REUSE_FROM ${name})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
      # g++ 12 takes a precompiled std::string for our own and warns of what it thinks to see in it.
      target_compile_options(${target} PRIVATE -Wno-array-bounds)
    endif()
  endif()
endfunction()

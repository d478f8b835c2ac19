# norlaplan_refuse_contraction(): ends the configuration where the compiler, with the flags of this build, fuses a
# product and a sum. A fused pair is rounded once and not twice, so that results would differ in their last bits
# from machine to machine. -ffp-contract=off forbids it, yet g++ 12 with -march=x86-64-v3 fuses sums and differences
# in turn all the same; so a probe is compiled and its instructions are read. It isn't run, so the flags may be for
# another machine.
function(norlaplan_refuse_contraction)
  string(TOUPPER "${CMAKE_BUILD_TYPE}" type)
  separate_arguments(flags UNIX_COMMAND "${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${type}}")
  get_directory_property(options COMPILE_OPTIONS)
  set(instructions ${PROJECT_BINARY_DIR}/contraction_probe.s)
  execute_process(
    COMMAND ${CMAKE_CXX_COMPILER} ${flags} ${options} -w -fno-lto -S -o ${instructions}
            ${PROJECT_SOURCE_DIR}/cmake/contraction_probe.cpp
    RESULT_VARIABLE failed ERROR_VARIABLE told)
  if(failed)
    message(FATAL_ERROR "The probe for fused arithmetic can't be compiled with \"${flags}\":\n${told}")
  endif()
  file(STRINGS ${instructions} fused REGEX "[ \t]v?fn?m(add|sub|la|ls)")
  if(fused)
    list(GET fused 0 first)
    string(STRIP "${first}" first)
    message(FATAL_ERROR
      "With the flags \"${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${type}}\" this compiler fuses a product and a sum into "
      "one rounding (${first}), in spite of -ffp-contract=off. Results are reproduced to the last bit, so this build "
      "is refused: leave out -march, -mfma and the like, or take a compiler that obeys.")
  endif()
endfunction()

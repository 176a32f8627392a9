# read_dependency_records(<build dir> <out var>): the compiler's record of
# what each object file included, one list element per object, each starting
# "<object>:" and naming one included file per line. Ninja keeps the records
# in its own log, the Makefile generator in .o.d files.
function(read_dependency_records build_dir out_var)
  set(records "")
  if(EXISTS "${build_dir}/build.ninja")
    find_program(NINJA ninja REQUIRED)
    execute_process(COMMAND ${NINJA} -C "${build_dir}" -t deps
                    OUTPUT_VARIABLE deps RESULT_VARIABLE rc)
    if(NOT rc EQUAL 0)
      message(FATAL_ERROR "ninja -t deps failed")
    endif()
    string(REGEX MATCHALL "[^\n ][^\n]*: #deps[^\n]*(\n    [^\n]*)*" records "${deps}")
  else()
    file(GLOB_RECURSE depfiles "${build_dir}/src/*.o.d")
    foreach(f IN LISTS depfiles)
      file(READ "${f}" content)
      string(REPLACE "\\\n" "\n" content "${content}")
      list(APPEND records "${content}")
    endforeach()
  endif()
  set(${out_var} "${records}" PARENT_SCOPE)
endfunction()

# Fails when any object file of penwick_core included a QtGui or QtWidgets
# header. Reads the dependency records the compiler left for the build tool:
# Ninja keeps them in its own log, the Makefile generator in .o.d files.
if(EXISTS "${BUILD_DIR}/build.ninja")
  find_program(NINJA ninja REQUIRED)
  execute_process(COMMAND ${NINJA} -C "${BUILD_DIR}" -t deps
                  OUTPUT_VARIABLE deps RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "ninja -t deps failed")
  endif()
  # Keep only the records of the core's objects.
  string(REGEX MATCHALL "src/core/CMakeFiles/penwick_core\\.dir/[^\n]*:[^\n]*(\n    [^\n]*)*" records "${deps}")
else()
  file(GLOB_RECURSE depfiles "${BUILD_DIR}/src/core/CMakeFiles/penwick_core.dir/*.o.d")
  set(records "")
  foreach(f IN LISTS depfiles)
    file(READ "${f}" content)
    list(APPEND records "${content}")
  endforeach()
endif()

if(records STREQUAL "")
  message(FATAL_ERROR "no dependency records of penwick_core found under ${BUILD_DIR}")
endif()
string(REGEX MATCHALL "[^ \n\\\\]*/Qt(Gui|Widgets|PrintSupport)/[^ \n\\\\]*" offenders "${records}")
if(offenders)
  list(REMOVE_DUPLICATES offenders)
  message(FATAL_ERROR "penwick_core includes GUI headers:\n  ${offenders}")
endif()
message(STATUS "penwick_core includes no GUI header")

# Fails when a room includes, directly or through another header, what its
# wall keeps out: the records know no file format, the windows reach files
# only through the ledger, scripting reaches windows only through the
# interface the core declares, and the core knows no window.
include(${CMAKE_CURRENT_LIST_DIR}/DependencyRecords.cmake)
read_dependency_records("${BUILD_DIR}" records)
if(records STREQUAL "")
  message(FATAL_ERROR "no dependency records found under ${BUILD_DIR}")
endif()

# what the wall keeps | objects it holds | headers they may not include
set(walls
  "records from storage|/penwick_core\\.dir/model/|/src/core/storage/"
  "windows from storage|/penwick_ui\\.dir/|/src/core/storage/"
  "scripting from windows|/penwick_script\\.dir/|/src/ui/"
  "the core from windows|/penwick_core\\.dir/|/src/ui/")

set(crossings "")
foreach(wall IN LISTS walls)
  string(REPLACE "|" ";" wall "${wall}")
  list(GET wall 0 name)
  list(GET wall 1 objects)
  list(GET wall 2 forbidden)
  foreach(record IN LISTS records)
    string(REGEX MATCH "^[^\n:]*" object "${record}")
    if(NOT object MATCHES "${objects}")
      continue()
    endif()
    string(REGEX MATCHALL "[^ \n]*${forbidden}[^ \n]*" found "${record}")
    if(found)
      list(REMOVE_DUPLICATES found)
      list(JOIN found ", " found)
      string(APPEND crossings "\n  ${name}: ${object} includes ${found}")
    endif()
  endforeach()
endforeach()

if(crossings)
  message(FATAL_ERROR "walls crossed:${crossings}")
endif()
message(STATUS "every wall holds")

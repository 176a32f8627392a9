# Runs on the staged package tree before CPack packs it. Debian keeps manual
# pages and the changelog compressed (without time stamps, so that two builds
# are alike), and every package's copyright in its documentation folder.
set(usr ${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX})
set(doc ${usr}/share/doc/${CPACK_PACKAGE_NAME})

list(GET CPACK_PENWICK_DOC_FILES 0 copyright)
list(GET CPACK_PENWICK_DOC_FILES 1 changelog)
# A new version needs its own entry at the top of the changelog.
file(STRINGS ${changelog} top LIMIT_COUNT 1)
if(NOT top MATCHES "^${CPACK_PACKAGE_NAME} \\(${CPACK_PACKAGE_VERSION}\\) ")
  message(FATAL_ERROR "${changelog} does not start with version ${CPACK_PACKAGE_VERSION}: ${top}")
endif()
file(COPY ${copyright} ${changelog} DESTINATION ${doc}
     FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

file(GLOB pages ${usr}/share/man/man*/*.[1-9])
foreach(file IN LISTS pages ITEMS ${doc}/changelog)
  execute_process(COMMAND gzip -9nf ${file} RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "gzip ${file} failed")
  endif()
endforeach()

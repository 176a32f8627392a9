# Installs the build into a scratch prefix and checks what a desktop needs
# there: a valid desktop entry, software-centre metadata that validates, and
# a file type that claims "*.Penwick".
set(prefix ${BUILD_DIR}/desktop-integration-check)
file(REMOVE_RECURSE ${prefix})

execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix}
                RESULT_VARIABLE status OUTPUT_QUIET)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "cmake --install failed")
endif()

foreach(file bin/penwick bin/penwickctl
             share/applications/org.penwick.Penwick.desktop
             share/metainfo/org.penwick.Penwick.metainfo.xml
             share/man/man1/penwick.1 share/man/man1/penwickctl.1
             share/bash-completion/completions/penwickctl
             share/zsh/vendor-completions/_penwickctl
             share/fish/vendor_completions.d/penwickctl.fish
             share/mime/packages/org.penwick.Penwick.xml
             share/icons/hicolor/scalable/apps/org.penwick.Penwick.svg)
  if(NOT EXISTS ${prefix}/${file})
    message(FATAL_ERROR "${file} was not installed")
  endif()
endforeach()

execute_process(COMMAND desktop-file-validate ${prefix}/share/applications/org.penwick.Penwick.desktop
                RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE out)
if(NOT status EQUAL 0 OR out MATCHES "error|warning")
  message(FATAL_ERROR "desktop-file-validate:\n${out}")
endif()

# Offline: the check must not depend on the network.
execute_process(COMMAND appstreamcli validate --no-net
                        ${prefix}/share/metainfo/org.penwick.Penwick.metainfo.xml
                RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE out)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "appstreamcli validate:\n${out}")
endif()

# Building the MIME database parses the type; its glob table then maps
# month files to it, and the desktop entry offers to open that type.
execute_process(COMMAND update-mime-database ${prefix}/share/mime
                RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE out)
if(NOT status EQUAL 0 OR out MATCHES "rror|arning")
  message(FATAL_ERROR "update-mime-database:\n${out}")
endif()
file(READ ${prefix}/share/mime/globs2 globs)
if(NOT globs MATCHES "application/x-penwick-month:\\*\\.Penwick:cs")
  message(FATAL_ERROR "month files are not claimed by the file type:\n${globs}")
endif()
# A month file renamed is still known by its content.
foreach(order month-nil-summary month-big-endian)
  file(COPY_FILE ${SOURCE_DIR}/fuzz/corpus/typedstream/${order} ${prefix}/renamed.bin)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env XDG_DATA_DIRS=${prefix}/share
                          gio info -a standard::content-type ${prefix}/renamed.bin
                  OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT out MATCHES "application/x-penwick-month")
    message(FATAL_ERROR "a renamed month file (${order}) is not known by its content:\n${out}")
  endif()
endforeach()
file(READ ${prefix}/share/applications/org.penwick.Penwick.desktop entry)
if(NOT entry MATCHES "MimeType=application/x-penwick-month;")
  message(FATAL_ERROR "the desktop entry does not open month files")
endif()
file(REMOVE_RECURSE ${prefix})

# Installs the build into a scratch prefix and checks what a desktop needs
# there: a valid desktop entry, software-centre metadata that validates, a
# file type that claims "*.Penwick", and the desktop's search, which the bus
# starts the installed program for.
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
             share/icons/hicolor/scalable/apps/org.penwick.Penwick.svg
             share/dbus-1/services/org.penwick.Penwick.Search.service
             share/gnome-shell/search-providers/org.penwick.Penwick.search-provider.ini
             share/krunner/dbusplugins/org.penwick.Penwick.desktop)
  if(NOT EXISTS ${prefix}/${file})
    message(FATAL_ERROR "${file} was not installed")
  endif()
endforeach()

execute_process(COMMAND desktop-file-validate ${prefix}/share/applications/org.penwick.Penwick.desktop
                RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE out)
if(NOT status EQUAL 0 OR out MATCHES "error|warning")
  message(FATAL_ERROR "desktop-file-validate:\n${out}")
endif()

# Offline: the check must not depend on the network. The metadata as
# installed, and as it is with the screenshots' address given.
set(IN ${SOURCE_DIR}/resources/org.penwick.Penwick.metainfo.xml.in)
set(OUT ${prefix}/with-screenshots/org.penwick.Penwick.metainfo.xml)
set(SCREENSHOT_URL https://example.org/penwick/screenshots/)
include(${SOURCE_DIR}/resources/Metainfo.cmake)
file(READ ${OUT} metainfo)
if(NOT metainfo MATCHES "<image xml:lang=\"ja\">https://example.org/penwick/screenshots/list-ja-light.png</image>")
  message(FATAL_ERROR "the screenshots are not listed:\n${metainfo}")
endif()
foreach(metainfo ${prefix}/share/metainfo/org.penwick.Penwick.metainfo.xml ${OUT})
  execute_process(COMMAND appstreamcli validate --no-net ${metainfo}
                  RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "appstreamcli validate ${metainfo}:\n${out}")
  endif()
endforeach()

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

# Both desktops ask under the name the bus starts the installed program for.
set(name "org.penwick.Penwick.Search")
file(READ ${prefix}/share/dbus-1/services/${name}.service service)
if(NOT service MATCHES "Name=${name}\nExec=${prefix}/bin/penwick --background\n")
  message(FATAL_ERROR "the search's service file does not start the installed program:\n${service}")
endif()
file(READ ${prefix}/share/gnome-shell/search-providers/org.penwick.Penwick.search-provider.ini ini)
file(READ ${prefix}/share/krunner/dbusplugins/org.penwick.Penwick.desktop runner)
if(NOT ini MATCHES "DesktopId=org.penwick.Penwick.desktop\nBusName=${name}\nObjectPath=/org/penwick/Penwick/SearchProvider\n"
   OR NOT runner MATCHES "Service=${name}\nX-Plasma-DBusRunner-Path=/org/penwick/Penwick/Runner\n")
  message(FATAL_ERROR "the search provider or the runner asks another name:\n${ini}\n${runner}")
endif()
file(REMOVE_RECURSE ${prefix})

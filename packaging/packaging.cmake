# SPDX-License-Identifier: BSD-3-Clause
# What an installation brings beside the programs and the library: the SDK (a CMake
# package and a pkg-config file), the console's desktop entry, icon and manual pages;
# and, with MESSAGEVIEW_PACKAGING, the Debian packages CPack builds from the components:
#   Runtime     -> libmessageview1     Development -> libmessageview-dev
#   Console     -> msgview             Simulator   -> rxsim

include(CMakePackageConfigHelpers)

set(MESSAGEVIEW_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/MessageView)
install(EXPORT MessageViewTargets NAMESPACE MessageView:: DESTINATION ${MESSAGEVIEW_CMAKE_DIR}
    COMPONENT Development)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/MessageViewConfig.cmake.in
    ${PROJECT_BINARY_DIR}/packaging/MessageViewConfig.cmake
    INSTALL_DESTINATION ${MESSAGEVIEW_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/packaging/MessageViewConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/packaging/MessageViewConfig.cmake
              ${PROJECT_BINARY_DIR}/packaging/MessageViewConfigVersion.cmake
    DESTINATION ${MESSAGEVIEW_CMAKE_DIR} COMPONENT Development)

# The paths in the .pc file are relative to its prefix so that a staged or relocated
# installation stays usable.
configure_file(${CMAKE_CURRENT_LIST_DIR}/messageview.pc.in ${PROJECT_BINARY_DIR}/packaging/messageview.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/packaging/messageview.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)

install(FILES ${CMAKE_CURRENT_LIST_DIR}/msgview.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT Console)
install(FILES ${CMAKE_CURRENT_LIST_DIR}/msgview.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT Console)

# Manual pages go in compressed, without a timestamp, so that two builds give the same bytes.
find_program(GZIP_PROGRAM gzip REQUIRED)
function(messageview_install_man page component)
    set(compressed ${PROJECT_BINARY_DIR}/packaging/${page}.gz)
    add_custom_command(OUTPUT ${compressed}
        COMMAND ${GZIP_PROGRAM} -9 -n -c ${CMAKE_CURRENT_LIST_DIR}/${page} > ${compressed}
        DEPENDS ${CMAKE_CURRENT_LIST_DIR}/${page} VERBATIM)
    add_custom_target(man_${page} ALL DEPENDS ${compressed})
    install(FILES ${compressed} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${component})
endfunction()
messageview_install_man(msgview.1 Console)
messageview_install_man(rxsim.1 Simulator)

if(NOT MESSAGEVIEW_PACKAGING)
    return()
endif()

set(MESSAGEVIEW_PACKAGES
    Runtime libmessageview1
    Development libmessageview-dev
    Console msgview
    Simulator rxsim)
set(MESSAGEVIEW_MAINTAINER "MessageView developers <maintainers@users.noreply.c-seed-15a79cb6.example>")

# Every package carries its copyright (DEP-5, with the licence's text) and, the
# version having no Debian revision, a native package's changelog.gz.
file(STRINGS ${PROJECT_SOURCE_DIR}/LICENSE license_lines)
set(license_text "")
foreach(line IN LISTS license_lines)
    if(line STREQUAL "")
        string(APPEND license_text " .\n")
    else()
        string(APPEND license_text " ${line}\n")
    endif()
endforeach()
string(TIMESTAMP changelog_date "%a, %d %b %Y %H:%M:%S +0000" UTC) # follows SOURCE_DATE_EPOCH
configure_file(${CMAKE_CURRENT_LIST_DIR}/copyright.in ${PROJECT_BINARY_DIR}/packaging/copyright @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.in ${PROJECT_BINARY_DIR}/packaging/changelog @ONLY)
execute_process(COMMAND ${GZIP_PROGRAM} -9 -n -f -k ${PROJECT_BINARY_DIR}/packaging/changelog COMMAND_ERROR_IS_FATAL ANY)

set(CPACK_COMPONENTS_ALL "")
while(MESSAGEVIEW_PACKAGES)
    list(POP_FRONT MESSAGEVIEW_PACKAGES component package)
    string(TOUPPER ${component} upper)
    list(APPEND CPACK_COMPONENTS_ALL ${component})
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
    install(FILES ${PROJECT_BINARY_DIR}/packaging/copyright ${PROJECT_BINARY_DIR}/packaging/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component})
endwhile()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME messageview)
set(CPACK_PACKAGE_VENDOR "MessageView developers")
set(CPACK_PACKAGE_CONTACT "${MESSAGEVIEW_MAINTAINER}")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/cpack)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${MESSAGEVIEW_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY "=")
# dpkg-shlibdeps finds the library of the same build here for the programs.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})

set(MESSAGEVIEW_EXACT "(= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/triggers)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "GNSS receiver message pages for Qt applications
The library shows what a GNSS receiver sends, one live page per kind of
message (NMEA sentences, the receiver's ASCII logs, timing sentences,
binary messages), with a tree of the messages to choose from. The host
feeds it the received bytes.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libmessageview1 ${MESSAGEVIEW_EXACT}, qtbase5-dev")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "GNSS receiver message pages for Qt applications - development files
The headers, a CMake package (find_package(MessageView), target
MessageView::messageview) and a pkg-config file (messageview) to build
a host of the receiver message pages.")
set(CPACK_DEBIAN_CONSOLE_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_CONSOLE_PACKAGE_DEPENDS "libmessageview1 ${MESSAGEVIEW_EXACT}")
set(CPACK_COMPONENT_CONSOLE_DESCRIPTION "GNSS receiver console
A window with one live page per kind of message a GNSS receiver sends,
its sky, signals and position, fed from a serial port, TCP, gpsd, a
recording or standard input; it records, replays and exports sessions
and forwards NTRIP corrections to the receiver.")
set(CPACK_DEBIAN_SIMULATOR_PACKAGE_SECTION electronics)
set(CPACK_COMPONENT_SIMULATOR_DESCRIPTION "simulated GNSS receiver
It writes what a GNSS receiver in a vehicle driving a loop would send:
NMEA sentences, ASCII logs or timing sentences, to standard output, a
file, TCP clients or a serial port, with faults on demand, or RTCM 3 as
a base station.")

include(CPack)

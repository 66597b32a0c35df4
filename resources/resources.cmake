# SPDX-License-Identifier: BSD-3-Clause
# Included by the top-level CMakeLists (generated files must be known there).
# Translations are compiled by lrelease at build time. The English file is merged
# from one .ts source per page family (resources/i18n/en/*.ts); the Chinese file is
# empty because Chinese is the source language of every page text.
file(GLOB MESSAGEVIEW_EN_TS CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/i18n/en/*.ts)
set(MESSAGEVIEW_CH_TS ${CMAKE_CURRENT_LIST_DIR}/i18n/language_Message_CH.ts)
set(MESSAGEVIEW_EN_QM ${CMAKE_BINARY_DIR}/resources/language_Message_EN.qm)
set(MESSAGEVIEW_CH_QM ${CMAKE_BINARY_DIR}/resources/language_Message_CH.qm)

add_custom_command(OUTPUT ${MESSAGEVIEW_EN_QM}
    COMMAND Qt5::lrelease -silent ${MESSAGEVIEW_EN_TS} -qm ${MESSAGEVIEW_EN_QM}
    DEPENDS ${MESSAGEVIEW_EN_TS}
    COMMENT "Compiling the English translation")
add_custom_command(OUTPUT ${MESSAGEVIEW_CH_QM}
    COMMAND Qt5::lrelease -silent ${MESSAGEVIEW_CH_TS} -qm ${MESSAGEVIEW_CH_QM}
    DEPENDS ${MESSAGEVIEW_CH_TS}
    COMMENT "Compiling the (empty) Chinese translation")
add_custom_target(messageview_translations DEPENDS ${MESSAGEVIEW_EN_QM} ${MESSAGEVIEW_CH_QM})

set(MESSAGEVIEW_QSS ${CMAKE_CURRENT_LIST_DIR}/msgbasewidget.qss)
configure_file(${CMAKE_CURRENT_LIST_DIR}/messageview.qrc.in ${CMAKE_BINARY_DIR}/resources/messageview.qrc @ONLY)
set_source_files_properties(${MESSAGEVIEW_EN_QM} ${MESSAGEVIEW_CH_QM} PROPERTIES GENERATED TRUE)
set(MESSAGEVIEW_RESOURCE_SOURCES ${CMAKE_BINARY_DIR}/resources/messageview.qrc
    ${MESSAGEVIEW_EN_QM} ${MESSAGEVIEW_CH_QM})

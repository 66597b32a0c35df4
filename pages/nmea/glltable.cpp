// SPDX-License-Identifier: BSD-3-Clause
#include "glltable.h"

const FieldTableSpec &GLLTable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("lat"), QT_TR_NOOP("ddmm.mmmmmmmm"), QT_TR_NOOP("Latitude")},
        {QT_TR_NOOP("lat dir"), "", QT_TR_NOOP("N-北纬，S-南纬")},
        {QT_TR_NOOP("lon"), QT_TR_NOOP("dddmm.mmmmmmmm"), QT_TR_NOOP("Longitude")},
        {QT_TR_NOOP("lon dir"), "", QT_TR_NOOP("E-东经，W-西经")},
        // The trailing blank of "Utc " is the receiver's own label.
        {QT_TR_NOOP("Utc "), QT_TR_NOOP("hhmmss.ss"), QT_TR_NOOP("协调世界时")},
        {QT_TR_NOOP("Valid"), "", QT_TR_NOOP("A-数据有效，V-数据无效")},
        {QT_TR_NOOP("Mode"), "", QT_TR_NOOP("A-单点模式，D-差分模式，N-数据无效")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows))
            .columnWidth(1, 110);
    return spec;
}

GLLTable::GLLTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

// SPDX-License-Identifier: BSD-3-Clause
#include "vtgtable.h"

const FieldTableSpec &VTGTable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("Heading true"), QT_TR_NOOP("度"), nullptr},
        {QT_TR_NOOP("TRUE NORTH"), "", QT_TR_NOOP("T-参考真北方向")},
        // The line feed ending this label is kept: it is how the label is laid out.
        {QT_TR_NOOP("Heading mag\n"), QT_TR_NOOP("度"), nullptr},
        {QT_TR_NOOP("MAGNETIC NORTH"), "", QT_TR_NOOP("M-参考磁北方向")},
        {QT_TR_NOOP("speed Kn"), QT_TR_NOOP("knots(节)"), nullptr},
        {QT_TR_NOOP("N"), "", QT_TR_NOOP("N-knots(节)")},
        {QT_TR_NOOP("speed Km"), QT_TR_NOOP("Km/h"), nullptr},
        {QT_TR_NOOP("K"), "", QT_TR_NOOP("K-Km/h")},
        {QT_TR_NOOP("Mode ind"), "", QT_TR_NOOP("A-单点模式，D-差分模式，N-数据无效")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows))
            .columnWidth(1, 80);
    return spec;
}

VTGTable::VTGTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

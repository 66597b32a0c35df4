// SPDX-License-Identifier: BSD-3-Clause
#include "tdifpostable.h"

#include "bestpostable.h"

const FieldTableSpec &TdifposTable::pageSpec()
{
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, BestposTable::bestPositionRows())
            .replaceRow(19, {QT_TR_NOOP("Galileo sigmask"), "", QT_TR_NOOP("Galileo 使用的信号掩码")})
            .replaceRow(20, {QT_TR_NOOP("GPS GLONASS\nand BDS sigmask"), "", QT_TR_NOOP("GPS, GLONASS 和 BDS 使用的信号掩码")})
            .layout(FormLayout::VBox, "verticalLayout", QMargins(6, 6, 3, 3))
            .window(1078, 798)
            .valuesAligned(Qt::AlignHCenter | Qt::AlignVCenter)
            .statusCells(true);
    return spec;
}

TdifposTable::TdifposTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

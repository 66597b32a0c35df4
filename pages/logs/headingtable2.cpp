// SPDX-License-Identifier: BSD-3-Clause
#include "headingtable2.h"

#include "headingtable.h"

const FieldTableSpec &HeadingTable2::pageSpec()
{
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, HeadingTable::headingRows())
            .replaceRow(16, {QT_TR_NOOP("GPS GLONASS and\nBDS sigmask"), "", QT_TR_NOOP("GPS, GLONASS 和 BDS 使用的信号掩码")})
            .layout(FormLayout::HBox, "horizontalLayout", QMargins(6, 6, 3, 3))
            .window(500, 389)
            .valuesAligned(Qt::AlignRight | Qt::AlignVCenter)
            .statusCells(true);
    return spec;
}

HeadingTable2::HeadingTable2(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

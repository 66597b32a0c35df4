// SPDX-License-Identifier: BSD-3-Clause
#include "bestnavtable.h"

#include "bestpostable.h"

const FieldTableSpec &BestnavTable::pageSpec()
{
    // The velocity block behind the best-position rows; it carries no units.
    static const FieldRow velocityRows[] = {
        {QT_TR_NOOP("V-sol status"), "", QT_TR_NOOP("解状态")},
        {QT_TR_NOOP("vel type"), "", QT_TR_NOOP("速度类型")},
        {QT_TR_NOOP("latency"), "", QT_TR_NOOP("延迟值")},
        {QT_TR_NOOP("age"), "", QT_TR_NOOP("差分龄期")},
        {QT_TR_NOOP("hor spd"), "", QT_TR_NOOP("对地水平速度")},
        {QT_TR_NOOP("trk gnd"), "", QT_TR_NOOP("运动方向(真北)")},
        {QT_TR_NOOP("vert spd"), "", QT_TR_NOOP("垂直速度 ")},
        {QT_TR_NOOP("verspd std"), "", QT_TR_NOOP("高程速度标准差")},
        {QT_TR_NOOP("Horspd std"), "", QT_TR_NOOP("水平速度标准差")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, BestposTable::bestPositionRows())
            .appendRows(fieldRows(velocityRows))
            .layout(FormLayout::VBox, "verticalLayout", QMargins(6, 6, 3, 3))
            .window(1078, 798)
            .valuesAligned(Qt::AlignRight | Qt::AlignVCenter)
            .compactHeaderForm()
            // Placed but never filled, as on the best-position page: this log's
            // status words (rows 0, 1, 21 and 22) are shown raw, on purpose.
            .statusCells(false);
    return spec;
}

BestnavTable::BestnavTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

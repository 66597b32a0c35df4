// SPDX-License-Identifier: BSD-3-Clause
#include "headingtable.h"

QVector<FieldRow> HeadingTable::headingRows()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("sol stat"), "", QT_TR_NOOP("解状态")},
        {QT_TR_NOOP("pos type"), "", QT_TR_NOOP("位置类型")},
        {QT_TR_NOOP("length"), QT_TR_NOOP("0 - 3000 m"), QT_TR_NOOP("基线长")},
        {QT_TR_NOOP("heading"), QT_TR_NOOP("0 - 360deg"), QT_TR_NOOP("航向")},
        {QT_TR_NOOP("pitch"), QT_TR_NOOP("±90 deg"), QT_TR_NOOP("俯仰")},
        {QT_TR_NOOP("Reserved"), "", QT_TR_NOOP("保留")},
        {QT_TR_NOOP("hdgstddev"), "", QT_TR_NOOP("航向标准偏差")},
        {QT_TR_NOOP("ptchstddev"), "", QT_TR_NOOP("俯仰标准偏差")},
        {QT_TR_NOOP("stn id"), "", QT_TR_NOOP("基站 ID")},
        {QT_TR_NOOP("#SVs"), "", QT_TR_NOOP("跟踪的卫星数")},
        {QT_TR_NOOP("#solnSVs"), "", QT_TR_NOOP("使用的卫星数")},
        {QT_TR_NOOP("#obs"), "", QT_TR_NOOP("截止高度角以上的卫星数")},
        {QT_TR_NOOP("#multi"), "", QT_TR_NOOP("截止高度角以上有 L2 观测的卫星数")},
        {QT_TR_NOOP("Reserved"), "", QT_TR_NOOP("保留")},
        {QT_TR_NOOP("ext sol stat"), "", QT_TR_NOOP("扩展解的状态")},
        {QT_TR_NOOP("Galileo sigmask"), "", QT_TR_NOOP("Galileo使用的信号掩码。")},
        {QT_TR_NOOP("GPS GLONASS and BDS sigmask"), "", QT_TR_NOOP("GPS, GLONASS 和 BDS 使用的信号掩码 ")},
    };
    return fieldRows(rows);
}

const FieldTableSpec &HeadingTable::pageSpec()
{
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, headingRows())
            .layout(FormLayout::HBox, "horizontalLayout", QMargins(6, 6, 3, 3))
            .window(733, 495)
            .valuesAligned(Qt::AlignRight | Qt::AlignVCenter)
            .statusCells(true);
    return spec;
}

HeadingTable::HeadingTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

// SPDX-License-Identifier: BSD-3-Clause
#include "bestveltable.h"

// The latency row has no unit although its description speaks of seconds: the
// receiver's documentation lays the page out so.
QVector<FieldRow> BestvelTable::velocityRows()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("sol status"), "", QT_TR_NOOP("解的状态")},
        {QT_TR_NOOP("vel type"), "", QT_TR_NOOP("速度类型")},
        {QT_TR_NOOP("latency"), "", QT_TR_NOOP("根据速度时标计算的延迟值，以秒为单位。用历元时间减去延迟可得到更准确的速度结果。")},
        {QT_TR_NOOP("age"), QT_TR_NOOP("s"), QT_TR_NOOP("差分龄期")},
        {QT_TR_NOOP("hor spd"), QT_TR_NOOP("m/s"), QT_TR_NOOP("对地水平速度")},
        {QT_TR_NOOP("trk gnd"), QT_TR_NOOP("deg"), QT_TR_NOOP("相对于真北的实际对地运动方向")},
        {QT_TR_NOOP("vert spd"), QT_TR_NOOP("m/s"), QT_TR_NOOP("垂直速度，m/s，正值表示高度增加（向上），负值表示高度下降\n（向下）")},
        {QT_TR_NOOP("Reserved"), "", QT_TR_NOOP("保留位")},
    };
    return fieldRows(rows);
}

// Field 1 is a velocity type; the position-type vocabulary describes it.
FieldTableSpec BestvelTable::velocityForm(FieldTableSpec spec)
{
    return spec.layout(FormLayout::HBox, "horizontalLayout", QMargins(6, 6, 3, 3))
        .window(654, 605)
        .valuesAligned(Qt::AlignRight | Qt::AlignVCenter)
        .statusCells(true);
}

FieldTableSpec BestvelTable::velocityPage(const QMetaObject &page)
{
    return velocityForm(FieldTableSpec::record(page, velocityRows())
                            .replaceRow(6, {QT_TR_NOOP("vert spd"), QT_TR_NOOP("m/s"),
                                            QT_TR_NOOP("垂直速度，m/s，正值表示高度增加（向上），负值表示高度下降（向下）")}));
}

const FieldTableSpec &BestvelTable::pageSpec()
{
    static const FieldTableSpec spec = velocityForm(FieldTableSpec::record(staticMetaObject, velocityRows()));
    return spec;
}

BestvelTable::BestvelTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

// SPDX-License-Identifier: BSD-3-Clause
#include "inspvatable.h"

const FieldTableSpec &InspvaTable::pageSpec()
{
    // No units; the INS status word of row 11 is shown raw.
    static const FieldRow rows[] = {
        {QT_TR_NOOP("Week"), nullptr, QT_TR_NOOP("GNSS 周")},
        {QT_TR_NOOP("Seconds"), nullptr, QT_TR_NOOP("周秒")},
        {QT_TR_NOOP("Latitude"), nullptr, QT_TR_NOOP("纬度")},
        {QT_TR_NOOP("Longitude"), nullptr, QT_TR_NOOP("经度")},
        {QT_TR_NOOP("Height"), nullptr, QT_TR_NOOP("椭球高")},
        {QT_TR_NOOP("North Velocity"), nullptr, QT_TR_NOOP("北向速度")},
        {QT_TR_NOOP("East Velocity"), nullptr, QT_TR_NOOP("东向速度")},
        {QT_TR_NOOP("Up Velocity"), nullptr, QT_TR_NOOP("天向速度")},
        {QT_TR_NOOP("Roll"), nullptr, QT_TR_NOOP("横滚角")},
        {QT_TR_NOOP("Pitch"), nullptr, QT_TR_NOOP("俯仰角")},
        {QT_TR_NOOP("Azimuth"), nullptr, QT_TR_NOOP("航向角")},
        {QT_TR_NOOP("Status"), nullptr, QT_TR_NOOP("INS 状态")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::record(staticMetaObject, fieldRows(rows))
            .layout(FormLayout::HBox, "horizontalLayout", QMargins(6, 6, 3, 3))
            .window(400, 300)
            .valuesAligned(Qt::AlignHCenter | Qt::AlignVCenter);
    return spec;
}

InspvaTable::InspvaTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

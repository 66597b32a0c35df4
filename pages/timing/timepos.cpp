// SPDX-License-Identifier: BSD-3-Clause
#include "timepos.h"

const FieldTableSpec &timepos::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("mode"), nullptr, QT_TR_NOOP("定位模式:1：未定位（位置无效）,2：2D定位,3：3D定位")},
        {QT_TR_NOOP("Lat"), nullptr, QT_TR_NOOP("接收机实时纬度，北纬为正，南纬为负，单位为度")},
        {QT_TR_NOOP("Lon"), nullptr, QT_TR_NOOP("接收机实时经度，东经为正，西经为负，单位为度")},
        {QT_TR_NOOP("Hae"), nullptr, QT_TR_NOOP("接收机实时椭球高，单位为米")},
        {QT_TR_NOOP("fixLat"), nullptr, QT_TR_NOOP("接收机固定纬度，北纬为正，南纬为负，单位为度")},
        {QT_TR_NOOP("fixLon"), nullptr, QT_TR_NOOP("接收机固定经度，东经为正，西经为负，单位为度")},
        {QT_TR_NOOP("fixHae"), nullptr, QT_TR_NOOP("接收机固定椭球高，单位为米")},
        {QT_TR_NOOP("pdop"), nullptr, QT_TR_NOOP("位置精度因子")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows)).lastFieldOptional();
    return spec;
}

timepos::timepos(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

// SPDX-License-Identifier: BSD-3-Clause
#include "gsttable.h"

const FieldTableSpec &GSTtable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("utc"), QT_TR_NOOP("hhmmss.ss"), QT_TR_NOOP("位置对应的 UTC 时间")},
        {QT_TR_NOOP("rms"), "", QT_TR_NOOP("用于定位计算的伪距标准差，RMS")},
        {QT_TR_NOOP("smjr std"), "", QT_TR_NOOP("误差椭圆的长半轴")},
        // The English of rows 3 and 4 keeps the manual's "ellispe".
        {QT_TR_NOOP("smnr std"), "", QT_TR_NOOP("误差椭圆的短半轴")},
        {QT_TR_NOOP("orient"), "", QT_TR_NOOP("误差椭圆的方向")},
        {QT_TR_NOOP("lat std"), "", QT_TR_NOOP("纬度误差的标准差")},
        // The trailing blank of "lon std " is the receiver's own label.
        {QT_TR_NOOP("lon std "), "", QT_TR_NOOP("经度误差的标准差")},
        {QT_TR_NOOP("alt std"), "", QT_TR_NOOP("高度误差的标准差")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows))
            .lastFieldOptional();
    return spec;
}

GSTtable::GSTtable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

// SPDX-License-Identifier: BSD-3-Clause
#include "psrdoptable.h"

DopPageSpec PsrdopTable::dopSpec(const QMetaObject &page)
{
    return DopPageSpec{
        page.className(),
        {
            {QT_TR_NOOP("gdop"), "", QT_TR_NOOP("几何精度因子")},
            {QT_TR_NOOP("pdop"), "", QT_TR_NOOP("位置精度因子")},
            {QT_TR_NOOP("hdop"), "", QT_TR_NOOP("水平精度因子")},
            {QT_TR_NOOP("htdop"), "", QT_TR_NOOP("水平位置和时间精度因子")},
            {QT_TR_NOOP("tdop"), "", QT_TR_NOOP("时间精度因子")},
            {QT_TR_NOOP("cutoff"), QT_TR_NOOP("deg"), QT_TR_NOOP("截止高度角")},
            {QT_TR_NOOP("#Prn"), "", QT_TR_NOOP("跟踪卫星的总数")},
        },
        {
            {"GPS", 1, 32},
            {"QZSS", 33, 37},
            {"Glonass", 38, 61},
            {"Galileo", 75, 110},
            {"SBAS", 120, 141},
            {"BDS", 161, 223},
        },
        20,
    };
}

const DopPageSpec &PsrdopTable::pageSpec()
{
    static const DopPageSpec spec = dopSpec(staticMetaObject);
    return spec;
}

PsrdopTable::PsrdopTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : DopPage(pageSpec(), parent, introStr, treeParent)
{
}

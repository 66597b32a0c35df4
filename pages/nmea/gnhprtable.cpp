// SPDX-License-Identifier: BSD-3-Clause
#include "gnhprtable.h"

const FieldTableSpec &GnhprTable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("utc"), "", QT_TR_NOOP("UTC 时间")},
        {QT_TR_NOOP("heading"), QT_TR_NOOP("0～360°"), QT_TR_NOOP("航向角")},
        {QT_TR_NOOP("pitch"), QT_TR_NOOP("-90～90°"), QT_TR_NOOP("俯仰角")},
        {QT_TR_NOOP("roll"), QT_TR_NOOP("-90～90°"), QT_TR_NOOP("横滚角")},
        {QT_TR_NOOP("QF"), "", QT_TR_NOOP("解状态")},
        {QT_TR_NOOP("sat No"), "", QT_TR_NOOP("卫星号")},
        {QT_TR_NOOP("age"), "", QT_TR_NOOP("差分龄期")},
        {QT_TR_NOOP("stn ID"), "", QT_TR_NOOP("基准站 ID")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows))
            .lastFieldOptional();
    return spec;
}

GnhprTable::GnhprTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

// SPDX-License-Identifier: BSD-3-Clause
#include "fwinfotable.h"

#include "plainrecordform.h"

const FieldTableSpec &FwinfoTable::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("# comp"), nullptr, QT_TR_NOOP("接收机或板卡等信息数目")},
        {QT_TR_NOOP("type"), nullptr, QT_TR_NOOP("产品类型")},
        {QT_TR_NOOP("model"), nullptr, QT_TR_NOOP("接收机型号")},
        {QT_TR_NOOP("psn"), nullptr, QT_TR_NOOP("产品 PN 号和序列号")},
        {QT_TR_NOOP("hw version"), nullptr, QT_TR_NOOP("硬件版本")},
        {QT_TR_NOOP("sw version"), nullptr, QT_TR_NOOP("固件版本")},
        {QT_TR_NOOP("boot version"), nullptr, QT_TR_NOOP("Boot 和 BB 版本")},
        {QT_TR_NOOP("efuse ID"), nullptr, QT_TR_NOOP("板卡 ID")},
        {QT_TR_NOOP("comp time"), nullptr, QT_TR_NOOP("固件编译日期")},
    };
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, fieldRows(rows));
    return spec;
}

FwinfoTable::FwinfoTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

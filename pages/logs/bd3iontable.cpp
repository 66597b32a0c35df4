// SPDX-License-Identifier: BSD-3-Clause
#include "bd3iontable.h"

#include "plainrecordform.h"

const FieldTableSpec &Bd3ionTable::pageSpec()
{
    // The reserved row carries the week text of the GPS page's row 9, as the
    // receiver's documentation has it; kept on purpose.
    static const FieldRow rows[] = {
        {QT_TR_NOOP("a1"), nullptr, QT_TR_NOOP("电离层延迟改正模型参数1")},
        {QT_TR_NOOP("a2"), nullptr, QT_TR_NOOP("电离层延迟改正模型参数2")},
        {QT_TR_NOOP("a3"), nullptr, QT_TR_NOOP("电离层延迟改正模型参数3")},
        {QT_TR_NOOP("a4"), nullptr, QT_TR_NOOP("电离层延迟改正模型参数4")},
        {QT_TR_NOOP("a5"), nullptr, QT_TR_NOOP("电离层延迟改正模型参数5")},
        {QT_TR_NOOP("a6"), nullptr, QT_TR_NOOP("电离层延迟改正模型参数6")},
        {QT_TR_NOOP("a7"), nullptr, QT_TR_NOOP("电离层延迟改正模型参数7")},
        {QT_TR_NOOP("a8"), nullptr, QT_TR_NOOP("电离层延迟改正模型参数8")},
        {QT_TR_NOOP("a9"), nullptr, QT_TR_NOOP("电离层延迟改正模型参数9")},
        {QT_TR_NOOP("reserved"), nullptr, QT_TR_NOOP("解出电离层参数时的时间对应的GPS 周")},
    };
    // Seven characters compared, as on the GPS page: intentional.
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, fieldRows(rows));
    return spec;
}

Bd3ionTable::Bd3ionTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

// SPDX-License-Identifier: BSD-3-Clause
#include "galiontable.h"

#include "plainrecordform.h"

const FieldTableSpec &Galiontable::pageSpec()
{
    // "a0" is described as the first-order term and so on, one order up from the
    // label: the receiver's documentation has it so, kept on purpose.
    static const FieldRow rows[] = {
        {QT_TR_NOOP("a0"), nullptr, QT_TR_NOOP("Alpha 参数的 1 阶项")},
        {QT_TR_NOOP("a1"), nullptr, QT_TR_NOOP("Alpha 参数的 2 阶项")},
        {QT_TR_NOOP("a2"), nullptr, QT_TR_NOOP("Alpha 参数的 3 阶项")},
        {QT_TR_NOOP("SF1"), nullptr, QT_TR_NOOP("Region 1 的电离层干扰标志")},
        {QT_TR_NOOP("SF2"), nullptr, QT_TR_NOOP("Region 2 的电离层干扰标志")},
        {QT_TR_NOOP("SF3"), nullptr, QT_TR_NOOP("Region 3 的电离层干扰标志")},
        {QT_TR_NOOP("SF4"), nullptr, QT_TR_NOOP("Region 4 的电离层干扰标志")},
        {QT_TR_NOOP("SF5"), nullptr, QT_TR_NOOP("Region 5 的电离层干扰标志")},
    };
    // Seven characters compared, as on the GPS page: intentional.
    static const FieldTableSpec spec = plainRecordPage(staticMetaObject, fieldRows(rows));
    return spec;
}

Galiontable::Galiontable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

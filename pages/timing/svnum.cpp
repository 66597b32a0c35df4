// SPDX-License-Identifier: BSD-3-Clause
#include "svnum.h"

const FieldTableSpec &svnum::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("gpsSvNum"), nullptr, QT_TR_NOOP("gps系统搜星数")},
        {QT_TR_NOOP("bdsSvNum"), nullptr, QT_TR_NOOP("bds系统搜星数")},
        {QT_TR_NOOP("galSvNum"), nullptr, QT_TR_NOOP("gal系统搜星数")},
        {QT_TR_NOOP("gloSvNum"), nullptr, QT_TR_NOOP("glo系统搜星数")},
        {QT_TR_NOOP("qzsSvNum"), nullptr, QT_TR_NOOP("qzs系统搜星数")},
    };
    // Each shown count is followed by a field this page does not show, so the rows
    // take fields 1, 3, 5, 7 and 9 with no count test; rows past a short sentence's
    // fields keep their text. Compared from index 3, leaving "SV" unexamined.
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows)).uncheckedFieldsEvery(2);
    return spec;
}

svnum::svnum(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

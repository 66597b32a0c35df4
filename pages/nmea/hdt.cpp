// SPDX-License-Identifier: BSD-3-Clause
#include "hdt.h"

const FieldTableSpec &HDT::pageSpec()
{
    static const FieldRow rows[] = {
        {QT_TR_NOOP("heading"), "", QT_TR_NOOP("航向角，deg")},
        {QT_TR_NOOP("TRUE"), "", QT_TR_NOOP("真北")},
    };
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, fieldRows(rows))
            .lastFieldOptional();
    return spec;
}

HDT::HDT(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

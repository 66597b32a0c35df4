// SPDX-License-Identifier: BSD-3-Clause
#include "gat.h"

#include "bdt.h"

const FieldTableSpec &GAT::pageSpec()
{
    static const FieldTableSpec spec =
        FieldTableSpec::sentence(staticMetaObject, BDT::interchangedSystemTimeRows())
            .replaceRow(3, {QT_TR_NOOP("GalTotalSec"), nullptr, QT_TR_NOOP("Galileo 系统总秒数")})
            .lastFieldOptional();
    return spec;
}

GAT::GAT(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : FieldTablePage(pageSpec(), parent, introStr, treeParent)
{
}

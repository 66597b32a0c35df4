// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "doppage.h"

// PSRDOP: the dilution of precision of the pseudorange solution and the PRNs it used.
class PsrdopTable : public DopPage
{
    Q_OBJECT
public:
    Q_INVOKABLE PsrdopTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

    // The whole page, shared word for word by the PSRDOP2 page.
    static DopPageSpec dopSpec(const QMetaObject &page);

private:
    static const DopPageSpec &pageSpec();
};

// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "listpage.h"

// RTKDATA: the RTK solution's details, then its other satellites with their
// ambiguities and residuals.
class RtkdatTable : public ListPage
{
    Q_OBJECT
public:
    Q_INVOKABLE RtkdatTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const ListPageSpec &pageSpec();
};

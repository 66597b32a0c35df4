// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "listpage.h"

// RANGEH: the high-precision observations, shown as RANGE is.
class RangehTable : public ListPage
{
    Q_OBJECT
public:
    Q_INVOKABLE RangehTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const ListPageSpec &pageSpec();
};

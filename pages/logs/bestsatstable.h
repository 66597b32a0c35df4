// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "listpage.h"

// BESTSATS: the satellites of the best solution and the signals it used.
class BestsatsTable : public ListPage
{
    Q_OBJECT
public:
    Q_INVOKABLE BestsatsTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const ListPageSpec &pageSpec();
};

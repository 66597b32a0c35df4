// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "listpage.h"

// SATXYZ2: the satellites used, with their ECEF coordinates, clock and delays.
class Satxyz2Table : public ListPage
{
    Q_OBJECT
public:
    Q_INVOKABLE Satxyz2Table(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const ListPageSpec &pageSpec();
};

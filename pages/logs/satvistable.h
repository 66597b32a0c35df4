// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "listpage.h"

// SATVIS: the satellites in view with their elevation, azimuth and Doppler.
class SATVISTable : public ListPage
{
    Q_OBJECT
public:
    Q_INVOKABLE SATVISTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const ListPageSpec &pageSpec();
};

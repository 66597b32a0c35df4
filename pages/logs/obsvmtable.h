// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "listpage.h"

// OBSVM: the observations with C/No in hundredths of dB-Hz.
class ObsvmTable : public ListPage
{
    Q_OBJECT
public:
    Q_INVOKABLE ObsvmTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const ListPageSpec &pageSpec();
};

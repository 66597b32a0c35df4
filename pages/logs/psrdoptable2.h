// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "doppage.h"

// PSRDOP2: the PSRDOP page for the receiver's second DOP log.
class PsrdopTable2 : public DopPage
{
    Q_OBJECT
public:
    Q_INVOKABLE PsrdopTable2(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const DopPageSpec &pageSpec();
};

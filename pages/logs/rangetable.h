// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "listpage.h"

// RANGE: one row per tracked signal, with its pseudorange, carrier phase, Doppler and C/No.
class RangeTable : public ListPage
{
    Q_OBJECT
public:
    Q_INVOKABLE RangeTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

    // The observation columns, shared word for word by the RANGEH page.
    static QVector<ListColumn> observationColumns();

private:
    static const ListPageSpec &pageSpec();
};

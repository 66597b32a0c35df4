#pragma once

#include "fieldtablepage.h"

// BESTNAV and BESTNAVH: the best position followed by the best velocity. One class
// serves both logs; the catalogue label picks the header an instance takes.
class BestnavTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE BestnavTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

private:
    static const FieldTableSpec &pageSpec();
};

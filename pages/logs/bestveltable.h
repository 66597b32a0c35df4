#pragma once

#include "fieldtablepage.h"

// BESTVEL: the receiver's best available velocity.
class BestvelTable : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE BestvelTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

    // The eight velocity rows, shared by the PSRVEL and TDIFVEL pages.
    static QVector<FieldRow> velocityRows();

private:
    static const FieldTableSpec &pageSpec();
};

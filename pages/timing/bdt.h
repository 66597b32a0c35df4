// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtablepage.h"

class QEvent;

// $BDSTIME: BDS time, its relation to GPS time and the leap second.
class BDT : public FieldTablePage
{
    Q_OBJECT
public:
    Q_INVOKABLE BDT(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);

    // This page's rows with the descriptions of the first ("TimeQuality") and last
    // ("lsfFlag") rows interchanged. The GPS, Galileo and GLONASS time pages show them
    // so on purpose (keep the crossing); they adjust or shorten the rest.
    static QVector<FieldRow> interchangedSystemTimeRows();

protected:
    // This page alone follows the application's language-change event.
    void changeEvent(QEvent *event) override;

private:
    // The eight rows of a satellite-system time sentence.
    static QVector<FieldRow> systemTimeRows();
    static const FieldTableSpec &pageSpec();
};

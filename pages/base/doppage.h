// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "msgbasewidget.h"
#include "tablecells.h"

#include <QVector>

class QMetaObject;
class QTableWidget;
struct PageRoute;

// A column of the DOP pages' satellite table: the PRNs of one constellation.
struct PrnColumn
{
    const char *header;
    int firstPrn;
    int lastPrn;
};

struct DopPageSpec
{
    const char *context;
    QVector<FieldRow> parameters;
    QVector<PrnColumn> prnColumns;
    int prnRows;
};

// A dilution-of-precision log: fixed parameters in a four-column table, then the
// PRNs of the satellites used, sorted into one column per constellation.
class DopPage : public MsgBaseWidget
{
    Q_OBJECT
public:
    DopPage(const DopPageSpec &spec, QWidget *parent, const QString &introStr, QTreeWidgetItem *treeParent);
    ~DopPage() override;

    bool parse(QString line) override;
    bool parseRawData(QByteArray) override { return false; }

public slots:
    void onRetranslateUI() override;

private:
    int prnColumn(int prn) const;

    const DopPageSpec &m_spec;
    const PageRoute &m_route;
    QTableWidget *m_prnTable = nullptr;
    FieldBlock m_parameters;
    FieldViews m_fields;
};

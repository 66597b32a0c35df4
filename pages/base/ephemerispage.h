// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtext.h"
#include "msgbasewidget.h"

#include <QVector>

class QMetaObject;
class QTableWidget;
struct PageRoute;

// What an ephemeris page is: its log, its columns (field k of the log in column k)
// and how many satellites of one burst it shows.
class EphemerisSpec
{
public:
    static EphemerisSpec log(const QMetaObject &page, QVector<const char *> columns);

    // Rows made by the constructor, and the satellites of one burst shown in them.
    EphemerisSpec &rows(int rowCount, int rowCap)
    {
        m_rows = rowCount;
        m_rowCap = rowCap;
        return *this;
    }
    // The burst ends at a line that lacks the header anywhere in it, rather than at
    // one that does not start with it.
    EphemerisSpec &burstEndsWithoutHeaderAnywhere() { m_headerAnywhere = true; return *this; }

private:
    friend class EphemerisPage;
    EphemerisSpec(const QMetaObject &page, QVector<const char *> columns);

    const char *m_context;
    QVector<const char *> m_columns;
    int m_rows = 0;
    int m_rowCap = 0;
    bool m_headerAnywhere = false;
};

// The receiver sends one ephemeris log per satellite, as a burst of consecutive
// lines: the page shows one row per satellite of the latest burst. Any other line
// reaching the page ends the burst, and the next burst's first line wipes the rows.
class EphemerisPage : public MsgBaseWidget
{
    Q_OBJECT
public:
    EphemerisPage(const EphemerisSpec &spec, QWidget *parent, const QString &introStr, QTreeWidgetItem *treeParent);
    ~EphemerisPage() override;

    bool parse(QString line) override;
    bool parseRawData(QByteArray) override { return false; }

public slots:
    void onRetranslateUI() override;

private:
    const EphemerisSpec &m_spec;
    const PageRoute &m_route;
    QTableWidget *m_table = nullptr;
    FieldViews m_fields;
    int m_filled = 0;
    bool m_burstOpen = false;
    bool m_columnsFitted = false;
};

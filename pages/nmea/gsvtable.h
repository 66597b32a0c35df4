// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "fieldtext.h"
#include "msgbasewidget.h"

#include <QVector>

#include <array>
#include <memory>

class QTimer;
struct PageRoute;

// GSV: the satellites in view of every system in one list. A report is spread over
// several sentences of up to four satellites, and each system's talker reports in
// turn, so unlike the other NMEA pages this one keeps state between lines.
class GSVTable : public MsgBaseWidget
{
    Q_OBJECT
public:
    Q_INVOKABLE GSVTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);
    ~GSVTable() override;

    bool parse(QString line) override;
    bool parseRawData(QByteArray) override { return false; }

public slots:
    void onRetranslateUI() override;
    // Drops every signal no sentence has reported since the previous call, and a
    // satellite with it once none of its signals is left.
    void clearTimeOut();

private:
    static constexpr int kSystemCount = 6;
    static constexpr int kMaxSatellites = 50;
    static constexpr int kMaxSignals = 5;

    struct Signal
    {
        int id;
        double cn0; // DBL_MAX: tracked, no measurement
        bool reported;
    };
    struct Satellite
    {
        uint prn;
        double elevation; // -1.0 when the sentence left it empty
        double azimuth;
        std::array<Signal, kMaxSignals> signalSlots;
        int signalCount;
        // PRN, elevation, azimuth and C/N0 as shown, formatted when they change so
        // that rebuilding the table formats nothing.
        std::array<QString, 4> texts;
    };
    struct SystemStore
    {
        std::array<Satellite, kMaxSatellites> satellites;
        int count = 0;
    };
    struct Form;

    void storeGroups(SystemStore &store, int signalId, int fieldCount);
    static void formatTexts(Satellite &satellite);
    // Rewrites the table from the stores. When only `system` changed and no row count
    // did, only that system's rows are rewritten: the other rows already show it.
    void rebuildTable(int system = -1);

    const PageRoute &m_route;
    std::unique_ptr<Form> m_form;
    std::array<SystemStore, kSystemCount> m_stores;
    QTimer *m_staleTimer = nullptr;
    FieldViews m_fields;
    // The system each table row shows, so a row that keeps its system keeps its
    // name cell and colour untouched.
    QVector<int> m_rowSystems;
};

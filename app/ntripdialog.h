// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ntripclient.h"
#include "receivertypes.h"

#include <QAbstractTableModel>
#include <QDialog>
#include <QSortFilterProxyModel>

#include <functional>

class QCheckBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTableView;

// A caster's mountpoints with their distance from the receiver; Qt::UserRole gives the
// values to sort by (unknown distances last).
class MountpointModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { MountpointColumn, IdentifierColumn, FormatColumn, DetailsColumn, SystemsColumn,
                  PositionColumn, DistanceColumn, NmeaColumn, ColumnCount };

    explicit MountpointModel(QObject *parent = nullptr) : QAbstractTableModel(parent) {}

    // lat/lon: where the receiver is (unknown: no distances).
    void setMountpoints(const QList<NtripMountpoint> &mountpoints, double lat, double lon);
    const NtripMountpoint &mountpointAt(int row) const { return m_mountpoints.at(row); }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QList<NtripMountpoint> m_mountpoints;
    QVector<double> m_distancesKm;
};

// Where corrections come from: the caster, the user and password (kept only when the
// user asks), the mountpoint, typed or picked from the caster's sourcetable, and how
// often the receiver's position goes to the caster.
class NtripDialog : public QDialog
{
    Q_OBJECT
public:
    // fix: the receiver's position, for the distance to each mountpoint.
    explicit NtripDialog(std::function<FixInfo()> fix, QWidget *parent = nullptr);

    NtripAddress address() const;
    int ggaIntervalSeconds() const;
    // The last choices, remembered in the settings; the password only when ticked.
    void loadSettings();
    void saveSettings() const;
    void fetchSourcetable();
    const MountpointModel &mountpoints() const { return m_model; }

    void accept() override;

private:
    std::function<FixInfo()> m_fix;
    QLineEdit *m_host;
    QSpinBox *m_port;
    QLineEdit *m_user;
    QLineEdit *m_password;
    QCheckBox *m_rememberPassword;
    QLineEdit *m_mountpoint;
    QSpinBox *m_ggaSeconds;
    QLabel *m_status;
    QTableView *m_table;
    MountpointModel m_model;
    QSortFilterProxyModel m_sorted;
    NtripClient m_probe;
};

// SPDX-License-Identifier: BSD-3-Clause
#include "ntripdialog.h"

#include "tablestyle.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>

#include <cmath>

namespace {

const QString kGroup = QStringLiteral("ntrip");

QString position(const NtripMountpoint &mountpoint)
{
    return mountpoint.hasPosition()
        ? QStringLiteral("%1, %2").arg(mountpoint.latitude, 0, 'f', 2).arg(mountpoint.longitude, 0, 'f', 2)
        : QString();
}

} // namespace

void MountpointModel::setMountpoints(const QList<NtripMountpoint> &mountpoints, double lat, double lon)
{
    beginResetModel();
    m_mountpoints = mountpoints;
    m_distancesKm.clear();
    for (const NtripMountpoint &mountpoint : mountpoints)
        m_distancesKm << distanceKm(mountpoint, lat, lon);
    endResetModel();
}

int MountpointModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_mountpoints.size();
}

int MountpointModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant MountpointModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_mountpoints.size())
        return {};
    const NtripMountpoint &mountpoint = m_mountpoints.at(index.row());
    const double distance = m_distancesKm.at(index.row());
    if (index.column() == DistanceColumn) {
        if (role == Qt::UserRole)
            return std::isnan(distance) ? std::numeric_limits<double>::max() : distance;
        if (role == Qt::TextAlignmentRole)
            return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        if (role == Qt::DisplayRole)
            return std::isnan(distance) ? QString() : QString::number(distance, 'f', 1);
        return {};
    }
    if (role != Qt::DisplayRole && role != Qt::UserRole)
        return {};
    switch (index.column()) {
    case MountpointColumn: return mountpoint.mountpoint;
    case IdentifierColumn: return mountpoint.identifier;
    case FormatColumn: return mountpoint.format;
    case DetailsColumn: return mountpoint.formatDetails;
    case SystemsColumn: return mountpoint.navigationSystem;
    case PositionColumn: return position(mountpoint);
    default: return mountpoint.nmeaNeeded ? tr("yes") : tr("no");
    }
}

QVariant MountpointModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case MountpointColumn: return tr("Mountpoint");
    case IdentifierColumn: return tr("Identifier");
    case FormatColumn: return tr("Format");
    case DetailsColumn: return tr("Messages");
    case SystemsColumn: return tr("Systems");
    case PositionColumn: return tr("Position");
    case DistanceColumn: return tr("Distance km");
    default: return tr("Needs GGA");
    }
}

NtripDialog::NtripDialog(std::function<FixInfo()> fix, QWidget *parent)
    : QDialog(parent)
    , m_fix(std::move(fix))
    , m_host(new QLineEdit(this))
    , m_port(new QSpinBox(this))
    , m_user(new QLineEdit(this))
    , m_password(new QLineEdit(this))
    , m_rememberPassword(new QCheckBox(tr("Remember the password"), this))
    , m_mountpoint(new QLineEdit(this))
    , m_ggaSeconds(new QSpinBox(this))
    , m_status(new QLabel(this))
    , m_table(new QTableView(this))
{
    setWindowTitle(tr("Corrections from an NTRIP caster"));
    m_port->setRange(1, 65535);
    m_port->setValue(2101);
    m_password->setEchoMode(QLineEdit::Password);
    m_ggaSeconds->setRange(0, 3600);
    m_ggaSeconds->setSuffix(tr(" s"));
    m_ggaSeconds->setSpecialValueText(tr("never"));
    m_ggaSeconds->setValue(10);
    m_ggaSeconds->setToolTip(tr("How often the receiver's position (GGA) goes to the caster; "
                                "virtual and nearest-base mountpoints need it"));

    auto *casterRow = new QHBoxLayout;
    casterRow->addWidget(m_host, 1);
    casterRow->addWidget(new QLabel(tr("Port"), this));
    casterRow->addWidget(m_port);
    auto *mountpointRow = new QHBoxLayout;
    auto *fetch = new QPushButton(tr("Get mountpoints"), this);
    mountpointRow->addWidget(m_mountpoint, 1);
    mountpointRow->addWidget(fetch);
    auto *form = new QFormLayout;
    form->addRow(tr("Caster"), casterRow);
    form->addRow(tr("User"), m_user);
    form->addRow(tr("Password"), m_password);
    form->addRow(QString(), m_rememberPassword);
    form->addRow(tr("Mountpoint"), mountpointRow);
    form->addRow(tr("Send position every"), m_ggaSeconds);

    m_sorted.setSourceModel(&m_model);
    m_sorted.setSortRole(Qt::UserRole);
    m_table->setModel(&m_sorted);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(MountpointModel::DistanceColumn, Qt::AscendingOrder);
    setUpTrafficTable(m_table);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    setColumnsWide(m_table, {QStringLiteral("MOUNTPOINT00"), QStringLiteral("Identifier here"),
                             QStringLiteral("RTCM 3.2"), QStringLiteral("1005(10),1077(1)"),
                             QStringLiteral("GPS+GLO+GAL+BDS"), QStringLiteral("-00.00, -000.00"),
                             QStringLiteral("00000.0"), QString()});
    m_table->setMinimumSize(720, 200);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Start"));
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_status);
    layout->addWidget(buttons);

    connect(fetch, &QPushButton::clicked, this, &NtripDialog::fetchSourcetable);
    connect(buttons, &QDialogButtonBox::accepted, this, &NtripDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &NtripDialog::reject);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex &current) {
        if (current.isValid())
            m_mountpoint->setText(m_model.mountpointAt(m_sorted.mapToSource(current).row()).mountpoint);
    });
    connect(&m_probe, &NtripClient::sourcetableReceived, this, [this](const QList<NtripMountpoint> &mountpoints) {
        const FixInfo fix = m_fix();
        m_model.setMountpoints(mountpoints, fix.lat, fix.lon);
        m_status->setText(tr("%n mountpoint(s)", nullptr, mountpoints.size()));
    });
    connect(&m_probe, &NtripClient::stateChanged, this, [this](NtripClient::State state, const QString &text) {
        if (state == NtripClient::State::Failed || state == NtripClient::State::Retrying)
            m_probe.stop(); // a sourcetable is asked for once
        if (state != NtripClient::State::Idle)
            m_status->setText(text);
    });
    loadSettings();
}

NtripAddress NtripDialog::address() const
{
    NtripAddress address;
    address.host = m_host->text().trimmed();
    address.port = quint16(m_port->value());
    address.user = m_user->text();
    address.password = m_password->text();
    address.mountpoint = m_mountpoint->text().trimmed();
    return address;
}

int NtripDialog::ggaIntervalSeconds() const
{
    return m_ggaSeconds->value();
}

void NtripDialog::fetchSourcetable()
{
    if (m_host->text().trimmed().isEmpty()) {
        m_status->setText(tr("Name the caster first"));
        return;
    }
    m_probe.stop();
    m_probe.setAddress(address());
    m_probe.fetchSourcetable();
}

void NtripDialog::accept()
{
    if (m_host->text().trimmed().isEmpty() || m_mountpoint->text().trimmed().isEmpty()) {
        m_status->setText(tr("A caster and a mountpoint are needed"));
        return;
    }
    m_probe.stop();
    saveSettings();
    QDialog::accept();
}

void NtripDialog::loadSettings()
{
    QSettings settings;
    settings.beginGroup(kGroup);
    m_host->setText(settings.value(QStringLiteral("host")).toString());
    m_port->setValue(settings.value(QStringLiteral("port"), 2101).toInt());
    m_user->setText(settings.value(QStringLiteral("user")).toString());
    m_mountpoint->setText(settings.value(QStringLiteral("mountpoint")).toString());
    m_ggaSeconds->setValue(settings.value(QStringLiteral("ggaSeconds"), 10).toInt());
    m_rememberPassword->setChecked(settings.value(QStringLiteral("rememberPassword"), false).toBool());
    m_password->setText(m_rememberPassword->isChecked() ? settings.value(QStringLiteral("password")).toString()
                                                        : QString());
}

void NtripDialog::saveSettings() const
{
    QSettings settings;
    settings.beginGroup(kGroup);
    settings.setValue(QStringLiteral("host"), m_host->text().trimmed());
    settings.setValue(QStringLiteral("port"), m_port->value());
    settings.setValue(QStringLiteral("user"), m_user->text());
    settings.setValue(QStringLiteral("mountpoint"), m_mountpoint->text().trimmed());
    settings.setValue(QStringLiteral("ggaSeconds"), m_ggaSeconds->value());
    settings.setValue(QStringLiteral("rememberPassword"), m_rememberPassword->isChecked());
    // Only a password the user asked to keep is written anywhere.
    if (m_rememberPassword->isChecked())
        settings.setValue(QStringLiteral("password"), m_password->text());
    else
        settings.remove(QStringLiteral("password"));
}

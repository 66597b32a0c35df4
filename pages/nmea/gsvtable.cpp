// SPDX-License-Identifier: BSD-3-Clause
#include "gsvtable.h"

#include "linechecksum.h"
#include "routetable.h"

#include <QBoxLayout>
#include <QColor>
#include <QFont>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QTimer>

#include <algorithm>

#include <cfloat>

namespace {

struct SystemInfo
{
    const char *name;
    uchar red, green, blue;
};

// Rows are listed system by system in this order, each in its own colour.
const SystemInfo kSystems[] = {
    {"BDS", 255, 222, 189},
    {"GPS", 205, 255, 205},
    {"GLO", 189, 222, 255},
    {"GAL", 255, 255, 127},
    {"QZSS", 189, 255, 127},
    {"NAVIC", 205, 127, 255},
};

struct Talker
{
    const char *start; // the first six characters of the sentence
    int system;        // index into kSystems
};

// Only talkers that name one system are stored. The combined "$GN" talker (and any
// other) is taken but not stored: a GSV sentence carries no system id, and the PRN
// ranges that would tell systems apart differ between NMEA versions and receivers,
// so guessing would put satellites into another system's rows.
const Talker kTalkers[] = {
    {"$BDGSV", 0}, {"$GBGSV", 0}, {"$GPGSV", 1}, {"$GLGSV", 2},
    {"$GAGSV", 3}, {"$GQGSV", 4}, {"$GIGSV", 5},
};

constexpr double kNoAngle = -1.0;
constexpr double kNoCn0 = DBL_MAX;

// GSV normally comes once a second and seldom less often than every 5 s. Sweeping
// every 10 s keeps a satellite through a late report, yet a list whose sentences
// stopped empties within 20 s. It also retires what a newer receiver never wipes
// (its sentences all carry a signal id) and systems that lost their sky: a GSV
// with no satellites carries no group and is refused.
constexpr int kStaleSweepMs = 10000;

double angleOrAbsent(QStringView field)
{
    bool ok = false;
    const double value = field.toDouble(&ok);
    return ok ? value : kNoAngle;
}

// Whole numbers as sent ("45"), fractions where a receiver sends them ("45.5").
QString numberText(double value)
{
    // Receivers send whole degrees and dB-Hz nearly always; those format as integers
    // without the general double conversion, which dominated the page's cost.
    if (value > -1e9 && value < 1e9 && double(int(value)) == value)
        return QString::number(int(value));
    return QString::number(value, 'g', 8);
}

} // namespace

struct GSVTable::Form
{
    QVBoxLayout *verticalLayout = nullptr;
    QLabel *label = nullptr;
    QHBoxLayout *horizontalLayout = nullptr;
    QLabel *label_2 = nullptr;
    QLineEdit *lineEdit = nullptr;
    QTableWidget *tableWidget = nullptr;
};

GSVTable::GSVTable(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : MsgBaseWidget(parent, introStr, treeParent)
    , m_route(routeOfPage(staticMetaObject.className(), introStr))
    , m_form(new Form)
{
    resize(400, 300);
    setFont(QFont(QStringLiteral("Times New Roman")));
    Form &form = *m_form;
    form.verticalLayout = new QVBoxLayout(this);
    form.verticalLayout->setObjectName(QStringLiteral("verticalLayout"));
    form.label = new QLabel(this);
    form.label->setObjectName(QStringLiteral("label"));
    form.verticalLayout->addWidget(form.label);

    form.horizontalLayout = new QHBoxLayout;
    form.horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
    form.label_2 = new QLabel(this);
    form.label_2->setObjectName(QStringLiteral("label_2"));
    form.horizontalLayout->addWidget(form.label_2);
    form.lineEdit = new QLineEdit(this);
    form.lineEdit->setObjectName(QStringLiteral("lineEdit"));
    form.lineEdit->setReadOnly(true);
    form.horizontalLayout->addWidget(form.lineEdit);
    form.horizontalLayout->addStretch();
    form.verticalLayout->addLayout(form.horizontalLayout);

    form.tableWidget = new QTableWidget(this);
    form.tableWidget->setObjectName(QStringLiteral("tableWidget"));
    form.tableWidget->setColumnCount(5);
    for (int column = 0; column < 5; ++column)
        form.tableWidget->setHorizontalHeaderItem(column, new QTableWidgetItem);
    form.tableWidget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    form.tableWidget->horizontalHeader()->setStretchLastSection(true);
    form.verticalLayout->addWidget(form.tableWidget);

    onRetranslateUI();

    m_staleTimer = new QTimer(this);
    m_staleTimer->setInterval(kStaleSweepMs);
    connect(m_staleTimer, &QTimer::timeout, this, &GSVTable::clearTimeOut);
}

GSVTable::~GSVTable() = default;

void GSVTable::onRetranslateUI()
{
    setWindowTitle(tr("Form"));
    m_form->label->setText(tr("<html><head/><body><p>每次传送最多为4颗卫星，传送的语句总数和传送的语句号在前两个字段中显示</p></body></html>"));
    m_form->label_2->setText(tr("<html><head/><body><p>可视卫星总数：</p></body></html>"));
    static const char *const kHeaders[] = {
        QT_TR_NOOP("卫星系统"), QT_TR_NOOP("卫星号"), QT_TR_NOOP("高度角[deg]"),
        QT_TR_NOOP("方位角[deg]"), QT_TR_NOOP("C/N0[dBHz]"),
    };
    for (int column = 0; column < 5; ++column)
        m_form->tableWidget->horizontalHeaderItem(column)->setText(tr(kHeaders[column]));
    emit retranslate();
}

bool GSVTable::parse(QString line)
{
    if (!m_route.matchesHeader(line) || !checkLineChecksum(line))
        return false;
    if (!isVisible())
        return true;

    splitFields(line, m_fields);
    int fieldCount = m_fields.size();
    // One to four satellites of four fields after the address, the two sentence
    // numbers and the satellite count, then the checksum; one more field is the
    // signal id of NMEA 4.10 and later.
    const int extra = (fieldCount - 9) % 4;
    if (fieldCount < 9 || fieldCount > 22 || extra > 1)
        return false;
    int signalId = 0;
    if (extra == 1) {
        signalId = int(m_fields.at(fieldCount - 2).toUInt(nullptr, 16));
        --fieldCount;
    }

    const Talker *talker = nullptr;
    for (const Talker &candidate : kTalkers) {
        if (textAtEquals(line, 0, 6, QLatin1String(candidate.start))) {
            talker = &candidate;
            break;
        }
    }
    if (!talker)
        return true;

    SystemStore &store = m_stores[talker->system];
    // A new report of the whole system starts with sentence 1; sentences carrying a
    // signal id add that signal to satellites already listed.
    if (signalId == 0 && m_fields.at(2).toInt() == 1)
        store.count = 0;
    const int countBefore = store.count;
    storeGroups(store, signalId, fieldCount);
    // The sweep runs while anything is listed; restarting it on every sentence
    // would postpone it for ever on a live stream.
    if (!m_staleTimer->isActive())
        m_staleTimer->start();
    rebuildTable(store.count == countBefore ? talker->system : -1);
    return true;
}

void GSVTable::storeGroups(SystemStore &store, int signalId, int fieldCount)
{
    for (int k = 5; k + 3 < fieldCount; k += 4) {
        bool ok = false;
        const uint prn = m_fields.at(k - 1).toUInt(&ok);
        // Some receivers pad the last sentence with empty groups.
        if (!ok || prn == 0)
            continue;

        Satellite *satellite = nullptr;
        for (int i = 0; i < store.count; ++i) {
            if (store.satellites[i].prn == prn) {
                satellite = &store.satellites[i];
                break;
            }
        }
        if (!satellite) {
            if (store.count == kMaxSatellites)
                continue;
            satellite = &store.satellites[store.count++];
            satellite->prn = prn;
            satellite->signalCount = 0;
        }

        const QStringView elevation = m_fields.at(k);
        const bool placed = !elevation.isEmpty();
        satellite->elevation = placed ? angleOrAbsent(elevation) : kNoAngle;
        satellite->azimuth = placed ? angleOrAbsent(m_fields.at(k + 1)) : kNoAngle;

        Signal *slot = nullptr;
        for (int j = 0; j < satellite->signalCount; ++j) {
            if (satellite->signalSlots[j].id == signalId) {
                slot = &satellite->signalSlots[j];
                break;
            }
        }
        if (!slot) {
            if (satellite->signalCount == kMaxSignals)
                continue;
            slot = &satellite->signalSlots[satellite->signalCount++];
            slot->id = signalId;
        }
        bool measured = false;
        const double cn0 = m_fields.at(k + 2).toDouble(&measured);
        slot->cn0 = measured ? cn0 : kNoCn0;
        slot->reported = true;
        formatTexts(*satellite);
    }
}

void GSVTable::formatTexts(Satellite &satellite)
{
    // Every tracked signal's C/N0 in the order the signals were first reported
    // ("45/38"): what a dual-frequency receiver is checked by. Signals tracked
    // without a measurement add nothing; none leaves the cell empty.
    QString cn0;
    for (int j = 0; j < satellite.signalCount; ++j) {
        const double value = satellite.signalSlots[j].cn0;
        if (value == kNoCn0)
            continue;
        if (!cn0.isEmpty())
            cn0 += QLatin1Char('/');
        cn0 += numberText(value);
    }
    satellite.texts = {
        QString::number(satellite.prn),
        satellite.elevation == kNoAngle ? QString() : numberText(satellite.elevation),
        satellite.azimuth == kNoAngle ? QString() : numberText(satellite.azimuth),
        cn0,
    };
}

void GSVTable::clearTimeOut()
{
    bool changed = false;
    bool anyLeft = false;
    for (SystemStore &store : m_stores) {
        int kept = 0;
        for (int i = 0; i < store.count; ++i) {
            Satellite &satellite = store.satellites[i];
            int keptSignals = 0;
            for (int j = 0; j < satellite.signalCount; ++j) {
                Signal signal = satellite.signalSlots[j];
                if (!signal.reported)
                    continue;
                signal.reported = false;
                satellite.signalSlots[keptSignals++] = signal;
            }
            if (keptSignals != satellite.signalCount) {
                changed = true;
                satellite.signalCount = keptSignals;
                formatTexts(satellite);
            }
            if (keptSignals > 0)
                store.satellites[kept++] = satellite;
        }
        store.count = kept;
        anyLeft = anyLeft || kept > 0;
    }
    if (!anyLeft)
        m_staleTimer->stop();
    if (changed)
        rebuildTable();
}

void GSVTable::rebuildTable(int changedSystem)
{
    QTableWidget *table = m_form->tableWidget;
    int total = 0;
    for (const SystemStore &store : m_stores)
        total += store.count;
    if (total != table->rowCount())
        changedSystem = -1;
    table->setRowCount(total);
    const int knownRows = qMin(int(m_rowSystems.size()), total);
    m_rowSystems.resize(total);
    std::fill(m_rowSystems.begin() + knownRows, m_rowSystems.end(), -1);
    m_form->lineEdit->setText(QString::number(total));

    // Items are reused from one rebuild to the next; only new rows get new ones.
    auto cell = [table](int row, int column) {
        QTableWidgetItem *item = table->item(row, column);
        if (!item) {
            item = new QTableWidgetItem;
            item->setTextAlignment(Qt::AlignCenter);
            table->setItem(row, column, item);
        }
        return item;
    };

    // One change notice for the whole rewrite instead of one per cell: the view
    // repaints once, and a rewrite of rows that shifted costs a fraction as much.
    QAbstractItemModel *model = table->model();
    const QSignalBlocker quietModel(model);
    int row = 0;
    for (int system = 0; system < kSystemCount; ++system) {
        const SystemInfo &info = kSystems[system];
        const QBrush colour(QColor(info.red, info.green, info.blue));
        const QString systemName = QLatin1String(info.name);
        const SystemStore &store = m_stores[system];
        if (changedSystem >= 0 && system != changedSystem) {
            row += store.count;
            continue;
        }
        for (int i = 0; i < store.count; ++i, ++row) {
            const Satellite &satellite = store.satellites[i];
            const QString *texts = satellite.texts.data();
            const bool sameSystem = m_rowSystems[row] == system;
            m_rowSystems[row] = system;
            if (!sameSystem) {
                QTableWidgetItem *systemItem = cell(row, 0);
                systemItem->setText(systemName);
                systemItem->setBackground(colour);
            }
            for (int column = 1; column < 5; ++column) {
                QTableWidgetItem *item = cell(row, column);
                item->setText(texts[column - 1]);
                if (!sameSystem)
                    item->setBackground(colour);
            }
        }
    }
    model->blockSignals(false);
    if (total > 0)
        emit model->dataChanged(model->index(0, 0), model->index(total - 1, 4));
}

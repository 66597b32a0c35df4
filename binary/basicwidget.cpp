// SPDX-License-Identifier: BSD-3-Clause
#include "basicwidget.h"

#include "annotatedlocker.h"
#include "fieldtablepage.h"
#include "gnssmessagekinds.h"
#include "loadfailure.h"
#include "messagedescription.h"

#include <QComboBox>
#include <QDateTime>
#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QTreeWidgetItem>
#include <QVBoxLayout>

#include <cstring>

namespace {
// A decoder may report any count; a chunk never yields more shown records than this.
constexpr int kMaxRecordsPerChunk = 64;
constexpr Qt::Alignment kValueAlignment = Qt::AlignRight | Qt::AlignVCenter;
} // namespace

struct BasicWidget::Form
{
    QVBoxLayout *verticalLayout;
    QFrame *frame;
    QGridLayout *gridLayout;
    QLabel *label_system;
    QComboBox *comboBox_system;
    QLabel *label_decoder;
    QTableWidget *tableWidget;
};

BasicWidget::BasicWidget(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent)
    : MsgBaseWidget(parent, introStr, treeParent)
    , m_form(new Form)
    , m_nmeaItem(treeParent)
    , m_decoder(openGnssDecoder())
    , m_clock([] { return QDateTime::currentSecsSinceEpoch(); })
    , m_record(KV_GNSS_MSG_RECORD_SIZE / sizeof(quint64))
    , m_text(KV_GNSS_MSG_TEXT_SIZE)
    , m_list(KV_GNSS_MSGID_MAX)
{
    qRegisterMetaType<KV_GNSS_MSGID_T *>("KV_GNSS_MSGID_T*");

    resize(1078, 798);
    m_form->verticalLayout = new QVBoxLayout(this);
    m_form->verticalLayout->setObjectName(QStringLiteral("verticalLayout"));
    m_form->frame = new QFrame(this);
    m_form->frame->setObjectName(QStringLiteral("frame"));
    m_form->gridLayout = new QGridLayout(m_form->frame);
    m_form->gridLayout->setObjectName(QStringLiteral("gridLayout"));
    m_form->label_system = new QLabel(m_form->frame);
    m_form->label_system->setObjectName(QStringLiteral("label_system"));
    m_form->comboBox_system = new QComboBox(m_form->frame);
    m_form->comboBox_system->setObjectName(QStringLiteral("comboBox_system"));
    m_form->comboBox_system->addItems({QStringLiteral("GPS"), QStringLiteral("GLO"), QStringLiteral("GAL"),
                                       QStringLiteral("BDS"), QStringLiteral("QZSS"), QStringLiteral("NAVIC")});
    m_form->label_decoder = new QLabel(m_form->frame);
    m_form->label_decoder->setObjectName(QStringLiteral("label_decoder"));
    m_form->label_decoder->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_form->tableWidget = new QTableWidget(m_form->frame);
    m_form->tableWidget->setObjectName(QStringLiteral("tableWidget"));
    m_form->tableWidget->setColumnCount(4);
    m_form->tableWidget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_form->tableWidget->horizontalHeader()->setStretchLastSection(true);
    m_form->gridLayout->addWidget(m_form->label_system, 0, 0);
    m_form->gridLayout->addWidget(m_form->comboBox_system, 0, 1);
    m_form->gridLayout->addWidget(m_form->label_decoder, 0, 2);
    m_form->gridLayout->setColumnStretch(2, 1);
    m_form->gridLayout->addWidget(m_form->tableWidget, 1, 0, 1, 3);
    m_form->verticalLayout->addWidget(m_form->frame);
    onRetranslateUI();

    // Automatic connections: queued when the bytes come from a receiving thread, so
    // the table is only ever touched on the page's own thread.
    connect(this, &BasicWidget::sendDecodeData, this, &BasicWidget::showDecodeData, Qt::AutoConnection);
    connect(this, &BasicWidget::sendDecodeMsgList, this, &BasicWidget::showDecodeMsgList, Qt::AutoConnection);
    connect(m_form->comboBox_system, &QComboBox::currentTextChanged, this, [this] { blankValues(); });
}

BasicWidget::~BasicWidget() = default;

void BasicWidget::setLanguageFlag(int flag)
{
    m_suffix = flag ? QStringLiteral("_CH.txt") : QStringLiteral("_EN.txt");
}

void BasicWidget::setClock(std::function<qint64()> clock)
{
    AnnotatedMutexLocker<QRecursiveMutex> locker(&m_mutex);
    m_clock = std::move(clock);
}

void BasicWidget::fillMessageTree(QTreeWidgetItem *binaryItem, int mode)
{
    for (int i = 0; i < gnssMessageKindCount(); ++i) {
        const GnssMessageKind &kind = gnssMessageKinds()[i];
        QTreeWidgetItem *category = kind.family == GnssMessageKind::Nmea ? m_nmeaItem : binaryItem;
        if (kind.family == GnssMessageKind::Binary && mode != 5 && !kind.navigationOutput)
            continue;
        auto *item = new QTreeWidgetItem(category);
        item->setText(0, QLatin1String(kind.name));
        item->setForeground(0, Qt::gray);
    }
}

void BasicWidget::showMessage(const QString &name)
{
    const GnssMessageKind *kind = gnssMessageKindByName(name);
    {
        AnnotatedMutexLocker<QRecursiveMutex> locker(&m_mutex);
        m_selectedId = kind ? kind->id : 0;
        if (kind)
            m_decoder.decoder->setOutMsgId(kind->id);
    }
    if (kind) {
        // Read on every selection: the files are small, and an edited file shows
        // the next time its message is chosen.
        const QString directory =
            m_messageConfigDirectory.isEmpty() ? defaultMessageConfigDirectory() : m_messageConfigDirectory;
        const QString path = messageDescriptionPath(directory, name, m_suffix);
        if (!readMessageDescriptionHeader(m_form->tableWidget, path))
            reportLoadFailure("message description", path);
        readMessageDescriptionRows(m_form->tableWidget, path);
    }
    blankValues();
}

bool BasicWidget::parseRawData(QByteArray data)
{
    AnnotatedMutexLocker<QRecursiveMutex> locker(&m_mutex);
    GnssDecoder &decoder = *m_decoder.decoder;
    const int available = decoder.putData(reinterpret_cast<const unsigned char *>(data.constData()), data.size());

    const qint64 now = m_clock();
    if (m_lastRefresh < 0)
        m_lastRefresh = now;
    if (now - m_lastRefresh > 3) {
        m_lastRefresh = now;
        const int count = decoder.getMsgs(m_list.data());
        annotateHandOver(this);
        emit sendDecodeMsgList(count, m_list.data());
    }

    if (m_selectedId == 0 || available <= 0)
        return false;
    const int records = qMin(available, kMaxRecordsPerChunk);
    for (int i = 0; i < records; ++i) {
        if (decoder.getMsg(m_record.data(), m_selectedId) != 0)
            continue;
        m_text.front() = '\0';
        decoder.structDataToStr(m_record.data(), m_text.data(), 0);
        const QString text = QString::fromLatin1(m_text.data(), int(qstrnlen(m_text.data(), m_text.size())));
        annotateHandOver(this);
        emit sendDecodeData(text);
    }
    return true;
}

void BasicWidget::showDecodeData(QString text)
{
    annotateTakeOver(this);
    if (!isVisible())
        return;
    const GnssMessageKind *kind = gnssMessageKindById(m_selectedId);
    if (kind && kind->groupWidth > 0)
        showList(*kind, text);
    else
        showFields(text);
}

void BasicWidget::showFields(QStringView text)
{
    QTableWidget *table = m_form->tableWidget;
    const int rows = table->rowCount();
    int start = 0;
    for (int row = 0; row < rows && start <= text.size(); ++row) {
        int end = text.indexOf(QLatin1Char(','), start);
        if (end < 0)
            end = text.size();
        setValue(row, 1, text.mid(start, end - start), kValueAlignment);
        start = end + 1;
    }
}

void BasicWidget::showList(const GnssMessageKind &kind, QStringView text)
{
    m_fields.clear();
    for (int start = 0; start <= text.size();) {
        int end = text.indexOf(QLatin1Char(','), start);
        if (end < 0)
            end = text.size();
        m_fields.append(text.mid(start, end - start));
        start = end + 1;
    }

    QTableWidget *table = m_form->tableWidget;
    const QString system = m_form->comboBox_system->currentText();
    const int width = kind.groupWidth;
    const int columns = qMin(width, table->columnCount());
    int row = 0;
    // A trailing group cut short is not shown.
    for (int first = 0; first + width <= m_fields.size(); first += width) {
        if (kind.rowsBySystem && m_fields.at(first) != system)
            continue;
        if (row >= table->rowCount())
            table->setRowCount(row + 1);
        for (int column = 0; column < columns; ++column)
            setValue(row, column, m_fields.at(first + column), Qt::AlignLeft | Qt::AlignVCenter);
        ++row;
    }
    table->setRowCount(row);
}

void BasicWidget::setValue(int row, int column, QStringView text, Qt::Alignment alignment)
{
    QTableWidget *table = m_form->tableWidget;
    QTableWidgetItem *item = table->item(row, column);
    if (!item) {
        item = new QTableWidgetItem;
        item->setTextAlignment(int(alignment));
        table->setItem(row, column, item);
    }
    if (item->text() != text)
        item->setText(text.toString());
}

void BasicWidget::blankValues()
{
    QTableWidget *table = m_form->tableWidget;
    const GnssMessageKind *kind = gnssMessageKindById(m_selectedId);
    // In a list every cell is a value, and which rows exist depends on the system.
    if (kind && kind->groupWidth > 0) {
        table->setRowCount(0);
        return;
    }
    for (int row = 0; row < table->rowCount(); ++row) {
        if (QTableWidgetItem *item = table->item(row, 1))
            item->setText(QString());
    }
}

void BasicWidget::showDecodeMsgList(int count, KV_GNSS_MSGID_T *list)
{
    annotateTakeOver(this);
    QStringList names;
    {
        // The feeding thread may be refilling the list right now.
        AnnotatedMutexLocker<QRecursiveMutex> locker(&m_mutex);
        const int entries = qBound(0, count, KV_GNSS_MSGID_MAX);
        for (int i = 0; list && i < entries; ++i) {
            if (const GnssMessageKind *kind = gnssMessageKindById(list[i].msgId))
                names.append(QLatin1String(kind->name));
        }
    }
    emit sendCurMsgNameList(names);
}

void BasicWidget::onRetranslateUI()
{
    setWindowTitle(tr("Form"));
    m_form->label_system->setText(tr("系统："));
    if (m_decoder.makerLibrary)
        m_form->label_decoder->setText(tr("解码器：厂商解码库 GNSSDecode（%1）").arg(m_decoder.libraryFile));
    else if (m_decoder.failure.isEmpty())
        m_form->label_decoder->setText(tr("解码器：内置 NMEA 解码器（未找到厂商解码库 GNSSDecode）"));
    else
        m_form->label_decoder->setText(
            tr("解码器：内置 NMEA 解码器（无法使用 %1：%2）").arg(m_decoder.libraryFile, m_decoder.failure));
    // Until a message is chosen the table has the usual headers; afterwards its
    // description file's.
    if (m_selectedId == 0)
        setFieldTableHeaderTexts(m_form->tableWidget);
    emit retranslate();
}

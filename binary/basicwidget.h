// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "gnssdecode.h"
#include "gnssdecoder.h"
#include "msgbasewidget.h"

#include <QMetaType>
#include <QMutex>
#include <QStringList>
#include <QVector>
#include <functional>
#include <memory>
#include <vector>

struct GnssMessageKind;
class QComboBox;
class QLabel;
class QTableWidget;

Q_DECLARE_METATYPE(KV_GNSS_MSGID_T *)

// The one page of the binary product modes: hands the received bytes to the decoder
// (the maker's GNSSDecode library, or the built-in NMEA decoder when it is absent),
// asks it every four seconds which message kinds it has seen, and shows the fields
// of the kind chosen in the tree. The bytes may be fed from a receiving thread: the
// page's mutex serialises the decoder and its buffers, and the decoded text reaches
// the table through the page's own queued slots.
class BasicWidget : public MsgBaseWidget
{
    Q_OBJECT
public:
    Q_INVOKABLE BasicWidget(QWidget *parent, QString introStr, QTreeWidgetItem *treeParent);
    ~BasicWidget() override;

    bool parse(QString) override { return false; }
    bool parseRawData(QByteArray data) override;

    // 1 (Chinese) reads the "_CH.txt" description files, 0 the "_EN.txt" ones.
    void setLanguageFlag(int flag);
    // The folder of the description files; empty: the default one, sought at each read.
    void setMessageConfigDirectory(const QString &directory) { m_messageConfigDirectory = directory; }
    // Lists the message names: the NMEA kinds under the item given at construction,
    // the binary kinds under binaryItem. Mode 5 is the full-output product and lists
    // every binary kind; mode 4 is the navigation product, whose receiver outputs
    // only the navigation and inertial messages, so only those are listed.
    void fillMessageTree(QTreeWidgetItem *binaryItem, int mode);
    // The kind the tree names becomes the one shown: the decoder is told to output
    // it, and its description file gives the table's headers and rows.
    void showMessage(const QString &name);

    // Seconds of UTC, by default the wall clock; replays and tests pass their own.
    void setClock(std::function<qint64()> clock);

signals:
    void sendCurMsgNameList(QStringList n_curMsgNameList);
    void sendDecodeData(QString text);
    void sendDecodeMsgList(int count, KV_GNSS_MSGID_T *list);

public slots:
    void showDecodeData(QString text);
    void showDecodeMsgList(int count, KV_GNSS_MSGID_T *list);
    void onRetranslateUI() override;

private:
    struct Form;
    void blankValues();
    void showFields(QStringView text);
    void showList(const GnssMessageKind &kind, QStringView text);
    void setValue(int row, int column, QStringView text, Qt::Alignment alignment);

    std::unique_ptr<Form> m_form;
    QTreeWidgetItem *m_nmeaItem;
    GnssDecoderChoice m_decoder;
    QString m_suffix = QStringLiteral("_EN.txt");
    QString m_messageConfigDirectory;

    // Recursive: with the bytes fed on the page's own thread, the list slot runs
    // inside the raw data entry, and both hold the lock.
    QRecursiveMutex m_mutex;
    // Guarded by m_mutex: written on the page's thread, read by the feeding one.
    unsigned int m_selectedId = 0;
    std::function<qint64()> m_clock;
    qint64 m_lastRefresh = -1;
    std::vector<quint64> m_record; // 8-byte aligned for the decoder's record
    std::vector<char> m_text;
    std::vector<KV_GNSS_MSGID_T> m_list;

    QVector<QStringView> m_fields;
};

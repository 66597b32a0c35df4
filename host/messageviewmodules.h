// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "messageviewmodules_global.h"

#include <QByteArray>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QPair>
#include <QString>
#include <QTranslator>
#include <QVector>

class MsgBaseWidget;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;
struct MessageViewMetaObjCtx;

// The receiver message view: a tree of message names and one live page per message
// kind in the host's stacked widget. The host feeds every received chunk of bytes to
// onUpdateBuffer() and chooses the product mode with addItemToTree().
class MESSAGEVIEW_EXPORT MessageViewModules : public QObject
{
    Q_OBJECT
public:
    // language "EN" selects English; anything else shows the Chinese source texts.
    MessageViewModules(QStackedWidget *stack, QString language);
    ~MessageViewModules() override;

    // Builds the page set of a product mode. Returns 0 when the mode is unchanged or
    // the view stays in the same presentation, 1 when leaving the binary presentation
    // (old mode 0, 4 or 5), 2 when entering it (new mode 4 or 5).
    int addItemToTree(int mode);
    QTreeWidget *getTreeWidget();
    // Greys every message item again (clears the marks of received messages).
    void setTreeForeground();
    // The folder of the binary modes' message description files (<kind>_EN.txt,
    // <kind>_CH.txt). Empty, the default: "MessageConfig" in the current directory when
    // there is one, else the one beside the library, else beside the program.
    void setMessageConfigDirectory(const QString &dir);

    // Lines taken per page, in page order, labelled by tree text; and all lines cut.
    QList<QPair<QString, quint64>> acceptedLineCounts() const;
    // The longest line (without its "\r\n") offered to the pages in text modes; real
    // logs stay far below it. A longer one (binary output while a text mode is selected,
    // a lost line end) is dropped whole, up to and including its "\r\n", however the
    // stream is chunked, and the buffer never holds much more than this.
    static constexpr int maxLineBytes = 256 * 1024;
    quint64 lineCount() const { return m_lineCount; }

    // What became of a line cut from the stream in a text mode, or of bytes that were
    // no line.
    enum LineOutcome {
        LineTaken,       // a page took it
        LineWithoutPage, // its checksum is right, but no page of the mode is for it
        LineRefused,     // its checksum is right and its header is a page's, which refused it
        LineBadChecksum, // its checksum is wrong
        LineCutShort,    // it ends before its checksum
        LineTooLong,     // longer than maxLineBytes, dropped unread
        LineGarbage,     // it does not start with '$' or '#'
    };
    Q_ENUM(LineOutcome)
    struct SeenLine
    {
        LineOutcome outcome;
        // The page (an index into acceptedLineCounts()) that took the line, or whose
        // header it has; -1 for none.
        int page;
        // The line with its "\r\n", or the garbage. A line too long comes in the
        // stretches it is dropped in: the first with continuesLine false, the others true.
        QByteArray bytes;
        bool continuesLine;
    };

    // Bytes of an unfinished line held for the next chunk.
    int bufferedBytes() const { return m_lineBuffer.size(); }

signals:
    void messageViewTitleShow(QString nTitle);
    // Every line cut from the stream in a text mode and every stretch of bytes that was
    // no line, in stream order, once for each chunk given to onUpdateBuffer(). Nothing
    // is gathered while no receiver is connected, and the binary modes report nothing.
    void linesSeen(const QVector<MessageViewModules::SeenLine> &lines);

public slots:
    // Received bytes. Text modes: call it on the GUI thread. Binary modes (4, 5): any
    // thread may feed it, bytes from other threads in a text mode are dropped, and a
    // feeding thread must have stopped before the module is destroyed.
    void onUpdateBuffer(QByteArray data);

private:
    void initTreeWidget();
    void changeStack(QTreeWidgetItem *item);
    void clearMesWidgetList();
    void addItembyMeta(const MessageViewMetaObjCtx *table, int count, QTreeWidgetItem *category);
    void addItemToTree_IDLE();
    void addItemToTree_HPL();
    void addItemToTree_Timeing();
    void addItemToTree_NPL();
    // The index of the page that took the line, or -1.
    int offerLine(const QString &line);
    SeenLine describeRefusedLine(const QString &line, const char *bytes, int length) const;

    QMutex m_mutex;
    MsgBaseWidget *m_binaryPage = nullptr;
    int m_languageFlag = 0;
    QStackedWidget *m_stack = nullptr;
    QList<MsgBaseWidget *> m_pages;
    QTreeWidget *m_tree = nullptr;
    QTreeWidgetItem *m_currentItem = nullptr;
    QTreeWidgetItem *m_nmeaItem = nullptr;
    QTreeWidgetItem *m_korvaneAsciiItem = nullptr;
    QTreeWidgetItem *m_korvaneBinaryItem = nullptr;
    QTreeWidgetItem *m_timeItem = nullptr;
    int m_mode = -1;
    QByteArray m_lineBuffer;
    QTranslator m_translator;

    // Where the next search for "\r\n" starts, so bytes already scanned are never
    // scanned again however the stream is chunked.
    int m_scanFrom = 0;
    // Set while the rest of an over-long line is being dropped up to its "\r\n".
    bool m_droppingLongLine = false;
    QVector<quint64> m_acceptedCounts;
    quint64 m_lineCount = 0;
    QString m_messageConfigDirectory;
};

// SPDX-License-Identifier: BSD-3-Clause
#include "messageviewmodules.h"

#include "linechecksum.h"
#include "lineframer.h"
#include "routetable.h"

#include "annotatedlocker.h"
#include "basicwidget.h"
#include "loadfailure.h"
#include "messageviewmetaobjctx.h"
#include "msgbasewidget.h"

#include <QApplication>
#include <QDebug>
#include <QLoggingCategory>
#include <QMetaMethod>
#include <QScrollBar>
#include <QStackedWidget>
#include <QThread>
#include <QTreeWidget>

#include <cstring>

static void initMessageViewResources()
{
    // Needed when the library's objects are linked statically (tests, tools).
    Q_INIT_RESOURCE(messageview);
}

namespace {
// The line written for every deleted page is for developers: off unless asked for
// (QT_LOGGING_RULES="messageview.pages.debug=true").
Q_LOGGING_CATEGORY(pageLog, "messageview.pages", QtWarningMsg)

bool isBinaryMode(int mode)
{
    return mode == 4 || mode == 5;
}
} // namespace

MessageViewModules::MessageViewModules(QStackedWidget *stack, QString language)
    : QObject(nullptr)
    , m_stack(stack)
{
    initMessageViewResources();
    m_languageFlag = language == QLatin1String("EN") ? 0 : 1;
    const QString translation =
        m_languageFlag == 0 ? QStringLiteral(":/language_Message_EN.qm") : QStringLiteral(":/language_Message_CH.qm");
    if (!m_translator.load(translation))
        reportLoadFailure("translation", translation);
    QCoreApplication::installTranslator(&m_translator);
    initTreeWidget();
}

MessageViewModules::~MessageViewModules()
{
    clearMesWidgetList();
    delete m_tree;
}

void MessageViewModules::initTreeWidget()
{
    m_currentItem = nullptr;
    m_tree = new QTreeWidget;
    connect(m_tree, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem *item, int) {
        if (item)
            changeStack(item);
    });
    m_tree->setHeaderHidden(true);
    m_tree->setObjectName(QStringLiteral("MsgTreeWidget"));
    m_tree->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_tree->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_tree->setFocusPolicy(Qt::NoFocus);
    m_tree->setColumnCount(1);
    m_tree->verticalScrollBar()->setStyleSheet(QStringLiteral(
        "QScrollBar:vertical{background: rgba(0,0,0,10%);width: 10px;}"
        "QScrollBar::handle:vertical{background:#3461b6;min-height: 20px;max-height: 20px;width: 10px;}"
        "QScrollBar::add-line:vertical{height: 0px;width: 0px;}"
        "QScrollBar::sub-line:vertical{height: 0px;width: 0px;}"));
    m_tree->horizontalScrollBar()->setStyleSheet(QStringLiteral(
        "QScrollBar:horizontal{background: rgba(0,0,0,10%);height: 10px;}"
        "QScrollBar::handle:horizontal{background:#3461b6;min-width: 20px;max-width: 20px;height: 10px;}"
        "QScrollBar::add-line:horizontal{height: 0px;width: 0px;}"
        "QScrollBar::sub-line:horizontal{height: 0px;width: 0px;}"));
    m_tree->setStyleSheet(QStringLiteral(
        "#MsgTreeWidget{background: white;border: 0px;font-size: 16px;font-family: Arial;"
        "font-weight: 400;text-align: left;color: #666666;padding-left: 15px;padding-top: 10px;"
        "min-width:120px;}"
        "#MsgTreeWidget::item{height: 36px;margin-right: 30px;}"
        "#MsgTreeWidget::item:selected{color: #3461b6;border-bottom: 2px solid #3461b6;}"));

    m_nmeaItem = new QTreeWidgetItem(QStringList(QStringLiteral("NMEA")));
    m_korvaneAsciiItem = new QTreeWidgetItem(QStringList(QStringLiteral("Korvane")));
    m_korvaneBinaryItem = new QTreeWidgetItem(QStringList(QStringLiteral("Korvane")));
    m_timeItem = new QTreeWidgetItem(QStringList(QStringLiteral("Time")));
    m_tree->addTopLevelItem(m_nmeaItem);
    m_tree->addTopLevelItem(m_korvaneAsciiItem);
    m_tree->addTopLevelItem(m_timeItem);
    m_tree->addTopLevelItem(m_korvaneBinaryItem);
}

QTreeWidget *MessageViewModules::getTreeWidget()
{
    return m_tree;
}

int MessageViewModules::addItemToTree(int mode)
{
    if (mode == m_mode)
        return 0;
    const int old = m_mode;
    int result;
    // Deliberately asymmetric: leaving mode 0 for 1, 2 or 7 also reports 1.
    if (old == 0 || isBinaryMode(old))
        result = isBinaryMode(mode) ? 0 : 1;
    else
        result = isBinaryMode(mode) ? 2 : 0;

    m_mode = mode;
    clearMesWidgetList();
    switch (mode) {
    case 0: addItemToTree_IDLE(); break;
    case 1:
    case 2:
        addItemToTree_IDLE();
        addItemToTree_HPL();
        break;
    case 4:
    case 5: addItemToTree_NPL(); break;
    case 7:
        addItemToTree_IDLE();
        addItemToTree_Timeing();
        break;
    default: break; // modes without pages: only the NMEA item remains
    }
    m_acceptedCounts = QVector<quint64>(m_pages.size(), 0);
    m_tree->expandAll();
    if (m_stack) {
        for (MsgBaseWidget *page : qAsConst(m_pages))
            m_stack->addWidget(page);
        if (!m_pages.isEmpty())
            m_stack->setCurrentWidget(m_pages.first());
    }
    return result;
}

void MessageViewModules::clearMesWidgetList()
{
    m_lineBuffer.clear();
    m_scanFrom = 0;
    m_droppingLongLine = false;
    m_korvaneAsciiItem->setHidden(true);
    m_timeItem->setHidden(true);
    m_korvaneBinaryItem->setHidden(true);

    // Only a message item is deleted here; a clicked category item belongs to the
    // module for its whole life and is merely forgotten.
    if (m_currentItem) {
        if (m_currentItem->parent())
            delete m_currentItem;
        m_currentItem = nullptr;
    }

    if (!m_pages.isEmpty()) {
        AnnotatedMutexLocker<QMutex> locker(&m_mutex);
        for (int i = 0; i < m_pages.size(); ++i) {
            MsgBaseWidget *page = m_pages[i];
            if (m_stack)
                m_stack->removeWidget(page);
            delete page;
            qCDebug(pageLog) << "clearMesWidgetList" << QThread::currentThreadId();
            m_pages[i] = nullptr;
            m_binaryPage = nullptr;
        }
    }
    m_pages = QList<MsgBaseWidget *>();
    m_acceptedCounts.clear();

    for (int i = 0; i < m_tree->topLevelItemCount(); ++i)
        qDeleteAll(m_tree->topLevelItem(i)->takeChildren());
}

void MessageViewModules::addItembyMeta(const MessageViewMetaObjCtx *table, int count, QTreeWidgetItem *category)
{
    for (int i = 0; i < count; ++i) {
        const MessageViewMetaObjCtx &entry = table[i];
        if (entry.modeFilter != 0 && entry.modeFilter != m_mode)
            continue;
        // Made as a child of the stack it will live in: a page adopted later by another
        // parent restyles its whole widget tree, which is most of a mode change's time.
        QObject *object = entry.metaObject.newInstance(Q_ARG(QWidget *, m_stack), Q_ARG(QString, entry.label),
                                                       Q_ARG(QTreeWidgetItem *, category));
        if (auto *page = qobject_cast<MsgBaseWidget *>(object))
            m_pages.append(page);
        else
            delete object;
    }
}

void MessageViewModules::addItemToTree_IDLE()
{
    m_nmeaItem->setHidden(false);
    addItembyMeta(nmeaCatalogue.entries, nmeaCatalogue.count, m_nmeaItem);
}

void MessageViewModules::addItemToTree_HPL()
{
    m_korvaneAsciiItem->setHidden(false);
    addItembyMeta(korvaneAsciiCatalogue.entries, korvaneAsciiCatalogue.count, m_korvaneAsciiItem);
}

void MessageViewModules::addItemToTree_Timeing()
{
    m_timeItem->setHidden(false);
    addItembyMeta(timingCatalogue.entries, timingCatalogue.count, m_timeItem);
}

void MessageViewModules::addItemToTree_NPL()
{
    m_nmeaItem->setHidden(false);
    m_korvaneBinaryItem->setHidden(false);
    if (!m_binaryPage) {
        auto *page = new BasicWidget(nullptr, QString(), m_nmeaItem);
        connect(page, &BasicWidget::sendCurMsgNameList, this, [this](const QStringList &names) {
            for (QTreeWidgetItem *category : {m_nmeaItem, m_korvaneBinaryItem}) {
                for (int i = 0; i < category->childCount(); ++i) {
                    QTreeWidgetItem *item = category->child(i);
                    item->setForeground(0, names.contains(item->text(0)) ? Qt::black : Qt::gray);
                }
            }
        });
        page->setLanguageFlag(m_languageFlag);
        page->setMessageConfigDirectory(m_messageConfigDirectory);
        page->fillMessageTree(m_korvaneBinaryItem, m_mode);
        // A receiving thread may already be feeding: publish the page under the lock.
        AnnotatedMutexLocker<QMutex> locker(&m_mutex);
        m_binaryPage = page;
    }
    if (!m_pages.contains(m_binaryPage))
        m_pages.append(m_binaryPage);
}

void MessageViewModules::setTreeForeground()
{
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *category = m_tree->topLevelItem(i);
        for (int j = 0; j < category->childCount(); ++j)
            category->child(j)->setForeground(0, Qt::gray);
    }
}

void MessageViewModules::setMessageConfigDirectory(const QString &dir)
{
    m_messageConfigDirectory = dir;
    if (m_binaryPage)
        static_cast<BasicWidget *>(m_binaryPage)->setMessageConfigDirectory(dir);
}

void MessageViewModules::changeStack(QTreeWidgetItem *item)
{
    if (m_currentItem && m_currentItem->parent())
        m_currentItem->setForeground(0, Qt::gray);
    m_currentItem = item;
    if (!item->parent())
        return;
    if (isBinaryMode(m_mode)) {
        if (!m_binaryPage)
            return;
        emit messageViewTitleShow(item->text(0));
        static_cast<BasicWidget *>(m_binaryPage)->showMessage(item->text(0));
        if (m_stack)
            m_stack->setCurrentWidget(m_binaryPage);
        return;
    }
    for (MsgBaseWidget *page : qAsConst(m_pages)) {
        if (page && page->treeItem() == item) {
            emit messageViewTitleShow(item->text(0));
            if (m_stack)
                m_stack->setCurrentWidget(page);
            return;
        }
    }
}

void MessageViewModules::onUpdateBuffer(QByteArray data)
{
    // A receiving thread may feed the binary page only; the text path touches the
    // pages' widgets, so what such a thread sends in a text mode is dropped (and the
    // mode, which the GUI thread changes, is not even read there).
    if (QThread::currentThread() != thread() || isBinaryMode(m_mode)) {
        AnnotatedMutexLocker<QMutex> locker(&m_mutex);
        if (m_binaryPage)
            m_binaryPage->parseRawData(data);
        return;
    }

    static const QMetaMethod linesSeenSignal = QMetaMethod::fromSignal(&MessageViewModules::linesSeen);
    if (!isSignalConnected(linesSeenSignal)) {
        takeLines(m_lineBuffer, m_scanFrom, m_droppingLongLine, maxLineBytes, data,
                  [this](const char *line, int length) { offerLine(QString::fromUtf8(line, length)); },
                  [](const char *, int, bool) {});
        return;
    }
    QVector<SeenLine> seen;
    takeLines(
        m_lineBuffer, m_scanFrom, m_droppingLongLine, maxLineBytes, data,
        [&](const char *bytes, int length) {
            const QString line = QString::fromUtf8(bytes, length);
            const int page = offerLine(line);
            seen.append(page >= 0 ? SeenLine{LineTaken, page, QByteArray(bytes, length), false}
                                  : describeRefusedLine(line, bytes, length));
        },
        [&](const char *bytes, int length, bool startsLine) {
            seen.append({LineTooLong, -1, QByteArray(bytes, length), !startsLine});
        });
    if (!seen.isEmpty())
        emit linesSeen(seen);
}

int MessageViewModules::offerLine(const QString &line)
{
    ++m_lineCount;
    for (int i = 0; i < m_pages.size(); ++i) {
        MsgBaseWidget *page = m_pages.at(i);
        if (page && page->parse(line)) {
            if (QTreeWidgetItem *item = page->treeItem())
                item->setForeground(0, Qt::black);
            ++m_acceptedCounts[i];
            return i;
        }
    }
    return -1;
}

// A line no page took: garbage, damaged (and for which page, by its header), or
// intact and either for no page of the mode or refused by the page of its header.
MessageViewModules::SeenLine MessageViewModules::describeRefusedLine(const QString &line, const char *bytes,
                                                                     int length) const
{
    SeenLine seen{LineGarbage, -1, QByteArray(bytes, length), false};
    if (length == 0 || (bytes[0] != '$' && bytes[0] != '#'))
        return seen;
    // The pages are made from the mode's routes, in the same order.
    const QVector<const PageRoute *> &routes = offeredRoutes(m_mode);
    if (routes.size() == m_pages.size()) {
        for (int i = 0; i < routes.size() && seen.page < 0; ++i) {
            if (routes.at(i)->matchesHeader(line))
                seen.page = i;
        }
    }
    if (!line.contains(QLatin1Char('*')))
        seen.outcome = LineCutShort;
    else if (!checkLineChecksum(line))
        seen.outcome = LineBadChecksum;
    else
        seen.outcome = seen.page >= 0 ? LineRefused : LineWithoutPage;
    return seen;
}

QList<QPair<QString, quint64>> MessageViewModules::acceptedLineCounts() const
{
    QList<QPair<QString, quint64>> counts;
    for (int i = 0; i < m_pages.size(); ++i) {
        const MsgBaseWidget *page = m_pages.at(i);
        if (!page)
            continue;
        const QString label = page->treeItem() ? page->treeItem()->text(0) : page->metaObject()->className();
        counts.append({label, m_acceptedCounts.value(i)});
    }
    return counts;
}

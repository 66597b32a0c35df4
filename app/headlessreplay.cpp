// SPDX-License-Identifier: BSD-3-Clause
#include "headlessreplay.h"

#include "correctionsview.h"
#include "linetraffic.h"
#include "mainwindow.h"
#include "playerbar.h"
#include "recordingplayer.h"

#include "messageviewmodules.h"
#include "receiverdocks.h"
#include "trafficdocks.h"
#include "receiversession.h"
#include "receiverstate.h"
#include "sessionindex.h"
#include "statereport.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSocketNotifier>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QTimer>
#include <QWidget>

#include <csignal>
#include <cstdio>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// The process's peak resident memory as the kernel reports it (Linux), or "n/a".
QString peakRssText()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:"))
                return QString::number(line.mid(6).trimmed().split(' ').value(0).toLong() / 1024.0, 'f', 1)
                    + QStringLiteral(" MB");
        }
    }
    return QStringLiteral("n/a");
}

void printUnpagedKindsAndDamage(const LineTraffic &traffic, QTextStream &out)
{
    const auto kinds = traffic.kindsWithoutPage();
    out << "kinds without a page: " << kinds.size() << '\n';
    for (const auto &kind : kinds)
        out << "  " << kind.first << "  " << kind.second << '\n';
    const TrafficTotals totals = traffic.statistics().totals(traffic.statistics().latestMs());
    out << "damaged lines: " << totals.damagedLines << " (bad checksum " << traffic.count(LineOutcome::BadChecksum)
        << ", cut short " << traffic.count(LineOutcome::CutShort) << ", too long " << traffic.count(LineOutcome::TooLong)
        << "), garbage: " << traffic.count(LineOutcome::Garbage) << " stretches, " << totals.garbageBytes
        << " bytes\n";
}

void printSummary(MessageViewModules &module, const LineTraffic &traffic, qint64 bytes, double seconds,
                  QTextStream &out)
{
    seconds = qMax(seconds, 1e-9);
    quint64 taken = 0;
    int width = 4;
    const auto counts = module.acceptedLineCounts();
    for (const auto &count : counts)
        width = qMax(width, count.first.size());
    out << qSetFieldWidth(width) << Qt::left << "page" << qSetFieldWidth(0) << "  lines\n";
    for (const auto &count : counts) {
        out << qSetFieldWidth(width) << Qt::left << count.first << qSetFieldWidth(0) << "  " << count.second << '\n';
        taken += count.second;
    }
    out << "total lines: " << module.lineCount() << " (taken " << taken << ", refused "
        << module.lineCount() - taken << ")\n";
    printUnpagedKindsAndDamage(traffic, out);
    out << "bytes: " << bytes << "  seconds: " << QString::number(seconds, 'f', 3)
        << "  MB/s: " << QString::number(bytes / seconds / 1e6, 'f', 1) << "  peak RSS: " << peakRssText() << '\n';
    out.flush();
}

// SIGINT and SIGTERM end a headless run's event loop, so it still prints its summary
// and report. The handler only writes a byte; the loop reads it.
class SignalQuitter
{
public:
    explicit SignalQuitter(QEventLoop *loop)
    {
        if (::socketpair(AF_UNIX, SOCK_STREAM, 0, s_fds) != 0)
            return;
        m_notifier = std::make_unique<QSocketNotifier>(s_fds[1], QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, loop, &QEventLoop::quit);
        struct sigaction action = {};
        action.sa_handler = [](int) {
            const char byte = 1;
            [[maybe_unused]] const ssize_t written = ::write(s_fds[0], &byte, 1);
        };
        sigemptyset(&action.sa_mask);
        ::sigaction(SIGINT, &action, &m_oldInt);
        ::sigaction(SIGTERM, &action, &m_oldTerm);
    }
    ~SignalQuitter()
    {
        if (!m_notifier)
            return;
        ::sigaction(SIGINT, &m_oldInt, nullptr);
        ::sigaction(SIGTERM, &m_oldTerm, nullptr);
        m_notifier.reset();
        ::close(s_fds[0]);
        ::close(s_fds[1]);
    }
    SignalQuitter(const SignalQuitter &) = delete;
    SignalQuitter &operator=(const SignalQuitter &) = delete;

private:
    static inline int s_fds[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
    struct sigaction m_oldInt = {};
    struct sigaction m_oldTerm = {};
};

} // namespace

bool writeStateReport(const ReceiverState &state, const LineTraffic &traffic, const CorrectionSnapshot *corrections,
                      const QString &path, QString *error)
{
    QFile file;
    const bool opened = path == QLatin1String("-") ? file.open(stdout, QIODevice::WriteOnly)
                                                   : (file.setFileName(path), file.open(QIODevice::WriteOnly));
    QJsonObject report = receiverReport(state.snapshot());
    const MessageStatistics &statistics = traffic.statistics();
    report.insert(QStringLiteral("messages"), statistics.toJson(statistics.latestMs()));
    report.insert(QStringLiteral("garbageBytes"), double(statistics.totals(statistics.latestMs()).garbageBytes));
    if (corrections)
        report.insert(QStringLiteral("corrections"), correctionsReport(*corrections));
    const QByteArray json = QJsonDocument(report).toJson(QJsonDocument::Indented);
    if (!opened || file.write(json) != json.size() || !file.flush()) {
        *error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

HeadlessFeeder feedFromDevice(QIODevice &input)
{
    return [&input](MessageViewModules &module, ReceiverState &state) {
        constexpr qint64 kChunk = 64 * 1024;
        qint64 bytes = 0;
        // A file or pipe read blocks until bytes arrive and returns nothing at the end.
        for (QByteArray chunk = input.read(kChunk); !chunk.isEmpty(); chunk = input.read(kChunk)) {
            bytes += chunk.size();
            state.feed(chunk);
            module.onUpdateBuffer(chunk);
        }
        return bytes;
    };
}

HeadlessFeeder feedFromSession(ReceiverSession &session, int durationSeconds, int *status)
{
    return [&session, durationSeconds, status](MessageViewModules &module, ReceiverState &state) {
        QEventLoop loop;
        QTimer deadline;
        deadline.setSingleShot(true);
        QObject::connect(&deadline, &QTimer::timeout, &loop, &QEventLoop::quit);
        if (durationSeconds > 0)
            deadline.start(durationSeconds * 1000);
        const SignalQuitter quitter(&loop);
        qint64 bytes = 0;
        QObject::connect(&session, &ReceiverSession::dataReceived, &loop, [&](const QByteArray &chunk) {
            bytes += chunk.size();
            state.feed(chunk);
            module.onUpdateBuffer(chunk);
        });
        const auto say = [](const QString &text) { std::fprintf(stderr, "msgview: %s\n", qPrintable(text)); };
        const auto takeState = [&](ReceiverConnection::State linkState, const QString &text) {
            say(text);
            if (linkState == ReceiverConnection::State::Failed)
                *status = 1;
            if (linkState == ReceiverConnection::State::Finished || linkState == ReceiverConnection::State::Failed)
                loop.quit();
        };
        QObject::connect(&session, &ReceiverSession::connectionStateChanged, &loop, takeState);
        QObject::connect(&session.server(), &RawByteServer::message, &loop, say);
        QObject::connect(&session, &ReceiverSession::message, &loop, say);
        QObject::connect(&session, &ReceiverSession::correctionsStateChanged, &loop,
                         [&](NtripClient::State, const QString &text) { say(QStringLiteral("NTRIP: ") + text); });
        // The link was opened before anyone listened: what it has said so far counts too.
        takeState(session.connection()->state(), session.connection()->stateText());
        if (*status == 0 && session.connection()->state() != ReceiverConnection::State::Finished)
            loop.exec();
        session.stopCorrections();
        session.close();
        return bytes;
    };
}

int runHeadless(MessageViewModules &module, ReceiverState &state, LineTraffic &traffic, const HeadlessFeeder &feed,
                QTextStream &out)
{
    QElapsedTimer timer;
    timer.start();
    const qint64 bytes = feed(module, state);
    traffic.finish();
    printSummary(module, traffic, bytes, timer.nsecsElapsed() / 1e9, out);
    return 0;
}

bool writePicture(QWidget &widget, const QString &directory, const QString &name, QTextStream &out)
{
    const QString path = QDir(directory).filePath(name + QStringLiteral(".png"));
    const bool written = widget.grab().save(path);
    out << (written ? path : QStringLiteral("msgview: cannot write ") + path) << '\n';
    return written;
}

int runSnapshot(MessageViewModules &module, ReceiverState &state, LineTraffic &traffic, QStackedWidget &stack,
                const HeadlessFeeder &feed, const QString &directory, QTextStream &out, ReceiverSession *session)
{
    if (!QDir().mkpath(directory)) {
        out << "msgview: cannot create " << directory << '\n';
        return 1;
    }
    // Only a visible page shows what it takes; lift every page out of the stack as its
    // own offscreen window so one pass fills them all.
    QList<QWidget *> pages;
    while (stack.count() > 0) {
        QWidget *page = stack.widget(0);
        stack.removeWidget(page);
        page->setParent(nullptr);
        page->resize(1078, 798);
        page->show();
        pages << page;
    }
    TrafficPictures trafficPictures(traffic);
    std::unique_ptr<CorrectionsView> corrections;
    if (session && session->ntrip().state() != NtripClient::State::Idle) {
        corrections = std::make_unique<CorrectionsView>([session] { return session->corrections(); },
                                                        [&state] { return state.fix(); });
        // The picture shows the stream as it ran, not the stop at the end of the run.
        QObject::connect(session, &ReceiverSession::correctionsStateChanged, corrections.get(),
                         [view = corrections.get()](NtripClient::State state, const QString &text) {
                             if (state != NtripClient::State::Idle)
                                 view->setLinkText(text);
                         });
        corrections->setLinkText(session->ntrip().stateText());
        corrections->resize(900, 500);
        corrections->show();
    }
    feed(module, state);
    traffic.finish();
    QCoreApplication::processEvents();
    // As the run ends, before the pages take their time: ages and rates as they were.
    int views = 0;
    int expectedViews = ReceiverDocks::viewCount() + TrafficPictures::count;
    if (corrections) {
        corrections->refresh();
        views += writePicture(*corrections, directory, QStringLiteral("dock-corrections"), out);
        ++expectedViews;
    }

    const QList<QPair<QString, quint64>> counts = module.acceptedLineCounts();
    int written = 0;
    for (int i = 0; i < pages.size(); ++i) {
        const QString label = i < counts.size() ? counts.at(i).first : QString::number(i);
        QString name = label;
        name.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9_.-]")), QStringLiteral("_"));
        written += writePicture(*pages.at(i), directory, name, out);
    }
    // Give the pages back so the module finds them where it put them.
    for (QWidget *page : pages) {
        page->hide();
        stack.addWidget(page);
    }
    views += ReceiverDocks::savePictures(state, directory, out) + trafficPictures.save(directory, out);
    out << written << " pages and " << views << " views written to " << directory << '\n';
    out.flush();
    return written == pages.size() && views == expectedViews ? 0 : 1;
}

void replaySeek(MessageViewModules &module, ReceiverState &state, const SeekRebuild &rebuild)
{
    state.reset();
    module.onUpdateBuffer(rebuild.pageMemory);
    state.feed(rebuild.viewsOnly);
    module.onUpdateBuffer(rebuild.both);
    state.feed(rebuild.both);
}

int writePlayerPictures(const QString &recording, const QString &language, int mode, double share,
                        const QString &label, const QString &directory, QTextStream &out)
{
    MainWindow window(language, mode);
    window.resize(1600, 1000);
    window.show();
    window.openRecording(recording);
    RecordingPlayer *player = window.player();
    QEventLoop loop;
    QObject::connect(player, &RecordingPlayer::indexFinished, &loop, &QEventLoop::quit);
    if (!player->index() && !player->isIndexing())
        return 0;
    if (!player->index())
        loop.exec();
    if (!player->index() || player->index()->epochCount() == 0)
        return 0;
    player->setPaused(true);
    for (QTreeWidgetItem *item :
         window.module()->getTreeWidget()->findItems(label, Qt::MatchExactly | Qt::MatchRecursive)) {
        if (item->parent()) {
            window.module()->getTreeWidget()->setCurrentItem(item);
            emit window.module()->getTreeWidget()->itemClicked(item, 0);
            break;
        }
    }
    player->seek(int(share * (player->index()->epochCount() - 1)));
    // The views draw on their refresh timers.
    QElapsedTimer settle;
    settle.start();
    while (settle.elapsed() < 2 * ReceiverState::notifyIntervalMs + 200)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    return writePicture(window, directory, QStringLiteral("window-player"), out)
        + writePicture(*window.playerBar(), directory, QStringLiteral("player"), out);
}

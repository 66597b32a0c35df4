// SPDX-License-Identifier: BSD-3-Clause
// Measures the console as a user runs it: the main window with every receiver view
// visible, fed a recording at a fixed pace as a live receiver would send it. Prints
// the process's CPU time as a share of one core and the longest stall of the GUI
// thread (how late a 5 ms timer fired at worst).
//
//   console_bench --replay FILE [--rate BYTES_PER_SECOND] [--seconds N] [--hidden-views]
//
// With --seeks N it opens the recording in the window's player instead, waits for the
// index and times N seeks spread over the recording, the busiest page on screen.
#include "mainwindow.h"
#include "messageviewmodules.h"
#include "receiverdocks.h"
#include "recordingplayer.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

#include <sys/resource.h>

#include <cstdio>

namespace {

double cpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

// From opening the file to its index in the window, then each seek from the request
// to the pages, views and tree showing the new moment.
int timeSeeks(MainWindow &window, const QString &path, int seeks)
{
    QElapsedTimer timer;
    timer.start();
    window.openRecording(path);
    RecordingPlayer *player = window.player();
    player->setPaused(true);
    QEventLoop loop;
    QObject::connect(player, &RecordingPlayer::indexFinished, &loop, &QEventLoop::quit);
    if (!player->index())
        loop.exec();
    const double indexSeconds = timer.nsecsElapsed() / 1e9;
    if (!player->index()) {
        std::fprintf(stderr, "console_bench: no index of %s\n", qPrintable(path));
        return 1;
    }
    QTreeWidget *tree = window.module()->getTreeWidget();
    const QList<QTreeWidgetItem *> gsv = tree->findItems(QStringLiteral("GSV"), Qt::MatchExactly | Qt::MatchRecursive);
    if (!gsv.isEmpty())
        emit tree->itemClicked(gsv.constFirst(), 0);
    const int epochs = player->index()->epochCount();
    double slowest = 0, total = 0;
    for (int i = 0; i < seeks; ++i) {
        // Back and forth over the recording, not in order: no seek profits from the last.
        const int epoch = int(qint64(epochs - 1) * ((i * 7) % seeks + 1) / seeks);
        timer.restart();
        player->seek(epoch);
        QCoreApplication::processEvents();
        const double ms = timer.nsecsElapsed() / 1e6;
        slowest = std::max(slowest, ms);
        total += ms;
    }
    std::printf("console, player on %s: indexed in %.1f s in the window (%d epochs); %d seeks with the GSV page "
                "on screen: %.0f ms on average, %.0f ms at most (target: under 500 ms)\n",
                qPrintable(path), indexSeconds, epochs, seeks, total / seeks, slowest);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    // The console remembers its layout; the benchmark must neither read nor change the user's.
    QTemporaryDir settingsHome;
    qputenv("XDG_CONFIG_HOME", settingsHome.path().toLocal8Bit());
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption replayOption(QStringLiteral("replay"), QStringLiteral("Recording to stream."), QStringLiteral("FILE"));
    const QCommandLineOption rateOption(QStringLiteral("rate"), QStringLiteral("Bytes per second."), QStringLiteral("BYTES"),
                                        QStringLiteral("1000000"));
    const QCommandLineOption secondsOption(QStringLiteral("seconds"), QStringLiteral("How long to measure."),
                                           QStringLiteral("N"), QStringLiteral("20"));
    const QCommandLineOption hiddenViewsOption(QStringLiteral("hidden-views"),
                                               QStringLiteral("Hide the receiver views (what they cost, by difference)."));
    const QCommandLineOption seeksOption(QStringLiteral("seeks"), QStringLiteral("Time N seeks in the player."),
                                         QStringLiteral("N"));
    parser.addOptions({replayOption, rateOption, secondsOption, hiddenViewsOption, seeksOption});
    parser.process(app);
    if (!parser.isSet(replayOption))
        parser.showHelp(2);
    const int rate = parser.value(rateOption).toInt();
    const int seconds = qMax(1, parser.value(secondsOption).toInt());

    MainWindow window(QStringLiteral("EN"), 2);
    window.show();
    const bool viewsShown = !parser.isSet(hiddenViewsOption);
    for (QDockWidget *dock : window.receiverDocks()->docks())
        dock->setVisible(viewsShown);
    QCoreApplication::processEvents();
    if (parser.isSet(seeksOption))
        return timeSeeks(window, parser.value(replayOption), qMax(1, parser.value(seeksOption).toInt()));

    qint64 worstLateNs = 0, worstStartLateNs = 0;
    QElapsedTimer wall;
    QElapsedTimer sinceTick;
    QTimer probe;
    probe.setTimerType(Qt::PreciseTimer);
    constexpr int kProbeMs = 5;
    QObject::connect(&probe, &QTimer::timeout, [&] {
        // The first second shows the window and loads fonts: reported on its own.
        qint64 &worst = wall.elapsed() < 1000 ? worstStartLateNs : worstLateNs;
        if (sinceTick.isValid())
            worst = qMax(worst, sinceTick.nsecsElapsed() - kProbeMs * 1000000LL);
        sinceTick.start();
    });

    quint64 bytes = 0;
    window.connectTo(std::make_unique<FileReplayConnection>(parser.value(replayOption), rate));
    QObject::connect(window.connection(), &ReceiverConnection::dataReceived,
                     [&bytes](const QByteArray &chunk) { bytes += quint64(chunk.size()); });
    const double cpuBefore = cpuSeconds();
    wall.start();
    probe.start(kProbeMs);
    QTimer::singleShot(seconds * 1000, &app, &QCoreApplication::quit);
    app.exec();
    const double wallSeconds = wall.nsecsElapsed() / 1e9;
    const double cpu = cpuSeconds() - cpuBefore;

    std::printf("console, views %s, %d B/s for %.1f s: %llu bytes, %zu satellites; CPU %.1f %% of one core "
                "(target: under 15 %%); longest GUI stall %.1f ms (target: under 16 ms; %.1f ms in the first second)\n",
                viewsShown ? "visible" : "hidden", rate, wallSeconds, static_cast<unsigned long long>(bytes),
                size_t(window.receiverState()->satellites().size()), 100 * cpu / wallSeconds, worstLateNs / 1e6, worstStartLateNs / 1e6);
    return 0;
}

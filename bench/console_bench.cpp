// Measures the console as a user runs it: the main window with every receiver view
// visible, fed a recording at a fixed pace as a live receiver would send it. Prints
// the process's CPU time as a share of one core and the longest stall of the GUI
// thread (how late a 5 ms timer fired at worst).
//
//   console_bench --replay FILE [--rate BYTES_PER_SECOND] [--seconds N] [--hidden-views]
#include "mainwindow.h"
#include "receiverdocks.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <sys/resource.h>

#include <cstdio>

namespace {

double cpuSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
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
    parser.addOptions({replayOption, rateOption, secondsOption, hiddenViewsOption});
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

// SPDX-License-Identifier: BSD-3-Clause
// rxsim: a simulated GNSS receiver that writes the byte stream the console reads.
#include "outputs.h"
#include "simulator.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <memory>

using namespace rxsim;

namespace {

std::atomic<bool> g_interrupted(false);

extern "C" void onInterrupt(int)
{
    g_interrupted = true;
}

const char *const kDescription = R"(Simulates a GNSS receiver in a vehicle driving a loop and writes the bytes it
would send: NMEA sentences, the maker's ASCII logs or the timing receiver's
sentences, depending on the product mode, all telling the same position, time
and satellites. The output goes to standard output unless --output, --listen
or --serial is given; several outputs may be combined.

Product modes (as in the console):
  0  NMEA sentences only
  1  NMEA and the maker's logs
  2  NMEA and all the maker's logs (observations, satellite lists, ...)
  4, 5  the NMEA sentences the binary decoder understands
  7  timing receiver: NMEA and the timing sentences; the antenna stands still

Examples:
  rxsim --mode 2 --duration 60 --seed 1 --as-fast-as-possible > session.log
  rxsim --mode 2 --duration 60 --seed 1 --as-fast-as-possible --summary | msgview --headless --replay -
  rxsim --listen 4001                          serve clients on 127.0.0.1:4001 in real time
  rxsim --serial /dev/pts/5 --baud 115200      feed a pseudo-terminal at 115200 baud
  rxsim --corrupt 0.1 --split 7 --duration 30  a noisy link: 10 % bad checksums, bytes in small pieces
  rxsim --rtcm --listen 2101                   an RTK base station at the loop's centre sending RTCM 3
  rxsim --needs-corrections --listen 4001      RTK fixed only while clients send RTCM 3 corrections

RTK: by default the receiver has corrections all the time (fixed, with a float
spell every four minutes). With --needs-corrections it reads what comes back over
--listen (from every client) or --serial, and its solution (GGA quality, the
solution types of the logs) is RTK fixed only while valid RTCM 3 frames arrive;
5 s without one (on the simulated clock, which in real time is the wall clock)
and it falls back to single. --rtcm turns the simulator into the base station:
1005 and MSM4 of GPS, GLONASS, Galileo and BDS every second, for the satellites
above 5 degrees at --lat/--lon/--height, instead of the mode's messages.

The same options and seed always give the same bytes.)";

bool parseDouble(const QString &text, double *value)
{
    bool ok = false;
    *value = text.toDouble(&ok);
    return ok;
}

// Runs the simulator against the outputs, in real time or as fast as the outputs
// take the bytes, until the duration is reached or the run is interrupted.
class Runner : public QObject
{
public:
    Runner(Simulator &simulator, QList<Output *> outputs, qint64 durationMs, bool asFastAsPossible, bool summary,
           int mode)
        : m_simulator(simulator)
        , m_outputs(std::move(outputs))
        , m_durationMs(durationMs)
        , m_fast(asFastAsPossible)
        , m_summary(summary)
        , m_mode(mode)
    {
        m_timer.setSingleShot(true);
        connect(&m_timer, &QTimer::timeout, this, [this] { pump(); });
        for (Output *output : qAsConst(m_outputs)) {
            connect(output, &Output::drained, this, [this] {
                if (m_waiting) {
                    m_waiting = false;
                    m_timer.start(0);
                }
            });
            connect(output, &Output::finished, this, [this] {
                if (++m_finishedOutputs == m_outputs.size())
                    done();
            });
        }
    }

    void start()
    {
        m_clock.start();
        m_timer.start(0);
    }
    bool hasStarted() const { return m_clock.isValid(); }

private:
    bool reachedEnd() const
    {
        return g_interrupted || (m_durationMs >= 0 && m_simulator.nextTickMs() >= m_durationMs);
    }

    bool anyFailed() const
    {
        for (const Output *output : m_outputs) {
            if (output->hasFailed())
                return true;
        }
        return false;
    }

    bool anyBacklogged() const
    {
        for (const Output *output : m_outputs) {
            if (output->isBacklogged())
                return true;
        }
        return false;
    }

    void stepOnce()
    {
        for (const QByteArray &chunk : m_simulator.step()) {
            for (Output *output : qAsConst(m_outputs))
                output->write(chunk);
        }
    }

    void pump()
    {
        if (m_fast) {
            QElapsedTimer slice;
            slice.start();
            // Work in slices so that servers and links get their turn.
            while (slice.elapsed() < 20) {
                if (reachedEnd() || anyFailed())
                    return finish();
                if (anyBacklogged()) {
                    m_waiting = true;
                    m_timer.start(50); // also look again after a while
                    return;
                }
                stepOnce();
            }
            m_timer.start(0);
            return;
        }
        while (m_simulator.nextTickMs() <= m_clock.elapsed()) {
            if (reachedEnd() || anyFailed())
                return finish();
            stepOnce();
        }
        if (reachedEnd())
            return finish();
        m_timer.start(int(qBound<qint64>(0, m_simulator.nextTickMs() - m_clock.elapsed(), Simulator::kTickMs)));
    }

    void finish()
    {
        if (m_finishing)
            return;
        m_finishing = true;
        m_timer.stop();
        for (Output *output : qAsConst(m_outputs))
            output->finish();
    }

    void done()
    {
        if (m_summary)
            std::fputs(qPrintable(m_simulator.tally().summary(m_mode)), stderr);
        QCoreApplication::exit(0);
    }

    Simulator &m_simulator;
    QList<Output *> m_outputs;
    qint64 m_durationMs;
    bool m_fast;
    bool m_summary;
    int m_mode;
    QTimer m_timer;
    QElapsedTimer m_clock;
    bool m_waiting = false;
    bool m_finishing = false;
    int m_finishedOutputs = 0;
};

int fail(const QString &message)
{
    std::fprintf(stderr, "rxsim: %s\n", qPrintable(message));
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("rxsim"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromUtf8(kDescription));
    parser.addHelpOption();
    const QCommandLineOption modeOption(QStringLiteral("mode"), QStringLiteral("Product mode: 0, 1, 2, 4, 5 or 7 (default 2)."),
                                        QStringLiteral("N"), QStringLiteral("2"));
    const QCommandLineOption durationOption(
        QStringLiteral("duration"), QStringLiteral("Simulated seconds to send, then stop (default: until interrupted)."),
        QStringLiteral("SECONDS"));
    const QCommandLineOption seedOption(QStringLiteral("seed"),
                                        QStringLiteral("Seed of the measurement noise and of the faults (default 1)."),
                                        QStringLiteral("N"), QStringLiteral("1"));
    const QCommandLineOption startOption(QStringLiteral("start"),
                                         QStringLiteral("UTC start time, e.g. 2024-05-20T02:00:00Z; it chooses the sky."),
                                         QStringLiteral("TIME"), QStringLiteral("2024-05-20T02:00:00Z"));
    const QCommandLineOption latOption(QStringLiteral("lat"), QStringLiteral("Latitude of the loop's centre, degrees (default 30.5285)."),
                                       QStringLiteral("DEG"));
    const QCommandLineOption lonOption(QStringLiteral("lon"), QStringLiteral("Longitude of the loop's centre, degrees (default 114.3578)."),
                                       QStringLiteral("DEG"));
    const QCommandLineOption heightOption(QStringLiteral("height"), QStringLiteral("Height above sea level, metres (default 24)."),
                                          QStringLiteral("M"));
    const QCommandLineOption radiusOption(QStringLiteral("radius"), QStringLiteral("Radius of the loop, metres (default 150)."),
                                          QStringLiteral("M"));
    const QCommandLineOption speedOption(QStringLiteral("speed"),
                                         QStringLiteral("Speed of the vehicle, m/s (default 8; 0 parks it)."),
                                         QStringLiteral("M/S"));
    const QCommandLineOption rateOption(
        QStringLiteral("rate"),
        QStringLiteral("Send message NAME every SECONDS (0 stops it; steps of 0.05 s). Repeat for several messages."),
        QStringLiteral("NAME=SECONDS"));
    const QCommandLineOption listOption(QStringLiteral("list-messages"),
                                        QStringLiteral("List the messages of the mode with their periods, then exit."));
    const QCommandLineOption corruptOption(QStringLiteral("corrupt"),
                                           QStringLiteral("Fraction of lines whose checksum is corrupted (0-1)."),
                                           QStringLiteral("RATE"));
    const QCommandLineOption truncateOption(QStringLiteral("truncate"),
                                            QStringLiteral("Fraction of lines cut short before their checksum."),
                                            QStringLiteral("RATE"));
    const QCommandLineOption dropOption(QStringLiteral("drop-crlf"),
                                        QStringLiteral("Fraction of lines that lose their \"\\r\\n\" and run into the next."),
                                        QStringLiteral("RATE"));
    const QCommandLineOption garbageOption(QStringLiteral("garbage"),
                                           QStringLiteral("Fraction of lines preceded by a burst of random bytes."),
                                           QStringLiteral("RATE"));
    const QCommandLineOption splitOption(QStringLiteral("split"),
                                         QStringLiteral("Deliver the bytes in pieces of 1 to MAX bytes, one write each."),
                                         QStringLiteral("MAX"));
    const QCommandLineOption outputOption(QStringLiteral("output"), QStringLiteral("Write to FILE ('-': standard output)."),
                                          QStringLiteral("FILE"));
    const QCommandLineOption listenOption(
        QStringLiteral("listen"),
        QStringLiteral("Serve any number of TCP clients on 127.0.0.1:PORT (0: any free port, printed on stderr)."),
        QStringLiteral("PORT"));
    const QCommandLineOption waitOption(QStringLiteral("wait-clients"),
                                        QStringLiteral("With --listen: start only when N clients are connected."),
                                        QStringLiteral("N"), QStringLiteral("0"));
    const QCommandLineOption serialOption(QStringLiteral("serial"),
                                          QStringLiteral("Write to a serial device or pseudo-terminal."),
                                          QStringLiteral("PATH"));
    const QCommandLineOption baudOption(QStringLiteral("baud"),
                                        QStringLiteral("Baud rate of --serial; bytes are paced to it (default 460800)."),
                                        QStringLiteral("N"), QStringLiteral("460800"));
    const QCommandLineOption fastOption(QStringLiteral("as-fast-as-possible"),
                                        QStringLiteral("Do not wait for the clock: send as fast as the outputs take it."));
    const QCommandLineOption summaryOption(
        QStringLiteral("summary"),
        QStringLiteral("At the end, print on stderr per console page the lines sent intact and the lines it takes."));
    const QCommandLineOption rtcmOption(
        QStringLiteral("rtcm"),
        QStringLiteral("Be an RTK base station at --lat/--lon/--height: send RTCM 3 (1005, MSM4 of GPS, GLONASS, "
                       "Galileo, BDS at 1 Hz) instead of the mode's messages."));
    const QCommandLineOption correctionsOption(
        QStringLiteral("needs-corrections"),
        QStringLiteral("RTK fixed only while valid RTCM 3 frames come back over --listen or --serial; single after "
                       "5 s without one."));
    parser.addOptions({modeOption, durationOption, seedOption, startOption, latOption, lonOption, heightOption,
                       radiusOption, speedOption, rateOption, listOption, corruptOption, truncateOption, dropOption,
                       garbageOption, splitOption, outputOption, listenOption, waitOption, serialOption, baudOption,
                       fastOption, summaryOption, rtcmOption, correctionsOption});
    parser.process(app);

    SimulatorSettings settings;
    bool ok = false;
    settings.mode = parser.value(modeOption).toInt(&ok);
    if (!ok || !Simulator::isValidMode(settings.mode))
        return fail(QStringLiteral("--mode must be 0, 1, 2, 4, 5 or 7"));
    settings.seed = parser.value(seedOption).toULongLong(&ok);
    if (!ok)
        return fail(QStringLiteral("--seed needs a whole number"));
    settings.startUtc = QDateTime::fromString(parser.value(startOption), Qt::ISODate).toUTC();
    if (!settings.startUtc.isValid())
        return fail(QStringLiteral("--start needs an ISO 8601 time such as 2024-05-20T02:00:00Z"));

    struct NumberOption { const QCommandLineOption *option; double *value; double low, high; };
    double splitMax = 0.0;
    const NumberOption numbers[] = {
        {&latOption, &settings.platform.latitude, -89.0, 89.0},
        {&lonOption, &settings.platform.longitude, -180.0, 180.0},
        {&heightOption, &settings.platform.height, -400.0, 9000.0},
        {&radiusOption, &settings.platform.loopRadius, 1.0, 100000.0},
        {&speedOption, &settings.platform.speed, 0.0, 200.0},
        {&corruptOption, &settings.faults.corruptChecksum, 0.0, 1.0},
        {&truncateOption, &settings.faults.truncate, 0.0, 1.0},
        {&dropOption, &settings.faults.dropTerminator, 0.0, 1.0},
        {&garbageOption, &settings.faults.garbage, 0.0, 1.0},
        {&splitOption, &splitMax, 1.0, 1e6},
    };
    for (const NumberOption &number : numbers) {
        if (!parser.isSet(*number.option))
            continue;
        if (!parseDouble(parser.value(*number.option), number.value) || *number.value < number.low
            || *number.value > number.high)
            return fail(QStringLiteral("--%1 needs a number from %2 to %3")
                            .arg(number.option->names().first())
                            .arg(number.low)
                            .arg(number.high));
    }
    settings.faults.splitMaxBytes = int(splitMax);
    if (settings.faults.corruptChecksum + settings.faults.truncate + settings.faults.dropTerminator > 1.0)
        return fail(QStringLiteral("--corrupt, --truncate and --drop-crlf add up to more than 1"));

    settings.rtcmBase = parser.isSet(rtcmOption);
    settings.needsCorrections = parser.isSet(correctionsOption);
    if (settings.rtcmBase && settings.needsCorrections)
        return fail(QStringLiteral("--rtcm sends corrections; it cannot also need them"));
    // Line faults damage lines; RTCM frames have none (--split still applies).
    if (settings.rtcmBase
        && (settings.faults.corruptChecksum > 0.0 || settings.faults.truncate > 0.0
            || settings.faults.dropTerminator > 0.0 || settings.faults.garbage > 0.0))
        return fail(QStringLiteral("--rtcm takes no --corrupt, --truncate, --drop-crlf or --garbage"));
    if (settings.needsCorrections && settings.mode == 7)
        return fail(QStringLiteral("--needs-corrections needs a mode with RTK (the timing receiver has none)"));
    if (settings.needsCorrections && !parser.isSet(listenOption) && !parser.isSet(serialOption))
        return fail(QStringLiteral("--needs-corrections needs --listen or --serial to read corrections from"));

    for (const QString &rate : parser.values(rateOption)) {
        const int eq = rate.indexOf(QLatin1Char('='));
        double seconds = 0.0;
        const QString name = rate.left(eq).toUpper();
        if (eq < 0 || !parseDouble(rate.mid(eq + 1), &seconds) || seconds < 0.0)
            return fail(QStringLiteral("--rate needs NAME=SECONDS, e.g. --rate RANGE=5"));
        if (!Simulator::isMessageName(name))
            return fail(QStringLiteral("unknown message %1 (see --list-messages)").arg(name));
        settings.periodsMs.insert(name, int(std::lround(seconds * 1000.0)));
    }

    Simulator simulator(settings);
    if (parser.isSet(listOption)) {
        std::printf("Messages of mode %d (name, period in seconds; 0 = off):\n", settings.mode);
        for (const Simulator::Schedule &s : simulator.schedule())
            std::printf("  %-14s %g\n", qPrintable(s.name), s.periodMs / 1000.0);
        return 0;
    }

    qint64 durationMs = -1;
    if (parser.isSet(durationOption)) {
        double seconds = 0.0;
        if (!parseDouble(parser.value(durationOption), &seconds) || seconds < 0.0)
            return fail(QStringLiteral("--duration needs a number of seconds"));
        durationMs = qint64(std::llround(seconds * 1000.0));
    }
    const bool fast = parser.isSet(fastOption);

    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGINT, onInterrupt);
    std::signal(SIGTERM, onInterrupt);

    QList<Output *> outputs;
    std::unique_ptr<QObject> owner(new QObject);
    if (parser.isSet(outputOption)) {
        const QString path = parser.value(outputOption);
        std::FILE *file = path == QLatin1String("-") ? stdout : std::fopen(path.toLocal8Bit().constData(), "wb");
        if (!file)
            return fail(QStringLiteral("cannot write %1").arg(path));
        outputs << new StreamOutput(file, file != stdout, owner.get());
    }
    TcpOutput *tcp = nullptr;
    if (parser.isSet(listenOption)) {
        const uint port = parser.value(listenOption).toUInt(&ok);
        if (!ok || port > 65535)
            return fail(QStringLiteral("--listen needs a port number"));
        tcp = new TcpOutput(fast, owner.get());
        QString error;
        if (!tcp->listen(quint16(port), &error))
            return fail(QStringLiteral("cannot listen on port %1: %2").arg(port).arg(error));
        std::fprintf(stderr, "rxsim: listening on 127.0.0.1:%u\n", unsigned(tcp->port()));
        outputs << tcp;
    }
    if (parser.isSet(serialOption)) {
        const int baud = parser.value(baudOption).toInt(&ok);
        auto *serial = new SerialOutput(fast, owner.get());
        serial->setReadsBack(settings.needsCorrections);
        QString error;
        if (!ok || !serial->open(parser.value(serialOption), baud, &error))
            return fail(error.isEmpty() ? QStringLiteral("--baud needs a number") : error);
        outputs << serial;
    }
    if (outputs.isEmpty())
        outputs << new StreamOutput(stdout, false, owner.get());
    if (settings.needsCorrections) {
        for (Output *output : qAsConst(outputs)) {
            QObject::connect(output, &Output::received, &app, [&simulator](quintptr link, const QByteArray &bytes) {
                simulator.receiveFromLink(link, bytes.constData(), bytes.size());
            });
            QObject::connect(output, &Output::linkClosed, &app,
                             [&simulator](quintptr link) { simulator.closeLink(link); });
        }
    }

    const int waitClients = parser.value(waitOption).toInt(&ok);
    if (!ok || waitClients < 0)
        return fail(QStringLiteral("--wait-clients needs a number"));
    if (waitClients > 0 && !tcp)
        return fail(QStringLiteral("--wait-clients needs --listen"));

    Runner runner(simulator, outputs, durationMs, fast, parser.isSet(summaryOption), settings.mode);
    if (tcp && tcp->clientCount() < waitClients) {
        QObject::connect(tcp, &TcpOutput::clientCountChanged, &runner, [&runner, waitClients](int count) {
            static bool started = false;
            if (!started && count >= waitClients) {
                started = true;
                runner.start();
            }
        });
    } else {
        runner.start();
    }
    // Ctrl-C while still waiting for clients ends the wait.
    QTimer interruptWatch;
    QObject::connect(&interruptWatch, &QTimer::timeout, &app, [&runner] {
        if (g_interrupted && !runner.hasStarted())
            QCoreApplication::exit(130);
    });
    interruptWatch.start(200);
    const int status = app.exec();
    owner.reset();
    return status;
}

// SPDX-License-Identifier: BSD-3-Clause
#include "simulator.h"

#include "messages.h"
#include "pageroutes.h"

#include <QTextStream>

namespace rxsim {

namespace {
int roundToTick(int ms)
{
    return int(std::lround(double(ms) / Simulator::kTickMs)) * Simulator::kTickMs;
}
} // namespace

quint64 Tally::intactFor(const QString &label) const
{
    const int i = labels.indexOf(label);
    return i < 0 ? 0 : intact.at(i);
}

quint64 Tally::takenFor(const QString &label) const
{
    const int i = labels.indexOf(label);
    return i < 0 ? 0 : taken.at(i);
}

QString Tally::summary(int mode) const
{
    QString text;
    QTextStream out(&text);
    int width = 10;
    for (const QString &label : labels)
        width = qMax(width, label.size());
    out << "rxsim: mode " << mode << ", " << QString::number(simulatedMs / 1000.0, 'f', 1) << " s simulated, " << bytes
        << " bytes\n";
    out << qSetFieldWidth(width) << Qt::left << "page" << qSetFieldWidth(10) << Qt::right << "intact" << "taken"
        << qSetFieldWidth(0) << '\n';
    for (int i = 0; i < labels.size(); ++i)
        out << qSetFieldWidth(width) << Qt::left << labels.at(i) << qSetFieldWidth(10) << Qt::right << intact.at(i)
            << taken.at(i) << qSetFieldWidth(0) << '\n';
    out << qSetFieldWidth(width) << Qt::left << "(no page)" << qSetFieldWidth(10) << Qt::right << intactWithoutPage
        << refused << qSetFieldWidth(0) << '\n';
    out << "lines sent: " << linesSent << " (faulted " << linesFaulted << ", run into by others " << linesMerged
        << "), garbage bursts: " << garbageBursts << '\n';
    quint64 takenTotal = 0;
    for (quint64 n : taken)
        takenTotal += n;
    out << "the console cuts " << linesCut << " lines: taken " << takenTotal << ", refused " << refused << '\n';
    out.flush();
    return text;
}

Simulator::Simulator(const SimulatorSettings &settings)
    : m_settings(settings)
    , m_faults(settings.faults, settings.seed)
{
    PlatformSettings platform = settings.platform;
    // The timing receiver's antenna is fixed on a roof; it does no RTK.
    if (settings.mode == 7)
        platform.speed = 0.0;
    const RtkCorrections rtk = settings.mode == 7 ? RtkCorrections::None
        : settings.needsCorrections                ? RtkCorrections::FromLink
                                                   : RtkCorrections::Simulated;
    m_receiver.reset(new Receiver(platform, rtk, settings.seed, settings.startUtc));
    if (settings.rtcmBase)
        m_base.reset(new BaseStation(settings.platform, settings.seed, settings.startUtc));

    const QVector<MessageKind> &kinds = messageKinds();
    for (int i = 0; i < kinds.size(); ++i) {
        if (!(kinds.at(i).modes & modeBit(settings.mode)))
            continue;
        const QString name = QLatin1String(kinds.at(i).name);
        int period = settings.periodsMs.value(name, kinds.at(i).periodMs);
        if (period > 0)
            period = qMax(kTickMs, roundToTick(period));
        m_schedule << Schedule{name, period, roundToTick(kinds.at(i).offsetMs)};
        m_kindIndex << i;
    }

    m_tally.labels = pageLabels(settings.mode);
    m_tally.intact.fill(0, m_tally.labels.size());
    m_tally.taken.fill(0, m_tally.labels.size());
}

Simulator::~Simulator() = default;

bool Simulator::isValidMode(int mode)
{
    return mode == 0 || mode == 1 || mode == 2 || mode == 4 || mode == 5 || mode == 7;
}

QVector<Simulator::Schedule> Simulator::defaultSchedule(int mode)
{
    QVector<Schedule> schedule;
    for (const MessageKind &kind : messageKinds()) {
        if (kind.modes & modeBit(mode))
            schedule << Schedule{QLatin1String(kind.name), kind.periodMs, kind.offsetMs};
    }
    return schedule;
}

bool Simulator::isMessageName(const QString &name)
{
    for (const MessageKind &kind : messageKinds()) {
        if (name == QLatin1String(kind.name))
            return true;
    }
    return false;
}

QVector<QByteArray> Simulator::step()
{
    const qint64 now = m_tick * kTickMs;
    ++m_tick;
    m_tally.simulatedMs = m_tick * kTickMs;
    m_lastLines.clear();

    if (m_base) {
        if (now % kRtcmPeriodMs != 0)
            return {};
        const QByteArray frames = m_base->framesAt(now);
        m_tally.bytes += quint64(frames.size());
        return m_faults.split(frames);
    }

    QVector<int> due;
    for (int i = 0; i < m_schedule.size(); ++i) {
        const Schedule &s = m_schedule.at(i);
        if (s.periodMs > 0 && now >= s.offsetMs && (now - s.offsetMs) % s.periodMs == 0)
            due << m_kindIndex.at(i);
    }
    if (due.isEmpty())
        return {};

    m_receiver->setCorrectionsArriving(m_corrections.arrivingAt(now));
    const Epoch epoch = m_receiver->at(now);
    QByteArray bytes;
    const MessageWriter::LineSink sink = [&](const QByteArray &line) {
        SentLine sent{line, pageForLine(m_settings.mode, line), true};
        const FaultInjector::Fault fault = m_faults.send(line, bytes);
        sent.intact = fault == FaultInjector::Fault::None && !m_faults.lastLineMerged();
        ++m_tally.linesSent;
        if (fault != FaultInjector::Fault::None)
            ++m_tally.linesFaulted;
        else if (!sent.intact)
            ++m_tally.linesMerged;
        if (sent.intact) {
            const int page = m_tally.labels.indexOf(sent.page);
            if (page < 0)
                ++m_tally.intactWithoutPage;
            else
                ++m_tally.intact[page];
        }
        m_lastLines << sent;
    };
    MessageWriter writer(epoch, m_settings.seed, sink);
    for (int kind : qAsConst(due))
        messageKinds().at(kind).write(writer);

    m_tally.garbageBursts = quint64(m_faults.garbageBursts());
    m_tally.bytes += quint64(bytes.size());
    cut(bytes);
    return m_faults.split(bytes);
}

void Simulator::receiveFromLink(quintptr link, const char *data, int size)
{
    m_corrections.feed(link, data, size, nextTickMs());
}

QByteArray Simulator::run(qint64 durationMs)
{
    QByteArray all;
    while (nextTickMs() < durationMs) {
        for (const QByteArray &chunk : step())
            all += chunk;
    }
    return all;
}

// Cuts the stream as the console does, at every "\r\n", and counts where each line
// goes with the pages not on screen.
void Simulator::cut(const QByteArray &bytes)
{
    m_uncut += bytes;
    int start = 0;
    if (m_skipToLineEnd) {
        const int end = m_uncut.indexOf("\r\n");
        if (end < 0) {
            m_uncut.clear();
            return;
        }
        m_skipToLineEnd = false;
        start = end + 2;
    }
    for (int end = m_uncut.indexOf("\r\n", start); end >= 0; end = m_uncut.indexOf("\r\n", start)) {
        const QByteArray line = m_uncut.mid(start, end + 2 - start);
        start = end + 2;
        ++m_tally.linesCut;
        const int page = m_tally.labels.indexOf(pageForLine(m_settings.mode, line));
        if (page < 0)
            ++m_tally.refused;
        else
            ++m_tally.taken[page];
    }
    m_uncut.remove(0, start);
    // Only lost line ends at a rate near one build such a line; the console keeps
    // it, no page takes it, and counting it is not worth unbounded memory here.
    if (m_uncut.size() > kLongestCountedLine) {
        ++m_tally.linesCut;
        ++m_tally.refused;
        m_uncut.clear();
        m_skipToLineEnd = true;
    }
}

} // namespace rxsim

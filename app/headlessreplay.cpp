#include "headlessreplay.h"

#include "linetraffic.h"

#include "messageviewmodules.h"
#include "receiverdocks.h"
#include "trafficdocks.h"
#include "receiverstate.h"
#include "statereport.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QWidget>

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

// Feeds the whole input to the state and the module (the state first: its clock
// stamps what the module reports); returns the bytes read. A file or pipe read blocks
// until bytes arrive and returns nothing at the end.
qint64 feedAll(QIODevice &input, MessageViewModules &module, ReceiverState &state, LineTraffic &traffic)
{
    constexpr qint64 kChunk = 64 * 1024;
    qint64 bytes = 0;
    for (QByteArray chunk = input.read(kChunk); !chunk.isEmpty(); chunk = input.read(kChunk)) {
        bytes += chunk.size();
        state.feed(chunk);
        module.onUpdateBuffer(chunk);
    }
    traffic.finish();
    return bytes;
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

} // namespace

bool writeStateReport(const ReceiverState &state, const LineTraffic &traffic, const QString &path, QString *error)
{
    QFile file;
    const bool opened = path == QLatin1String("-") ? file.open(stdout, QIODevice::WriteOnly)
                                                   : (file.setFileName(path), file.open(QIODevice::WriteOnly));
    QJsonObject report = receiverReport(state.snapshot());
    const MessageStatistics &statistics = traffic.statistics();
    report.insert(QStringLiteral("messages"), statistics.toJson(statistics.latestMs()));
    report.insert(QStringLiteral("garbageBytes"), double(statistics.totals(statistics.latestMs()).garbageBytes));
    const QByteArray json = QJsonDocument(report).toJson(QJsonDocument::Indented);
    if (!opened || file.write(json) != json.size() || !file.flush()) {
        *error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

int runHeadlessReplay(MessageViewModules &module, ReceiverState &state, LineTraffic &traffic, QIODevice &input,
                      QTextStream &out)
{
    QElapsedTimer timer;
    timer.start();
    const qint64 bytes = feedAll(input, module, state, traffic);
    const double seconds = qMax(timer.nsecsElapsed() / 1e9, 1e-9);

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
                QIODevice &input, const QString &directory, QTextStream &out)
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
    feedAll(input, module, state, traffic);
    QCoreApplication::processEvents();

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
    const int views = ReceiverDocks::savePictures(state, directory, out) + trafficPictures.save(directory, out);
    out << written << " pages and " << views << " views written to " << directory << '\n';
    out.flush();
    return written == pages.size() && views == ReceiverDocks::viewCount() + TrafficPictures::count ? 0 : 1;
}

// SPDX-License-Identifier: BSD-3-Clause
// The recording index benchmark: indexes a recorded session, prints what it found and
// its cost, then plans and reads seeks spread over the recording and prints their cost.
//
//   index_bench FILE [SEEKS]
#include "sessionindex.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>

namespace {

long peakRssKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    }
    return -1;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: index_bench FILE [SEEKS]\n");
        return 2;
    }
    const int seeks = argc > 2 ? std::max(1, atoi(argv[2])) : 20;
    QFile file(QString::fromLocal8Bit(argv[1]));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "index_bench: cannot open %s\n", argv[1]);
        return 1;
    }
    const long rssBefore = peakRssKb();
    SessionIndex index;
    QElapsedTimer timer;
    timer.start();
    QString error;
    if (!index.build(file, nullptr, {}, &error)) {
        std::fprintf(stderr, "index_bench: %s\n", qPrintable(error));
        return 1;
    }
    const double seconds = timer.nsecsElapsed() / 1e9;
    int quality = 0, satellites = 0, kinds = 0;
    for (const SessionMarker &marker : index.markers()) {
        quality += marker.kind == SessionMarker::Kind::Quality;
        satellites += marker.kind == SessionMarker::Kind::SatellitesUsed;
        kinds += marker.kind == SessionMarker::Kind::KindAppeared || marker.kind == SessionMarker::Kind::KindStopped;
    }
    const double spanHours = index.epochCount() > 1
        ? (index.epochTimeMs(index.epochCount() - 1) - index.epochTimeMs(0)) / 3.6e6
        : 0.0;
    std::printf("index: %lld bytes in %.2f s (%.1f MB/s); %d epochs over %.2f h of receiver time; markers: %d "
                "quality, %d satellites used, %d message kinds; index holds %.1f MB (peak RSS grew %.1f MB)\n",
                index.fileSize(), seconds, index.fileSize() / seconds / 1e6, index.epochCount(), spanHours, quality,
                satellites, kinds, index.memoryBytes() / 1e6, (peakRssKb() - rssBefore) / 1024.0);

    // Seeks spread evenly, the last one at the end: plan and read what they replay.
    double slowest = 0, total = 0;
    qint64 replayed = 0;
    for (int i = 1; i <= seeks; ++i) {
        const int epoch = int(qint64(index.epochCount() - 1) * i / seeks);
        timer.restart();
        SeekRebuild rebuild;
        if (!readSeekRebuild(file, index.planSeek(epoch), &rebuild, &error)) {
            std::fprintf(stderr, "index_bench: %s\n", qPrintable(error));
            return 1;
        }
        const double taken = timer.nsecsElapsed() / 1e6;
        slowest = std::max(slowest, taken);
        total += taken;
        replayed += rebuild.viewsOnly.size() + rebuild.pageMemory.size() + rebuild.both.size();
    }
    std::printf("seek plans: %d, reading %.1f ms on average, %.1f ms at most; %.2f MB replayed per seek\n", seeks,
                total / seeks, slowest, replayed / double(seeks) / 1e6);
    return 0;
}

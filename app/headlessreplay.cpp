#include "headlessreplay.h"

#include "messageviewmodules.h"

#include <QElapsedTimer>

int runHeadlessReplay(MessageViewModules &module, QIODevice &input, QTextStream &out)
{
    constexpr qint64 kChunk = 64 * 1024;
    QElapsedTimer timer;
    timer.start();
    qint64 bytes = 0;
    // A file or pipe read blocks until bytes arrive and returns nothing at the end.
    for (QByteArray chunk = input.read(kChunk); !chunk.isEmpty(); chunk = input.read(kChunk)) {
        bytes += chunk.size();
        module.onUpdateBuffer(chunk);
    }
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
    out << "bytes: " << bytes << "  seconds: " << QString::number(seconds, 'f', 3)
        << "  MB/s: " << QString::number(bytes / seconds / 1e6, 'f', 1) << '\n';
    out.flush();
    return 0;
}

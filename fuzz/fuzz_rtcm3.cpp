// SPDX-License-Identifier: BSD-3-Clause
// A correction stream of arbitrary bytes fed to the statistics in a few chunk sizes, then
// the snapshot, the report and a baseline taken from what came.
#include "correctionstatistics.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray stream = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    CorrectionStatistics statistics;
    qint64 nowMs = 0;
    for (const int chunkSize : {1, 7, 1029, 65536}) {
        for (int at = 0; at < stream.size(); at += chunkSize, nowMs += 50)
            statistics.feed(stream.constData() + at, qMin(chunkSize, stream.size() - at), nowMs);
        const CorrectionSnapshot snapshot = statistics.snapshot(nowMs);
        correctionsReport(snapshot);
        baselineMetres(snapshot, 48.0, 11.0, 500.0);
    }
    statistics.reset();
    return 0;
}

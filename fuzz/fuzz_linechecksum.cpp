// SPDX-License-Identifier: BSD-3-Clause
// The line checksum against a plain reference: same verdict for any line.
#include "fuzzsupport.h"
#include "linechecksum.h"

#include <QString>

#include <cstdlib>

namespace {

bool referenceCheck(const QString &line)
{
    if (line.isEmpty() || (line.at(0) != '$' && line.at(0) != '#'))
        return false;
    const int star = line.indexOf('*');
    if (star < 0)
        return false;
    const QByteArray body = line.left(star).toLatin1();
    quint32 value = 0;
    for (int i = 1; i < body.size() && body.at(i) != '\0'; ++i) {
        const quint8 b = quint8(body.at(i));
        if (line.at(0) == '$') {
            value ^= b;
        } else {
            value ^= b;
            for (int bit = 0; bit < 8; ++bit)
                value = (value >> 1) ^ (0xEDB88320u & (0u - (value & 1u)));
        }
    }
    bool ok = false;
    const uint received = line.mid(star + 1).toUInt(&ok, 16);
    return ok && received == value;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString line = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    if (checkLineChecksum(line) != referenceCheck(line))
        std::abort();
    return 0;
}

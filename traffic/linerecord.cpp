// SPDX-License-Identifier: BSD-3-Clause
#include "linerecord.h"

#include <algorithm>

QString lineOutcomeName(LineOutcome outcome)
{
    switch (outcome) {
    case LineOutcome::Taken: return QStringLiteral("taken");
    case LineOutcome::NoPage: return QStringLiteral("no page");
    case LineOutcome::Refused: return QStringLiteral("refused");
    case LineOutcome::BadChecksum: return QStringLiteral("bad checksum");
    case LineOutcome::CutShort: return QStringLiteral("cut short");
    case LineOutcome::TooLong: return QStringLiteral("too long");
    case LineOutcome::Garbage: break;
    }
    return QStringLiteral("garbage");
}

bool isDamaged(LineOutcome outcome)
{
    return outcome == LineOutcome::BadChecksum || outcome == LineOutcome::CutShort || outcome == LineOutcome::TooLong;
}

QByteArray messageKind(const char *line, int length)
{
    const int kindLength = messageKindLength(line, length);
    return kindLength < 0 ? QByteArray() : QByteArray(line + 1, kindLength);
}

int messageKindLength(const char *line, int length)
{
    constexpr int longestKind = 32;
    if (!line || length < 1 || (line[0] != '$' && line[0] != '#'))
        return -1;
    const char *begin = line + 1;
    const char *end = begin + std::min(length - 1, longestKind);
    const char *stop = std::find_if(begin, end, [](char c) { return c == ',' || c == '*' || c == '\r' || c == '\n'; });
    return int(stop - begin);
}

int lengthWithoutLineEnd(const QByteArray &bytes)
{
    int length = bytes.size();
    while (length > 0 && (bytes.at(length - 1) == '\n' || bytes.at(length - 1) == '\r'))
        --length;
    return length;
}

QString lineText(const QByteArray &bytes, bool hexDump, int maxBytes)
{
    const auto isPrintable = [](char c) { return c >= 0x20 && c < 0x7f; };
    int length = lengthWithoutLineEnd(bytes);
    hexDump = hexDump || !std::all_of(bytes.cbegin(), bytes.cbegin() + length, isPrintable);
    if (hexDump)
        length = bytes.size();
    const int shown = std::min(length, std::max(maxBytes, 0));
    const QByteArray part = QByteArray::fromRawData(bytes.constData(), shown);
    QString text = hexDump ? QString::fromLatin1(part.toHex(' ')) : QString::fromLatin1(part);
    if (shown < length)
        text += QChar(0x2026);
    return text;
}

// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QString>

#include <limits>

// What became of a line the console cut from the receiver's stream, or of a stretch
// of bytes that was no line. The message view reports them; this layer keeps, counts
// and filters them without widgets.
enum class LineOutcome : quint8 {
    Taken,       // a page took it
    NoPage,      // intact, but no page of the mode is for it
    Refused,     // intact and for a page, which did not take it (a wrong field count)
    BadChecksum, // its checksum does not match
    CutShort,    // it ends before its checksum
    TooLong,     // longer than the longest line a page is offered (bytes not kept)
    Garbage,     // bytes that are no line: they do not start with '$' or '#'
};

// "taken", "no page", "refused", "bad checksum", "cut short", "too long", "garbage".
QString lineOutcomeName(LineOutcome outcome);
// The outcomes that count as damage: bad checksum, cut short, too long.
bool isDamaged(LineOutcome outcome);

struct LineRecord
{
    qint64 receivedMs = 0; // when the console received it, ms since the epoch (UTC)
    LineOutcome outcome = LineOutcome::Garbage;
    int page = -1;       // the page that took it, or the page whose header it matched; else -1
    qint64 size = 0;     // bytes, "\r\n" included (bytes may hold fewer for a line too long)
    QByteArray kind;     // messageKind() of the line; empty for garbage
    QByteArray bytes;
};

// The characters between the leading '$' or '#' and the first ',' or '*' (or the line
// end): "GPGSA", "GNGGA", "PGRME", "BESTPOSA". Empty when the line does not start
// with '$' or '#'. At most 32 characters are looked at.
QByteArray messageKind(const char *line, int length);
// The same kind without a copy: its length (it starts at line + 1), or -1 for a line
// that does not start with '$' or '#'.
int messageKindLength(const char *line, int length);

// The length of the bytes without the "\r" and "\n" they end in.
int lengthWithoutLineEnd(const QByteArray &bytes);
// The bytes for a person to read: the text without its line end when every byte is
// printable ASCII and hexDump is false, otherwise every byte in hex ("24 47 50 0d 0a"),
// so that garbage and control bytes are shown exactly. Beyond maxBytes bytes the text
// ends in "…": a table cell need not lay out a 256 KB line.
QString lineText(const QByteArray &bytes, bool hexDump, int maxBytes = std::numeric_limits<int>::max());

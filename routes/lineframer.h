// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <cstring>
#include <utility>

// The receiver's text framing: a line ends at "\r\n" (a lone '\r' or '\n' does not end
// it). Everything that reads lines from a byte stream cuts them here, so the pages,
// the receiver state and the tools see the same lines.

// The line ends in bytes[searchFrom, size): calls onLine(begin, length) for every
// complete line from lineStart on, its "\r\n" included, and returns where the
// unfinished rest begins (.first) and where the next search for "\r\n" starts
// (.second). A line longer than maxLineBytes (without its "\r\n") is never offered:
// droppingLongLine is set while the rest of such a line is skipped up to its line end.
// Every stretch of bytes dropped so goes to onDropped(begin, length, startsLine),
// startsLine false for the later stretches of the same line.
template <typename OnLine, typename OnDropped>
std::pair<int, int> scanLines(const char *bytes, int size, int lineStart, int searchFrom, bool &droppingLongLine,
                              int maxLineBytes, OnLine &onLine, OnDropped &onDropped)
{
    while (searchFrom < size) {
        const char *cr = static_cast<const char *>(memchr(bytes + searchFrom, '\r', size - searchFrom));
        if (!cr) {
            searchFrom = size;
            break;
        }
        const int crAt = int(cr - bytes);
        if (crAt + 1 >= size) {
            searchFrom = crAt; // a '\r' at the end: look at it again with the next bytes
            break;
        }
        if (bytes[crAt + 1] != '\n') {
            searchFrom = crAt + 1;
            continue;
        }
        const int lineEnd = crAt + 2;
        if (droppingLongLine || crAt - lineStart > maxLineBytes) {
            onDropped(bytes + lineStart, lineEnd - lineStart, !droppingLongLine);
            droppingLongLine = false;
        } else {
            onLine(bytes + lineStart, lineEnd - lineStart);
        }
        lineStart = lineEnd;
        searchFrom = lineEnd;
    }
    // Past the limit the partial line is dropped, and so is the rest of it up to its
    // line end; a trailing '\r' is kept as it may begin that line end.
    if (searchFrom - lineStart > maxLineBytes) {
        onDropped(bytes + lineStart, searchFrom - lineStart, !droppingLongLine);
        droppingLongLine = true;
        lineStart = searchFrom;
    }
    return {lineStart, searchFrom};
}

// Cuts the lines of the next chunk of a stream. buffer holds the unfinished line of
// the chunks before and scanFrom where its search for "\r\n" goes on, so bytes already
// scanned are never scanned again however the stream is chunked; the buffer never
// holds much more than maxLineBytes. Only the bytes that finish the buffered line are
// copied: the lines after it are offered straight from data, and its unfinished rest
// is kept for the next chunk.
template <typename OnLine, typename OnDropped>
void takeLines(QByteArray &buffer, int &scanFrom, bool &droppingLongLine, int maxLineBytes, const QByteArray &data,
               OnLine &&onLine, OnDropped &&onDropped)
{
    const char *bytes = data.constData();
    const int size = data.size();
    int dataFrom = 0;
    if (!buffer.isEmpty()) {
        // The buffered line ends at the first "\r\n" of data, or at a '\n' that
        // follows the '\r' the buffer ends with.
        int joined = size;
        if (buffer.endsWith('\r') && size > 0 && bytes[0] == '\n') {
            joined = 1;
        } else {
            for (const char *cr = static_cast<const char *>(memchr(bytes, '\r', size)); cr && cr + 1 < bytes + size;
                 cr = static_cast<const char *>(memchr(cr + 1, '\r', size_t(bytes + size - cr - 1)))) {
                if (cr[1] == '\n') {
                    joined = int(cr - bytes) + 2;
                    break;
                }
            }
        }
        buffer.append(bytes, joined);
        const auto rest = scanLines(buffer.constData(), buffer.size(), 0, scanFrom, droppingLongLine, maxLineBytes, onLine,
                                    onDropped);
        buffer.remove(0, rest.first);
        scanFrom = rest.second - rest.first;
        if (joined == size)
            return;
        dataFrom = joined;
    }
    const auto rest = scanLines(bytes, size, dataFrom, dataFrom, droppingLongLine, maxLineBytes, onLine, onDropped);
    buffer = QByteArray(bytes + rest.first, size - rest.first);
    scanFrom = rest.second - rest.first;
}

// takeLines() with its state held together, for readers that own one stream.
class LineFramer
{
public:
    explicit LineFramer(int maxLineBytes) : m_maxLineBytes(maxLineBytes) {}

    template <typename OnLine>
    void feed(const QByteArray &data, OnLine &&onLine)
    {
        feed(data, onLine, [](const char *, int, bool) {});
    }
    // With the stretches of lines too long to offer (onDropped(begin, length, startsLine)).
    template <typename OnLine, typename OnDropped>
    void feed(const QByteArray &data, OnLine &&onLine, OnDropped &&onDropped)
    {
        takeLines(m_buffer, m_scanFrom, m_droppingLongLine, m_maxLineBytes, data, onLine, onDropped);
    }
    void clear()
    {
        m_buffer.clear();
        m_scanFrom = 0;
        m_droppingLongLine = false;
    }
    int bufferedBytes() const { return m_buffer.size(); }

private:
    QByteArray m_buffer;
    int m_scanFrom = 0;
    bool m_droppingLongLine = false;
    int m_maxLineBytes;
};

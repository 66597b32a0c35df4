#pragma once

#include <QByteArray>
#include <cstring>

// The receiver's text framing: a line ends at "\r\n" (a lone '\r' or '\n' does not end
// it). Everything that reads lines from a byte stream cuts them here, so the pages,
// the receiver state and the tools see the same lines.
//
// Appends data to buffer and calls onLine(begin, length) for every complete line, its
// "\r\n" included, then keeps only the unfinished rest. scanFrom is where the next
// search for "\r\n" starts, so bytes already scanned are never scanned again however
// the stream is chunked. A line longer than maxLineBytes (without its "\r\n") is never
// offered: droppingLongLine is set while the rest of such a line is skipped up to its
// line end, and the buffer never holds much more than maxLineBytes.
template <typename OnLine>
void takeLines(QByteArray &buffer, int &scanFrom, bool &droppingLongLine, int maxLineBytes, const QByteArray &data,
               OnLine &&onLine)
{
    buffer.append(data);
    const char *bytes = buffer.constData();
    const int size = buffer.size();
    int lineStart = 0;
    int searchFrom = scanFrom;
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
        if (droppingLongLine || crAt - lineStart > maxLineBytes)
            droppingLongLine = false;
        else
            onLine(bytes + lineStart, lineEnd - lineStart);
        lineStart = lineEnd;
        searchFrom = lineEnd;
    }
    // Past the limit the partial line is dropped, and so is the rest of it up to its
    // line end; a trailing '\r' is kept as it may begin that line end.
    if (searchFrom - lineStart > maxLineBytes) {
        droppingLongLine = true;
        lineStart = searchFrom;
    }
    buffer.remove(0, lineStart);
    scanFrom = searchFrom - lineStart;
}

// takeLines() with its state held together, for readers that own one stream.
class LineFramer
{
public:
    explicit LineFramer(int maxLineBytes) : m_maxLineBytes(maxLineBytes) {}

    template <typename OnLine>
    void feed(const QByteArray &data, OnLine &&onLine)
    {
        takeLines(m_buffer, m_scanFrom, m_droppingLongLine, m_maxLineBytes, data, onLine);
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

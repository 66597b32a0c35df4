// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>

class QApplication;

// One offscreen application for the whole fuzzing run.
QApplication &fuzzApplication();

// Reads the fuzzer's bytes as a little stream of choices followed by payload.
class FuzzInput
{
public:
    FuzzInput(const uint8_t *data, size_t size) : m_data(data), m_size(size) {}
    uint8_t takeByte() { return m_offset < m_size ? m_data[m_offset++] : 0; }
    QByteArray take(int count);
    QByteArray rest() { return take(int(m_size - m_offset)); }
    bool empty() const { return m_offset >= m_size; }

private:
    const uint8_t *m_data;
    size_t m_size;
    size_t m_offset = 0;
};

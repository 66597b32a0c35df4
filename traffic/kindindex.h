// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QHash>
#include <QVector>

// Numbers the kinds of message in the order they first came, at most maxKinds of them:
// a stream of random bytes can invent a new kind with every line, and every kind costs
// memory and a row in each table. Kinds after the limit share the entry otherKinds()
// ("(other)"; a real kind of that name shares it too).
class KindIndex
{
public:
    static constexpr int maxKinds = 4096;
    static const QByteArray &otherKinds();

    // The kind's number, the kind added when new; otherKinds()' number once full.
    int add(const QByteArray &kind);
    // What add() would give, without adding; -1 for a kind not seen while there is room.
    int find(const QByteArray &kind) const;
    const QByteArray &kindAt(int index) const { return m_kinds.at(index); }
    int size() const { return m_kinds.size(); }
    void clear();

private:
    QHash<QByteArray, int> m_numbers;
    QVector<QByteArray> m_kinds;
    int m_other = -1;
};

// SPDX-License-Identifier: BSD-3-Clause
#include "kindindex.h"

const QByteArray &KindIndex::otherKinds()
{
    static const QByteArray name("(other)");
    return name;
}

int KindIndex::add(const QByteArray &kind)
{
    const int known = find(kind);
    if (known >= 0)
        return known;
    const bool full = m_kinds.size() >= maxKinds;
    const QByteArray &added = full ? otherKinds() : kind;
    const int number = m_kinds.size();
    m_kinds << added;
    m_numbers.insert(added, number);
    if (full || added == otherKinds())
        m_other = number;
    return number;
}

int KindIndex::find(const QByteArray &kind) const
{
    const int known = m_numbers.value(kind, -1);
    if (known >= 0 || m_kinds.size() < maxKinds)
        return known;
    return m_other;
}

void KindIndex::clear()
{
    m_numbers.clear();
    m_kinds.clear();
    m_other = -1;
}

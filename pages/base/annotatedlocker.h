// SPDX-License-Identifier: BSD-3-Clause
#pragma once

// QMutex locks and unlocks inside QtCore, which a thread-sanitizer build does not
// instrument, so the sanitizer would not see the ordering a mutex gives. This locker
// tells it, so such a build checks the data a mutex guards instead of flagging all of
// it. Elsewhere it is a plain scoped lock.

#include <QtGlobal>

#if defined(__SANITIZE_THREAD__)
#define MESSAGEVIEW_THREAD_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define MESSAGEVIEW_THREAD_SANITIZER 1
#endif
#endif

#ifdef MESSAGEVIEW_THREAD_SANITIZER
#include <sanitizer/tsan_interface.h>
#endif

// Marks the point after which a thread's writes are visible to whoever passes the
// matching annotateTakeOver on the same address (a queued signal's sender and slot).
inline void annotateHandOver(const void *address)
{
#ifdef MESSAGEVIEW_THREAD_SANITIZER
    __tsan_release(const_cast<void *>(address));
#else
    Q_UNUSED(address);
#endif
}

inline void annotateTakeOver(const void *address)
{
#ifdef MESSAGEVIEW_THREAD_SANITIZER
    __tsan_acquire(const_cast<void *>(address));
#else
    Q_UNUSED(address);
#endif
}

template <typename Mutex>
class AnnotatedMutexLocker
{
public:
    explicit AnnotatedMutexLocker(Mutex *mutex)
        : m_mutex(mutex)
    {
        m_mutex->lock();
        annotateTakeOver(m_mutex);
    }
    ~AnnotatedMutexLocker()
    {
        annotateHandOver(m_mutex);
        m_mutex->unlock();
    }
    AnnotatedMutexLocker(const AnnotatedMutexLocker &) = delete;
    AnnotatedMutexLocker &operator=(const AnnotatedMutexLocker &) = delete;

private:
    Mutex *m_mutex;
};

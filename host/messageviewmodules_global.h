// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/qglobal.h>

#if defined(MESSAGEVIEW_LIBRARY)
#define MESSAGEVIEW_EXPORT Q_DECL_EXPORT
#else
#define MESSAGEVIEW_EXPORT Q_DECL_IMPORT
#endif

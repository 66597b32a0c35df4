// SPDX-License-Identifier: BSD-3-Clause
// Built only by the test internal_headers_stay_private, which expects it not to compile:
// linking the library's objects must not put the internal folders on the include path.
#include "msgbasewidget.h"

int main()
{
    return 0;
}

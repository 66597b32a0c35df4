#include "messageviewmetaobjctx.h"

// The timing receivers' pages under "Time".
const MessageViewCatalogue timingCatalogue = {nullptr, 0};

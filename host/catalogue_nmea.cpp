#include "messageviewmetaobjctx.h"

// The NMEA sentence pages under "NMEA", every one in every mode that shows them.
const MessageViewCatalogue nmeaCatalogue = {nullptr, 0};

// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "gnssdecode.h"

#include <QString>
#include <memory>

// The decode page's view of a decoder: the operations of the maker's GNSSDecode
// library, one to one. Either the maker's library loaded at run time stands behind
// it, or the built-in NMEA decoder when no such library is found.
class GnssDecoder
{
public:
    virtual ~GnssDecoder();
    virtual int putData(const unsigned char *data, int length) = 0;
    virtual int getMsgs(KV_GNSS_MSGID_T *list) = 0;
    virtual int getMsg(void *record, unsigned int msgId) = 0;
    virtual int structDataToStr(const void *record, char *text, int option) = 0;
    virtual int setOutMsgId(unsigned int msgId) = 0;
};

// Names the maker library's file; when unset, "GNSSDecode" is looked for in the
// application's directory and then on the system's library path.
constexpr char kGnssDecodeEnvironment[] = "MESSAGEVIEW_GNSSDECODE";

struct GnssDecoderChoice
{
    std::unique_ptr<GnssDecoder> decoder;
    bool makerLibrary = false;
    // The maker library's file when it is in use, or the file that could not be used.
    QString libraryFile;
    // Why the library named by the environment could not be used; empty when it was
    // used or when none was named and none was found.
    QString failure;
};

// The maker library when one loads and exports all five functions, else the
// built-in NMEA decoder.
GnssDecoderChoice openGnssDecoder();

// SPDX-License-Identifier: BSD-3-Clause
/*
 * The C interface of the receiver maker's decode library GNSSDecode, as the binary
 * decode page uses it. The library is loaded at run time (see gnssdecoder.h); a
 * decoder built to this header and exporting these five functions slots in.
 *
 * The library keeps one decoder state per process. It writes at most the sizes
 * below into the buffers its caller provides; the caller never trusts a count or a
 * text beyond them either.
 */
#ifndef GNSSDECODE_H
#define GNSSDECODE_H

#ifdef __cplusplus
extern "C" {
#endif

/* Entries of the list buffer handed to GNSSGetMsgs. */
#define KV_GNSS_MSGID_MAX 256
/* Bytes of the record buffer handed to GNSSGetMsg. */
#define KV_GNSS_MSG_RECORD_SIZE 32768
/* Bytes of the text buffer handed to structDataToStr, terminating zero included. */
#define KV_GNSS_MSG_TEXT_SIZE 32768

/* One message kind the decoder has seen. */
typedef struct KV_GNSS_MSGID_T
{
    unsigned int msgId;
} KV_GNSS_MSGID_T;

/* Hands a chunk of received bytes to the decoder. Returns the number of complete
 * messages (of the kinds chosen with GNSSSetOutMsgID) now available; 0 or less: none. */
int GNSSPutData(const unsigned char *data, int length);

/* Writes the ids of the message kinds seen so far into list; returns their count. */
int GNSSGetMsgs(KV_GNSS_MSGID_T *list);

/* Writes the latest message of kind msgId into record; returns 0 on success. */
int GNSSGetMsg(void *record, unsigned int msgId);

/* Writes the field values of a record filled by GNSSGetMsg into text as one
 * comma-separated, zero-terminated line. option 0 is the plain rendering. Kinds
 * carrying lists (satellites, signals, group delays) render one group of fields per
 * list entry, each group beginning with its system name: GPS, GLO, GAL, BDS, QZSS or
 * NAVIC. Returns the text's length, negative on failure. */
int structDataToStr(const void *record, char *text, int option);

/* Chooses the message kind whose messages GNSSPutData counts (0: every kind). */
int GNSSSetOutMsgID(unsigned int msgId);

typedef int (*GNSSPutDataFn)(const unsigned char *, int);
typedef int (*GNSSGetMsgsFn)(KV_GNSS_MSGID_T *);
typedef int (*GNSSGetMsgFn)(void *, unsigned int);
typedef int (*structDataToStrFn)(const void *, char *, int);
typedef int (*GNSSSetOutMsgIDFn)(unsigned int);

#ifdef __cplusplus
}
#endif

#endif

#ifndef TONELAKE_CALL_H
#define TONELAKE_CALL_H

/* Tonelake for other languages: what `zyndle rpc` answers, in the caller's own process.
 *
 * The library keeps its settings in memory, tells the time by the machine's clock and time zone,
 * and writes diagnostic lines to standard error. Any thread may call any function; calls of
 * tonelake_call take turns. */

#ifdef __cplusplus
extern "C" {
#endif

#define TONELAKE_CALL_API __attribute__((visibility("default")))

/* Carries out one JSON-RPC 2.0 message, a request or a batch, in UTF-8:
 *
 *   {"jsonrpc":"2.0","id":1,"method":"lookUpChord","params":{"name":"F#m7b5"}}
 *
 * Returns the answer, one line without a line break, to be given back to tonelake_free. What is
 * wrong with the message stands in the answer. NULL where there is none: for notifications, when
 * `message` is NULL, and when memory has run out. */
TONELAKE_CALL_API char* tonelake_call(const char* message);

/* Gives an answer back. NULL is passed over. */
TONELAKE_CALL_API void tonelake_free(char* answer);

/* The library's version, for example "0.1.0". */
TONELAKE_CALL_API const char* tonelake_version(void);

#ifdef __cplusplus
}
#endif

#endif

#!/usr/bin/env python3
# Prints a chord's notes: "chord.py F#m7b5". TONELAKE_CALL names the library where the system does
# not find it.
import ctypes, json, os, sys

library = ctypes.CDLL(os.environ.get("TONELAKE_CALL", "libtonelake_call.so.0.1"))
library.tonelake_call.restype = ctypes.c_void_p

def call(method, **parameters):
    message = {"jsonrpc": "2.0", "id": 1, "method": method, "params": parameters}
    answer = ctypes.c_void_p(library.tonelake_call(json.dumps(message).encode()))
    result = json.loads(ctypes.string_at(answer))["result"]
    library.tonelake_free(answer)
    return result

if len(sys.argv) != 2:
    sys.exit("usage: chord.py NAME, for example F#m7b5")
chord = call("lookUpChord", name=sys.argv[1])
print(*call("getNotesOfChord", chord=chord) if chord else ["no such chord"])

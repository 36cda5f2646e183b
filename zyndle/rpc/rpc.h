#pragma once

#include "zyndle/rpc/rpc_context.h"

namespace zyndle {

/// Answers JSON-RPC 2.0 messages, one a line, until the input ends or nobody reads the answers any
/// more. Each answer is one line, written before the next message is read. Blank lines are passed
/// over; a line of more than 8 MiB is refused unread. `input` and `output` are file descriptors
/// and stay open. From here on SIGPIPE is ignored in the process. Returns the exit status: 0, or 1
/// when reading or writing failed, which one diagnostic line tells.
///
/// {"jsonrpc":"2.0","id":1,"method":"getNote","params":{"from":69}}
/// {"jsonrpc":"2.0","id":1,"result":{"note":"A","octave":4}}
int runRpc(int input, int output, RpcContext context);

}  // namespace zyndle

#pragma once

#include <functional>
#include <string_view>

#include "Tonelake/foundation/json.h"

namespace zyndle {

namespace json = tonelake::json;

// The messages of JSON-RPC 2.0, apart from the methods behind them.

enum class RpcError {
  notJson = -32700,
  notARequest = -32600,
  unknownMethod = -32601,
  badParameters = -32602,
  internal = -32603,  ///< a fault of ours or of the machine, such as no memory left
};

/// A method: its result for its parameters, always an object. Throws json::DecodingError, whose
/// text names the parameter, for parameters that it does not take.
using RpcMethod = std::function<json::Value(const json::Node& parameters)>;

/// The method of a name, empty when there is none.
using RpcMethodFinder = std::function<RpcMethod(std::string_view name)>;

/// Takes an answer piece by piece, so that the answers of a long batch need not be held together.
using AnswerSink = std::function<void(std::string_view)>;

/// Carries out one message, a request or a batch of them, and hands its answer over as one line
/// with its line break; nothing for notifications, which are carried out all the same. Whatever
/// the message is, this returns, unless the sink throws.
void answerMessage(std::string_view message, const RpcMethodFinder& methods,
                   const AnswerSink& sink);

/// Hands over the answer to a message that was never read, for the reason given.
void refuseMessage(RpcError error, std::string_view reason, const AnswerSink& sink);

}  // namespace zyndle

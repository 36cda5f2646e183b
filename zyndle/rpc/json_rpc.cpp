#include "zyndle/rpc/json_rpc.h"

#include <cstddef>
#include <exception>
#include <string>

#include "Tonelake/foundation/text.h"
#include "zyndle/rpc/request_ids.h"

namespace zyndle {
namespace {

constexpr std::string_view noId = "null";

// Answers are put together as text: the id goes back as it came, and results are not copied.
std::string resultAnswer(std::string_view id, const json::Value& result) {
  return std::string(R"({"jsonrpc":"2.0","id":)").append(id) + R"(,"result":)" +
         json::write(result) + "}";
}

// A message may quote what it complains about, and that may be megabytes long.
std::string shortened(std::string_view message) {
  constexpr std::size_t longest = 500;
  const std::string_view front = tonelake::frontOf(message, longest);
  return std::string(front) + (front.size() < message.size() ? "…" : "");
}

std::string errorAnswer(std::string_view id, RpcError error, std::string_view message) {
  return std::string(R"({"jsonrpc":"2.0","id":)").append(id) + R"(,"error":{"code":)" +
         std::to_string(static_cast<int>(error)) + R"(,"message":)" +
         json::write(shortened(message)) + "}}";
}

const json::Value* findMember(const json::Value& object, std::string_view key) {
  const auto found = object.find(key);
  return found == object.end() ? nullptr : &*found;
}

bool mayBeId(const json::Value& id) {
  return id.is_string() || id.is_number() || id.is_null();
}

// What keeps an object from being a request, or "".
std::string_view problemOf(const json::Value& request) {
  const json::Value* version = findMember(request, "jsonrpc");
  const json::Value* method = findMember(request, "method");
  const json::Value* parameters = findMember(request, "params");
  if (version == nullptr || *version != "2.0") return R"(jsonrpc: expected "2.0")";
  if (method == nullptr || !method->is_string()) return "method: expected a text";
  if (parameters != nullptr && !parameters->is_structured() && !parameters->is_null()) {
    return "params: expected an object";
  }
  return "";
}

// The answer to a well-formed request.
std::string carryOut(const json::Value& request, std::string_view id,
                     const RpcMethodFinder& methods) {
  static const json::Value none = json::Value::object();
  const auto& name = request.at("method").get_ref<const std::string&>();
  const json::Value* given = findMember(request, "params");
  try {
    const RpcMethod method = methods(name);
    if (!method) return errorAnswer(id, RpcError::unknownMethod, "unknown method: " + name);
    // Some callers write null or an empty list where there is nothing to hand over.
    const json::Value& parameters = given == nullptr || given->empty() ? none : *given;
    if (parameters.is_array()) {
      return errorAnswer(id, RpcError::badParameters, "params: parameters are named, not listed");
    }
    return resultAnswer(id, method(json::Node(parameters)));
  } catch (const json::DecodingError& error) {
    return errorAnswer(id, RpcError::badParameters, error.what());
  } catch (const std::exception& error) {
    return errorAnswer(id, RpcError::internal, error.what());
  }
}

// One request's answer, "" for a notification.
std::string answerRequest(const json::Value& request, std::size_t index, RequestIds& ids,
                          const RpcMethodFinder& methods) {
  if (!request.is_object()) {
    return errorAnswer(noId, RpcError::notARequest, "a request is an object");
  }
  const json::Value* given = findMember(request, "id");
  if (given != nullptr && !mayBeId(*given)) {
    return errorAnswer(noId, RpcError::notARequest, "id: expected a text, a number or null");
  }
  const std::string id = given == nullptr ? std::string(noId) : ids.write(*given, index);
  const std::string_view problem = problemOf(request);
  if (!problem.empty()) return errorAnswer(id, RpcError::notARequest, problem);
  const std::string answer = carryOut(request, id, methods);
  return given == nullptr ? "" : answer;
}

void answerBatch(const json::Value& batch, RequestIds& ids, const RpcMethodFinder& methods,
                 const AnswerSink& sink) {
  if (batch.empty()) {
    sink(errorAnswer(noId, RpcError::notARequest, "a batch holds at least one request") + "\n");
    return;
  }
  bool hasAnswers = false;
  for (std::size_t i = 0; i < batch.size(); ++i) {
    const std::string answer = answerRequest(batch[i], i, ids, methods);
    if (answer.empty()) continue;
    sink(hasAnswers ? "," : "[");
    sink(answer);
    hasAnswers = true;
  }
  if (hasAnswers) sink("]\n");
}

}  // namespace

void answerMessage(std::string_view message, const RpcMethodFinder& methods,
                   const AnswerSink& sink) {
  json::Value value;
  try {
    value = json::parse(message);
  } catch (const json::DecodingError& error) {
    return refuseMessage(RpcError::notJson, error.what(), sink);
  } catch (const std::exception& error) {
    return refuseMessage(RpcError::internal, error.what(), sink);
  }
  RequestIds ids(message, value.is_array());
  if (value.is_array()) return answerBatch(value, ids, methods, sink);
  const std::string answer = answerRequest(value, 0, ids, methods);
  if (!answer.empty()) sink(answer + "\n");
}

void refuseMessage(RpcError error, std::string_view reason, const AnswerSink& sink) {
  sink(errorAnswer(noId, error, reason) + "\n");
}

}  // namespace zyndle

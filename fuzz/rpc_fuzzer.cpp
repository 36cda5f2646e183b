#include <algorithm>

#include "Desktop/gregorian_calendar.h"
#include "Tonelake/foundation/text.h"
#include "fuzz/json_agreement.h"
#include "zyndle/rpc/calendar_at.h"
#include "zyndle/rpc/json_rpc.h"
#include "zyndle/rpc/method_table.h"

// Messages to the scripting interface, one a line: every answer is one line of JSON under the id of
// its request, and no fault is ours.

namespace fuzz {
namespace {

using namespace zyndle;

// What an input gives must not depend on the day.
tonelake::Instant now() {
  return std::chrono::sys_days(std::chrono::year(2025) / 3 / 7) + std::chrono::hours(9);
}

RpcContext makeHost() {
  return {calendarAt(now(), tonelake::makeUtcCalendar()),
          [](const std::string& zone) { return desktop::makeGregorianCalendar(zone, now); }};
}

std::string answerTo(std::string_view message) {
  static const RpcMethodFinder methods = methodsFor(makeHost());
  std::string answer;
  answerMessage(message, methods, [&](std::string_view text) { answer += text; });
  return answer;
}

bool isKnownError(const json::Value& code) {
  constexpr RpcError known[] = {RpcError::notJson, RpcError::notARequest, RpcError::unknownMethod,
                                RpcError::badParameters};
  return std::any_of(std::begin(known), std::end(known),
                     [&](RpcError error) { return code == static_cast<int>(error); });
}

void requireSound(const json::Value& answer) {
  constexpr std::size_t longestMessage = 600;  // bytes
  require(answer.is_object() && answer.size() == 3 && answer.at("jsonrpc") == "2.0" &&
              answer.contains("id"),
          "an answer has its version, its id and one thing more");
  if (answer.contains("result")) return;
  const json::Value& error = answer.at("error");
  require(isKnownError(error.at("code")), "an error is the caller's");
  const std::string message = error.at("message");
  require(!message.empty() && message.size() < longestMessage, "an error says what is wrong");
}

// The id that an answer must have: that of the request, where it may be one.
json::Value idOf(const json::Value& request) {
  if (!request.is_object() || !request.contains("id")) return nullptr;
  const json::Value& id = request.at("id");
  return id.is_string() || id.is_number() ? id : nullptr;
}

void examineMessage(std::string_view message) {
  const auto request = parseJson(message);
  const std::string answer = answerTo(message);
  if (answer.empty()) {
    require(request.has_value(), "what is no JSON is answered");
    return;
  }
  require(answer.find('\n') == answer.size() - 1, "an answer is one line");
  const json::Value value = json::parse(answer);
  const bool isBatch = request && request->is_array() && !request->empty();
  require(value.is_array() == isBatch, "a batch of requests has a batch of answers");
  if (isBatch) {
    require(value.size() <= request->size(), "a request has one answer");
    std::for_each(value.begin(), value.end(), requireSound);
  } else {
    requireSound(value);
    require(value.at("id") == (request ? idOf(*request) : json::Value()), "an id goes back");
  }
}

}  // namespace

void examine(std::string_view input) {
  for (const std::string_view message : tonelake::split(input, '\n')) examineMessage(message);
}

std::vector<std::string> seeds() {
  std::vector<std::string> seeds{
      R"([{"jsonrpc":"2.0","method":"allNotes"},{"jsonrpc":"2.0","id":1.50,"method":"getNote"},7])"};
  for (const char* file : {"chords", "fingerings_and_diagrams", "widgets", "wrong_parameters"}) {
    const std::string rows =
        projectFile(std::string("tests/zyndle/rpc_examples/") + file + ".jsonl");
    for (const std::string_view row : tonelake::split(rows, '\n')) {
      if (row.empty()) continue;
      const json::Value example = json::parse(row);
      const json::Value request{{"jsonrpc", "2.0"},
                                {"id", 1},
                                {"method", example.at("method")},
                                {"params", example.at("params")}};
      seeds.push_back(json::write(request));
    }
  }
  return seeds;
}

}  // namespace fuzz

#include "zyndle/rpc/rpc.h"

#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include "Tonelake/foundation/json.h"
#include "Tonelake/platform/platform.h"
#include "tests/zyndle/rpc/rpc_answers.h"

namespace zyndle {
namespace {

namespace json = tonelake::json;

const std::string ping = request("getNote", R"({"from":60})");
const std::string pong = R"({"jsonrpc":"2.0","id":1,"result":{"note":"C","octave":4}})";

std::string refusal(const std::string& id, int code, const std::string& message) {
  return R"({"jsonrpc":"2.0","id":)" + id + R"(,"error":{"code":)" + std::to_string(code) +
         R"(,"message":")" + message + "\"}}";
}

// Each row's answer, "" for none, is followed by the answer to a ping: the process goes on.
TEST(Rpc, FollowsTheProtocol) {
  const auto asking = [](const std::string& members) {
    return "{" + members +
           R"(,"method":"getIntervalFromAlteredScaleDegree","params":{"token":"1"}})";
  };
  const auto withId = [&](const std::string& id) {
    return asking(R"("jsonrpc":"2.0","id":)" + id);
  };
  const auto unison = [](const std::string& id) {
    return R"({"jsonrpc":"2.0","id":)" + id + R"(,"result":"Unison"})";
  };
  const std::string notification = asking(R"("jsonrpc":"2.0")");
  const std::string badVersion = R"(jsonrpc: expected \"2.0\")";
  const std::string badId = "id: expected a text, a number or null";
  const std::string noRequest = refusal("null", -32600, "a request is an object");
  const std::pair<std::string, std::string> rows[] = {
      // Ids go back as they came.
      {withId("7"), unison("7")},
      {withId("null"), unison("null")},
      {withId(R"("a\"♯")"), unison(R"("a\"♯")")},
      {withId("-9223372036854775808"), unison("-9223372036854775808")},
      {withId("18446744073709551615"), unison("18446744073709551615")},
      {withId("12345678901234567890123"), unison("12345678901234567890123")},
      {withId("1.50"), unison("1.50")},
      {asking(R"("x":{"id":2.5},"id":1e3,"y":[{"id":3.5}],"z":4.5,"jsonrpc":"2.0")"),
       unison("1e3")},
      {asking(R"("id":1.5,"jsonrpc":"2.0","id":2.5)"), unison("2.5")},
      {withId("true"), refusal("null", -32600, badId)},
      {withId("[1]"), refusal("null", -32600, badId)},
      // Lines.
      {" \t" + withId("7") + " \r", unison("7")},
      {"", ""},
      {" \r", ""},
      {"{} {}", refusal("null", -32700, "not JSON (at byte 4)")},
      {R"({"jsonrpc":"2.0","method")", refusal("null", -32700, "not JSON (at byte 26)")},
      {R"("request")", noRequest},
      // Objects that are no requests.
      {"{}", refusal("null", -32600, badVersion)},
      {asking(R"("id":5)"), refusal("5", -32600, badVersion)},
      {asking(R"("jsonrpc":2.0,"id":5)"), refusal("5", -32600, badVersion)},
      {R"({"jsonrpc":"2.0","method":1})", refusal("null", -32600, "method: expected a text")},
      {R"({"jsonrpc":"2.0","id":5,"result":1})", refusal("5", -32600, "method: expected a text")},
      {R"({"jsonrpc":"2.0","id":5,"method":"allNotes","params":"x"})",
       refusal("5", -32600, "params: expected an object")},
      // Methods and parameters.
      {R"({"jsonrpc":"2.0","id":5,"method":"getnote","params":[1]})",
       refusal("5", -32601, "unknown method: getnote")},
      {R"({"jsonrpc":"2.0","id":5,"method":"getNote","params":[60]})",
       refusal("5", -32602, "params: parameters are named, not listed")},
      {R"({"jsonrpc":"2.0","id":5,"method":"getNote","params":[]})",
       refusal("5", -32602, "from: missing")},
      {R"({"jsonrpc":"2.0","id":5,"method":"getNote"})", refusal("5", -32602, "from: missing")},
      // Notifications are never answered, unless nobody can tell that they are some.
      {notification, ""},
      {R"({"jsonrpc":"2.0","method":"nothing"})", ""},
      {R"({"jsonrpc":"2.0","method":"getNote","params":{"from":"C"}})", ""},
      // Batches.
      {"[]", refusal("null", -32600, "a batch holds at least one request")},
      {"[" + notification + "," + notification + "]", ""},
      {"[" + notification + "," + withId("1") + "]", "[" + unison("1") + "]"},
      {"[1.5," + withId("2.50") + "," + notification + ",[" + withId("3") + "]," + withId("4.5") +
           "]",
       "[" + noRequest + "," + unison("2.50") + "," + noRequest + "," + unison("4.5") + "]"},
  };
  for (const auto& [line, answer] : rows) {
    std::vector<std::string> expected{answer, pong};
    if (answer.empty()) expected.erase(expected.begin());
    EXPECT_EQ(answersTo(std::string(line).append("\n").append(ping)), expected) << line;
  }
}

TEST(Rpc, SurvivesHostileLines) {
  const auto letters = [](std::size_t count) { return std::string(count, 'x'); };
  const std::string tenMillion = letters(10'000'000);
  const std::string eightMillion = letters(8'000'000);
  std::string manyKeys;
  for (int i = 0; i < 5000; ++i) manyKeys.append("\"").append(std::to_string(i)).append("\":0,");
  struct Row {
    std::string line;
    int code;
    const char* message;
  };
  const Row rows[] = {
      {std::string(10'000, '['), -32700, "nested deeper than 32"},
      {request("getNote", std::string(10'000, '[') + std::string(10'000, ']')), -32700, "nested"},
      {tenMillion, -32700, "more than 8 MiB"},
      {request("Note", R"({"rawValue":")" + tenMillion + R"("})"), -32700, "more than 8 MiB"},
      {request("getChordPianoNotes", R"({"root":")" + eightMillion + R"("})"), -32602,
       "root: \"xxxxxx"},
      {request("Note", "{\"rawValue\":\"\xC3\x28\"}"), -32700, "not JSON"},
      {request("Note", "{\"rawValue\":\"\xED\xA0\x80\"}"), -32700, "not JSON"},
      {request("getNote", R"({"from":1e999})"), -32700, "not JSON"},
      {ping + std::string("\0{", 2), -32700, "not JSON"},
      {request("getNote", "{" + manyKeys + "\"from\":60}"), -32700, "4096 keys"},
      {request("getNote", R"({"from":1.9})"), -32602, "from: expected a whole number"},
      {request("getNote", R"({"from":true})"), -32602, "from: expected a whole number"},
      {request("getNote", R"({"from":9223372036854775808})"), -32602, "from: expected a whole"},
      {request("getNote", R"({"from":1000000000000000000000})"), -32602, "from: expected a whole"},
      {request("getNote", R"({"from":60,"from":"C"})"), -32602, "from: expected a whole number"},
  };
  for (const Row& row : rows) {
    const auto answers = answersTo(row.line + "\n" + ping);
    ASSERT_EQ(answers.size(), 2U) << row.line.substr(0, 100);
    const json::Value error = json::parse(answers[0]).at("error");
    EXPECT_EQ(error.at("code"), row.code) << row.line.substr(0, 100);
    const std::string message = error.at("message");
    EXPECT_NE(message.find(row.message), std::string::npos) << message;
    EXPECT_LT(message.size(), 1000U) << "an error does not repeat a long input";
    EXPECT_EQ(answers[1], pong) << row.line.substr(0, 100);
  }
}

TEST(Rpc, TakesLinesUpToTheLimit) {
  constexpr std::size_t limit = std::size_t{8} << 20U;
  const std::string longest = ping + std::string(limit - ping.size(), ' ');
  const std::string tooLong = refusal("null", -32700, "a line of more than 8 MiB");
  using Answers = std::vector<std::string>;
  EXPECT_EQ(answersTo(longest + "\n" + longest), (Answers{pong, pong}));
  EXPECT_EQ(answersTo(longest + " \n" + ping + "\n" + longest + " "),
            (Answers{tooLong, pong, tooLong}));
  EXPECT_EQ(answersTo(longest + longest + longest + "\n\n" + ping), (Answers{tooLong, pong}));
}

TEST(Rpc, AnswersALineBeforeTheNextOneComes) {
  int in[2];
  int out[2];
  ASSERT_EQ(::pipe(in), 0);
  ASSERT_EQ(::pipe(out), 0);
  int status = -1;
  std::thread rpc([&] { status = runRpc(in[0], out[1], testContext()); });
  const std::string text = ping + "\n{\"json";
  ASSERT_EQ(::write(in[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
  pollfd answer{out[0], POLLIN, 0};
  constexpr int patience = 60'000;  // milliseconds; only a fault takes them
  EXPECT_EQ(::poll(&answer, 1, patience), 1);
  // Nobody reads any more: the rest of the line meets a closed pipe, and that is a quiet end.
  ::close(out[0]);
  EXPECT_EQ(::write(in[1], "\"\n", 2), 2);
  rpc.join();
  EXPECT_EQ(status, 0);
  for (const int descriptor : {in[0], in[1], out[1]}) ::close(descriptor);
  EXPECT_EQ(runRpc(-1, -1, testContext()), 1) << "nothing can be read";
}

// The files show callers in any language what to send and what comes back.
TEST(Rpc, AnswersAsInTheExamples) {
  for (const char* file : {"chords", "fingerings_and_diagrams", "widgets", "wrong_parameters"}) {
    expectExamples(std::string(RPC_EXAMPLES) + "/" + file + ".jsonl");
  }
}

TEST(Rpc, ReadsThisMachinesSettingsUnlessGivenSome) {
  const auto& store = tonelake::processPlatform().sharedSettings;
  const std::string power5 = R"({"rootNote":"B","chordType":"5","variant":0})";
  store->setData("recentlyViewedChords", "[" + power5 + "]");
  const std::string recent = R"("kind":"ZyndleExtraLargeRecentChords")";
  expectResults({
      {"getTimeline", recent, "/entries/0/chords/0", power5},
      {"getTimeline", recent + R"(,"settings":null)", "/entries/0/chords/0", power5},
      {"getTimeline", recent + R"(,"settings":{})", "/entries/0/chords/0/rootNote", "\"C\""},
  });
  store->remove("recentlyViewedChords");
}

// The machine's own calendar is UTC here; midnight comes nine hours earlier in Tokyo.
TEST(Rpc, AsksTheCalendarOfTheZone) {
  const auto chordAt = [](const std::string& instant, const std::string& more) {
    const std::string line =
        request("chordOfTheDay", R"({"category":"jazz","for":")" + instant + "\"" + more + "}");
    const auto answers = answersTo(std::string(line).append("\n").append(line));
    EXPECT_EQ(answers.at(0), answers.at(1)) << "the zone's calendar is kept";
    return json::parse(answers.at(0)).at("result");
  };
  const std::string tokyo = R"(,"timeZone":"Asia/Tokyo")";
  const json::Value first = chordAt("2025-01-01T12:00:00Z", "");
  EXPECT_NE(first, chordAt("2025-01-02T12:00:00Z", ""));
  EXPECT_EQ(first, chordAt("2024-12-31T15:00:00Z", tokyo));
  EXPECT_EQ(first, chordAt("2025-01-01T23:59:59+09:00", tokyo));
  EXPECT_NE(first, chordAt("2024-12-31T14:59:59Z", tokyo));
  EXPECT_NE(first, chordAt("2024-12-31T15:00:00Z", R"(,"timeZone":null)"));
}

}  // namespace
}  // namespace zyndle

#include "zyndle/rpc/rpc.h"

#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include "Tonelake/foundation/json.h"
#include "tests/zyndle/rpc_answers.h"

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

const std::string major = R"("chord":{"rootNote":"C","chordType":"major","variant":0})";
const std::string overE = R"("chord":{"rootNote":"C","chordType":"major","variant":1})";
const std::string noSuchBass = R"("chord":{"rootNote":"C","chordType":"major","variant":3})";
const std::string unknown = R"("chord":{"rootNote":"C","chordType":"Major","variant":9})";
const std::string openC = R"({"position":[-1,3,2,0,1,0],"fingering":[0,3,2,0,1,0]})";

TEST(Rpc, GivesNotesAndChords) {
  expectResults({
      {"Note", R"("rawValue":"E♯")", "",
       R"({"case":"Es","rawValue":"E♯","semitoneOffset":1,"enharmonics":["F","D♯𝄪","G♭♭"]})"},
      {"Note", R"("rawValue":"Db")", "", "null"},
      {"allNotes", "", "/size", "45"},
      {"allNotes", "", "/24/semitoneOffset", "13"},
      {"getNote", R"("from":127)", "", R"({"note":"G","octave":9})"},
      {"getNote", R"("from":1099511627776)", "", "null"},
      {"getNote", R"("from":-1)", "", "null"},
      {"getNoteWithDistance", R"("distance":3,"degree":3,"note":"E♭")", "", R"("G♭")"},
      {"getNoteWithDistance", R"("distance":99,"degree":-9,"note":"H")", "", R"("")"},
      {"getIntervalFromAlteredScaleDegree", R"("token":"♭♭7")", "", R"("Diminished Seventh")"},
      {"chordTypes", "", "/6", R"("5")"},
      {"allRootNotes", "", "/16", R"("B♭")"},
      {"getChordData", R"("forChordType":"major")", "",
       R"({"title":"major","shortTitle":"maj","includesSpace":true,"otherNames":["","M"],)"
       R"("formula":"1-3-5","notes":[0,4,7]})"},
      {"getChordData", R"("forChordType":"Major")", "", "null"},
      {"priorityList", "", "/0",
       "{" + major + R"(,"fingerings":[[-1,3,2,0,1,0],[-1,3,2,0,1,3],[-1,3,5,5,5,3],)" +
           "[8,10,10,9,8,8]]}"},
      {"lookUpChord", R"("name":"F#m7b5/E")", "",
       R"({"rootNote":"F♯","chordType":"minor 7th flat 5","variant":3})"},
      {"lookUpChord", R"("name":"H")", "", "null"},
      {"getNotesOfChord", overE, "", R"(["C","E","G"])"},
      {"getNotesOfChord", unknown, "", "[]"},
      {"getTitleForChord", overE, "", R"("C major/E")"},
      {"getTitleForChord", overE + R"(,"maxChars":4)", "", R"("Cmaj/E")"},
      {"getTitleForChord", overE + R"(,"maxChars":null)", "", R"("C major/E")"},
      {"getTitleForChord", unknown, "", R"("")"},
      {"getShortestTitleForChord", overE, "", R"("C/E")"},
      {"getShortestTitleForChord", unknown, "", R"("")"},
      {"getAlternateTitlesForChord", noSuchBass, "", R"(["Cmajor","Cmaj","C major","CM"])"},
      {"getIntervalsOfChord", noSuchBass, "", R"(["Unison","Major Third","Perfect Fifth"])"},
      {"getIntervalsOfChordForToday", overE, "", R"(["Major Third","Perfect Fifth","Root"])"},
      {"getNoteNumbersForChord", major, "", "[36,40,43,48,52]"},
      {"getChordPianoNotes", R"("root":"D♯𝄪","formula":[0,7,4])", "", "[53,60,69]"},
      {"getChordPianoNotes", R"("root":"E","formula":[2147483648,-2147483648])", "",
       "[2147483688,2147483696]"},
  });
}

TEST(Rpc, GivesFingeringsDaysAndDiagrams) {
  const std::string openPosition = major + R"(,"position":[-1,3,2,0,1,0])";
  const std::string standard = R"(,"tuning":["E","A","D","G","B","E"])";
  expectResults({
      {"getChordPositions", major + R"(,"limit":1)", "", "[" + openC + "]"},
      {"getChordPositions", major + R"(,"limit":0,"tuning":null)", "", "[]"},
      {"getChordPositions", major + R"(,"tuning":["E","A","D","G","B","H"])", "", "[]"},
      {"getChordPositions", unknown, "", "[]"},
      {"resolveChordPosition", major, "", openC},
      {"resolveChordPosition", major + R"(,"selectedPosition":[8,10,10,9,8,8])", "/position",
       "[8,10,10,9,8,8]"},
      {"resolveChordPosition",
       major + R"(,"presetPosition":[9,10,10,9,8,8],"usesChordPositionsCache":true)", "/position",
       "[8,10,10,9,8,8]"},
      {"resolveChordPosition", unknown, "", "null"},
      {"generateChordShapes", R"("rootNote":"C","intervals":[0,4,7],"limit":1)" + standard, "",
       "[" + openC + "]"},
      {"generateChordShapes", R"("rootNote":"H","intervals":[0],"limit":-1)" + standard, "", "[]"},
      {"assignFingers", R"("frets":[-1,3,2,0,1,0])", "", "[0,3,2,0,1,0]"},
      {"assignFingers", R"("frets":[0,0,0,9223372036854775807,0,-9223372036854775808])", "/size",
       "6"},
      {"findVoicings", overE + R"(,"limit":1,"maxFret":3)", "",
       R"([{"position":[-1,-1,2,0,1,0],"fingering":[0,0,2,0,1,0],"cost":68}])"},
      {"findVoicings", overE + R"(,"maxFret":9223372036854775807,"limit":0)", "", "[]"},
      {"findVoicings", major + R"(,"maxFret":0)", "", "[]"},
      {"findVoicings", overE + R"(,"maxFret":3,"maxInnerMutes":0)", "/size", "7"},
      {"findVoicings", overE + R"(,"maxFret":3,"maxInnerMutes":9)", "/size", "28"},
      {"findVoicings", major + R"(,"capo":3,"limit":1)", "/0/position", "[-1,0,2,2,2,0]"},
      {"findVoicings", noSuchBass, "", "[]"},
      {"findVoicings", unknown, "", "[]"},
      {"connectVoicings", R"("chords":[)" + major.substr(8) + "," + overE.substr(8) + "]", "/0",
       openC},
      {"connectVoicings", R"("chords":[])", "", "[]"},
      {"connectVoicings", R"("chords":[)" + unknown.substr(8) + "]", "", "[]"},
      {"chordFilters", R"("label":"dim")", "", R"(["diminished","diminished 7th"])"},
      {"chordFilters", R"("label":"Dim")", "", "null"},
      {"chordFilters", R"("label":null)", "/9", R"(["9","minor add 9","minor 6 add 9"])"},
      {"getAllChords", "", "/size", "1098"},
      {"ChordView", openPosition + R"(,"fingering":[])", "",
       R"({"scale":1,"baseFret":1,"displayedFrets":[-1,3,2,0,1,0],"dots":[)"
       R"({"stringIndex":1,"x":40.5,"y":82,"finger":-1},)"
       R"({"stringIndex":2,"x":54.5,"y":59,"finger":-1},)"
       R"({"stringIndex":4,"x":82.5,"y":36,"finger":-1}],"barres":[],"noteLabels":[]})"},
      {"ChordView", openPosition + R"(,"fingering":[0,3,2,0,1,0],"width":60)", "/scale", "0.5"},
      {"ChordView", openPosition + R"(,"fingering":[0,3,2,0,1,0],"isLeftHanded":true)", "/dots/2",
       R"({"stringIndex":4,"x":82.5,"y":82,"finger":3})"},
      {"ChordView", major + R"(,"position":[8,10,10,9,8,8],"fingering":[1,3,4,2,1,1])", "/baseFret",
       "8"},
      {"ChordView", major + R"(,"position":[8,10,10,9,8,8],"fingering":[1,3,4,2,1,1])", "/barres/1",
       R"({"startStringIndex":4,"endStringIndex":5,"fret":1,"x":91,"y":41.2,"width":14})"},
      {"ChordView", openPosition + R"(,"fingering":[],"displayNotes":true)", "/noteLabels/1",
       R"({"stringIndex":2,"note":"E","x":61,"y":135})"},
      {"fingeringInstructions", R"("position":[-1,0,2,2,2,0],"fingering":[0,0,1,2,3,0])", "/3",
       R"("Let ring the first and fifth strings in open positions")"},
      {"fingeringInstructions", R"("position":[0,0,0,0,0,0],"fingering":[])", "", "[]"},
      {"stringShape", R"("width":10,"height":100,"displacement":4,"touchY":0.25)", "",
       R"({"start":[5,0],"control1":[9,12.5],"control2":[9,62.5],"end":[5,100]})"},
  });
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

TEST(Rpc, NamesTheParameterThatIsWrong) {
  const std::string standard = R"(,"tuning":["E","A","D","G","B","E"])";
  const std::string five = R"(,"tuning":["E","A","D","G","B"])";
  const std::string badRoot = R"("chord":{"rootNote":"Db","chordType":"major","variant":0})";
  const std::string noVariant = R"("chord":{"rootNote":"C","chordType":"major"})";
  const std::string allOpen = major + R"(,"position":[0,0,0,0,0,0])";
  expectRefusals({
      {"Note", R"("rawValue":7)", "rawValue: expected a text"},
      {"Note", R"("rawValue":null)", "rawValue: expected a text"},
      {"getNote", R"("from":0)", "from: a MIDI"},
      {"getNote", R"("from":11)", "from: a MIDI"},
      {"getNoteWithDistance", R"("distance":36,"degree":1,"note":"C")", "distance: "},
      {"getNoteWithDistance", R"("distance":-1,"degree":1,"note":"C")", "distance: "},
      {"getNoteWithDistance", R"("distance":0,"degree":0,"note":"C")", "degree: "},
      {"getTitleForChord", noSuchBass, "chord.variant: "},
      {"getTitleForChord", badRoot, "chord.rootNote: \"Db\" is not a note"},
      {"getTitleForChord", noVariant, "chord.variant: missing"},
      {"getTitleForChord", "\"chord\":\"C\"", "chord: expected an object"},
      {"getTitleForChord", major + R"(,"maxChars":"4")", "maxChars: expected a whole number"},
      {"getShortestTitleForChord", noSuchBass, "chord.variant: "},
      {"getNoteNumbersForChord", unknown, "chord: "},
      {"getChordPianoNotes", R"("root":"C","formula":[0,2147483649])", "formula[1]: "},
      {"getChordPositions", major + R"(,"limit":-2)", "limit: "},
      {"getChordPositions", major + five, "tuning: expected six"},
      {"getChordPositions", unknown + five, "tuning: expected six"},
      {"getChordPositions", major + R"(,"tuning":["E","A","D","G","B",5])", "tuning[5]: "},
      {"resolveChordPosition", major + R"(,"selectedPosition":[1])", "selectedPosition: expected"},
      {"resolveChordPosition", major + R"(,"presetPosition":[0,0,0,0,0,0,0])", "presetPosition: "},
      {"generateChordShapes", R"("rootNote":"C","intervals":[],"limit":1)" + standard,
       "intervals: "},
      {"generateChordShapes", R"("rootNote":"C","intervals":[0,-1],"limit":1)" + standard,
       "intervals[1]: "},
      {"generateChordShapes", R"("rootNote":"C","intervals":[0],"limit":1)", "tuning: missing"},
      {"assignFingers", R"("frets":[0,0,0,0,1])", "frets: expected six"},
      {"findVoicings", major + R"(,"limit":-2)", "limit: "},
      {"findVoicings", major + R"(,"maxFret":-1)", "maxFret: "},
      {"findVoicings", major + R"(,"maxInnerMutes":true)", "maxInnerMutes: "},
      {"findVoicings", major + R"(,"capo":13)", "capo: expected a whole number from 0 to 12"},
      {"findVoicings", major + five, "tuning: expected six"},
      {"connectVoicings", major, "chords: missing"},
      {"connectVoicings", R"("chords":[{"rootNote":"C"}])", "chords[0].chordType: missing"},
      {"chordOfTheDay", R"("for":"2025-02-29T00:00:00Z","category":"jazz")", "for: "},
      {"chordOfTheDay", R"("for":"2025-02-28T00:00:00Z","category":"Jazz")", "category: \"Jazz\""},
      {"chordOfTheDay",
       R"("for":"2025-02-28T00:00:00Z","category":"jazz","timeZone":"Mars/Olympus")",
       "timeZone: \"Mars/Olympus\""},
      {"ChordView", major + R"(,"position":[0,0,0],"fingering":[])", "position: expected six"},
      {"ChordView", allOpen + R"(,"fingering":[0])", "fingering: expected six"},
      {"ChordView", allOpen + R"(,"fingering":[],"width":"1")", "width: expected a number"},
      {"ChordView", allOpen + R"(,"fingering":[],"isLeftHanded":1)", "isLeftHanded: expected true"},
      {"fingeringInstructions", R"("position":[0],"fingering":[0])", "position: expected six"},
      {"stringShape", R"("width":1e300,"height":1,"displacement":4,"touchY":1)", "width: "},
      {"stringShape", R"("width":1,"height":1,"displacement":4)", "touchY: missing"},
  });
}

}  // namespace
}  // namespace zyndle

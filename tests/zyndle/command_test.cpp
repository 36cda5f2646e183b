// Runs the built program as a user would.

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Desktop/files.h"
#include "Tonelake/chords/chord_json.h"
#include "Tonelake/foundation/json.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/today/today_chord_library.h"
#include "tests/desktop/temporary_folder.h"
#include "tests/support/program_run.h"
#include "tests/zyndle/command_runner.h"
#include "zyndle/text_columns.h"
#include "zyndle/text_layout.h"

namespace zyndle {
namespace {

using testing::AllOf;
using testing::Each;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using tonelake::json::Value;
using tonelake::testing::ProgramResult;

class Command : public testing::Test, protected CommandRunner {};

// One plain line that holds `problem`, and nothing else.
void expectProblem(const ProgramResult& result, int status, const std::string& problem) {
  EXPECT_EQ(result.status, status);
  EXPECT_EQ(result.output, "");
  EXPECT_THAT(result.errors, AllOf(StartsWith("zyndle: "), HasSubstr(problem), EndsWith("\n"),
                                   Not(HasSubstr("\033"))));
  EXPECT_EQ(countLines(result.errors), 1U) << result.errors;
  EXPECT_TRUE(tonelake::isValidUtf8(result.errors));
}

// A call and a part of what comes of it.
struct Call {
  std::vector<std::string> arguments;
  std::string text;
};

// Calls of a file beside this one, a JSON object a line: "arguments" and the text under `key`.
std::vector<Call> readCalls(const std::string& file, const char* key) {
  std::vector<Call> calls;
  std::ifstream rows(std::string(COMMAND_CALLS) + "/" + file);
  for (std::string line; std::getline(rows, line);) {
    const Value row = tonelake::json::parse(line);
    calls.push_back({row.at("arguments"), row.at(key)});
  }
  EXPECT_FALSE(calls.empty()) << file;
  return calls;
}

TEST_F(Command, AnswersWithStatusAndText) {
  for (const Call& row : readCalls("answered_commands.jsonl", "output")) {
    SCOPED_TRACE(tonelake::join(row.arguments, " "));
    const ProgramResult result = run(row.arguments);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_THAT(result.output, HasSubstr(row.text));
    EXPECT_THAT(result.output, Not(HasSubstr("\033")));
    if (result.output.starts_with("<svg") || row.arguments.back() == "-") continue;
    for (const std::string_view line : tonelake::split(result.output, '\n')) {
      EXPECT_LE(countColumns(line), pageWidth) << line;
    }
  }
}

TEST_F(Command, RefusesBadArgumentsInOneLine) {
  std::vector<Call> calls = readCalls("refused_commands.jsonl", "error");
  // What no JSON text can hold.
  calls.push_back({{"chord", "\xff\xfe\x1b[31m"}, "UTF-8"});
  calls.push_back({{"collections", "add", "\xC3(", "C"}, "is not valid UTF-8"});
  for (const Call& row : calls) {
    SCOPED_TRACE(tonelake::join(row.arguments, " "));
    expectProblem(run(row.arguments), 2, row.text);
  }
}

// Entry (day of the year - 1) of the list, in every time zone the same calendar day.
TEST_F(Command, EveryDayHasItsChord) {
  const std::pair<const char*, std::size_t> rows[] = {
      {"2024-01-01", 1},   {"2024-02-29", 60},  {"2024-03-01", 61}, {"2024-12-31", 366},
      {"2025-01-01", 1},   {"2025-02-28", 59},  {"2025-03-01", 60}, {"2025-12-31", 365},
      {"1900-12-31", 365}, {"2000-12-31", 366}, {"0001-01-01", 1},  {"9999-12-31", 365},
  };
  const tonelake::TodayChordLibrary library;
  const std::array lists{&library.beginnerChords, &library.advancedChords, &library.jazzChords};
  const std::array<std::string, 3> categories{"beginner", "advanced", "jazz"};
  for (const char* zone : {"UTC", "Pacific/Kiritimati", "America/Los_Angeles"}) {
    for (const auto& [date, ordinal] : rows) {
      const std::size_t turn = ordinal % categories.size();
      SCOPED_TRACE(std::string(date) + " " + zone + " " + categories[turn]);
      const Value today =
          json({"today", "--json", "--date", date, "--category", categories[turn]}, zone);
      EXPECT_EQ(today["date"], date);
      EXPECT_EQ(today["category"], categories[turn]);
      EXPECT_EQ(today["chord"], tonelake::encodeChord(lists[turn]->at(ordinal - 1)));
    }
  }
}

TEST_F(Command, TodayIsTheUsersDay) {
  // Zones 26 hours apart never share a date.
  const std::string east = json({"today", "--json"}, "Pacific/Kiritimati")["date"];
  const std::string west = json({"today", "--json"}, "Etc/GMT+12")["date"];
  EXPECT_GT(east, west);

  expectProblem(run({"today", "--date", "2011-12-30"}, "Pacific/Apia"), 2,
                "no 2011-12-30 in the time zone Pacific/Apia");
  EXPECT_EQ(run({"today", "--date", "2011-12-31"}, "Pacific/Apia").status, 0);
}

TEST_F(Command, JsonHoldsWhatTheTextTells) {
  const auto keysOf = [](const Value& object) {
    std::vector<std::string> keys;
    for (const auto& item : object.items()) keys.push_back(item.key());
    return keys;
  };
  const Value today = json({"today", "--json"});
  EXPECT_THAT(keysOf(today),
              testing::ElementsAre("date", "category", "chord", "title", "shortTitle", "notes",
                                   "intervals", "position", "instructions"));
  EXPECT_EQ(today["position"]["position"].size(), 6U);
  EXPECT_THAT(today["intervals"], testing::Contains("Root"));

  const Value chord =
      json({"chord", "c/g", "--json", "--limit", "2", "--tuning", "DADGAD", "--capo", "2"});
  EXPECT_THAT(keysOf(chord),
              testing::ElementsAre("chord", "title", "shortTitle", "notes", "intervals", "names",
                                   "tuning", "capo", "positions", "instructions", "character",
                                   "genre", "description", "jazzDescription"));
  EXPECT_EQ(chord["capo"], 2);
  EXPECT_EQ(chord["title"], "C major/G");
  EXPECT_EQ(chord["tuning"], Value({"D", "A", "D", "G", "A", "D"}));
  EXPECT_EQ(chord["positions"].size(), 2U);
  EXPECT_THAT(chord["names"], testing::Contains("C/G"));
}

// Shapes are counted from the capo: what sounds as E♭ is played as C.
TEST_F(Command, CapoKeepsTheShapesAndRaisesTheSound) {
  const auto playedAs = [this](const std::string& command, const std::string& sounding,
                               const std::string& played, const std::string& key) {
    const Value with = json({command, sounding, "--capo", "3", "--json"});
    const Value without = json({command, played, "--json"});
    EXPECT_EQ(with[key], without[key]) << command << " " << sounding;
    EXPECT_FALSE(with[key].empty()) << command << " " << sounding;
  };
  playedAs("chord", "Eb", "C", "positions");
  playedAs("chord", "Eb/G", "C/E", "positions");
  playedAs("voicings", "Bb7/D", "G7/B", "voicings");
  const Value row = json({"connect", "Eb Cm", "--capo", "3", "--json"});
  ASSERT_EQ(row["chords"].size(), 2U);
  EXPECT_EQ(row["chords"][1]["title"], "C minor");
  EXPECT_EQ(row["chords"][1]["voicing"]["position"], Value({-1, 0, 2, 2, 1, 0}));
}

TEST_F(Command, SettingsChangeWhatTodayShows) {
  EXPECT_EQ(json({"today", "--json"})["category"], "beginner");
  EXPECT_EQ(run({"settings", "get", "todayChordCategory"}).status, 1);
  EXPECT_EQ(run({"settings", "set", "todayChordCategory", "jazz"}).status, 0);
  EXPECT_EQ(run({"settings", "get", "todayChordCategory"}).output, "jazz\n");
  EXPECT_EQ(json({"today", "--json"})["category"], "jazz");
  EXPECT_EQ(json({"today", "--json", "--category", "advanced"})["category"], "advanced");

  const std::string plain = run({"chord", "C"}).output;
  EXPECT_EQ(run({"settings", "set", "left_handed", "true"}).status, 0);
  const std::string mirrored = run({"chord", "C"}).output;
  EXPECT_NE(mirrored, plain);
  EXPECT_EQ(run({"chord", "C", "--right-handed"}).output, plain);
  EXPECT_EQ(run({"settings", "delete", "left_handed"}).status, 0);
  EXPECT_EQ(run({"chord", "C"}).output, plain);
  EXPECT_EQ(run({"chord", "C", "--left-handed"}).output, mirrored);
  EXPECT_THAT(run({"settings", "list"}).output, HasSubstr("todayChordCategory     jazz\n"));
}

TEST_F(Command, AsciiIsAsciiThroughout) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"chord", "F#m7b5/A", "--ascii", "--tuning", "half step down"},
        {"chord", "Cdim7", "--ascii"},
        {"today", "--ascii", "--category", "jazz"},
        {"chord", "F#maj77", "--ascii"},
        {"connect", "F#7", "--tuning", "CCCCCC", "--ascii"}}) {
    const ProgramResult result = run(arguments);
    const std::string text = result.output + result.errors;
    EXPECT_FALSE(text.empty());
    const auto byteOf = [](char c) { return static_cast<unsigned char>(c); };
    EXPECT_THAT(text, Each(testing::ResultOf(byteOf, AllOf(testing::Ge('\n'), testing::Lt(0x80)))));
  }
}

TEST_F(Command, TellsWhatItCannotDo) {
  struct Row {
    std::vector<std::string> arguments;
    std::string problem;
    std::string outputFile;
  };
  const Row rows[] = {
      {{"chord", "C", "--svg", folder_.path("no/such.svg")}, folder_.path("no/such.svg"), ""},
      {{"chord", "C", "--svg", folder_.path()}, "cannot write", ""},
      {{"today"}, "standard output: No space left", "/dev/full"},
      {{"chord", "C", "--json"}, "standard output: No space left", "/dev/full"},
      {{"chord", "C", "--svg", "/dev/full"}, "/dev/full", ""},
      {{"widget", "chord", "--format", "pdf"}, "standard output: No space left", "/dev/full"},
      {{"gallery", "/dev/null"}, "/dev/null", ""},
      {{"host", "/dev/null"}, "/dev/null", ""},
      {{"--help"}, "standard output: No space left", "/dev/full"},
      {{"settings", "get", "left_handed"}, "left_handed is not set", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(tonelake::join(row.arguments, " "));
    expectProblem(run(row.arguments, "UTC", row.outputFile), 1, row.problem);
  }
}

TEST_F(Command, EndsQuietlyWhenNobodyReads) {
  tonelake::testing::ProgramRun program{{ZYNDLE_PROGRAM, "chord", "C"}, {}, "", ""};
  program.environment = {"TZ=UTC", "XDG_DATA_HOME=" + folder_.path()};
  program.readerIsGone = true;
  const ProgramResult result = runProgram(program);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, "");
}

TEST_F(Command, NamesSharedSettingsThatCannotBeOpened) {
  std::filesystem::create_directory(folder_.path("zyndle"));
  folder_.write("zyndle/shared.sqlite", "This is no database, however long one looks at it.");
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"today"},
                                                    {"chord", "C"},
                                                    {"settings", "list"},
                                                    {"settings", "set", "left_handed", "true"}}) {
    SCOPED_TRACE(tonelake::join(arguments, " "));
    expectProblem(run(arguments), 1, "zyndle/shared.sqlite");
  }
}

TEST_F(Command, DrawsEveryWidget) {
  const std::pair<const char*, const char*> rows[] = {
      {"chord", "zyndle://widget/chord?root="},
      {"ZyndleChordWidget", "zyndle://widget/chord?root="},
      {"launcher", "zyndle://widget/metronome"},
      {"recent", "zyndle://widget/search"},
      {"collections", "zyndle://widget/collection?title="},
  };
  for (const auto& [kind, link] : rows) {
    const ProgramResult svg = run({"widget", kind});
    EXPECT_EQ(svg.status, 0) << svg.errors;
    EXPECT_THAT(svg.output, AllOf(StartsWith("<svg "), HasSubstr(link))) << kind;
    EXPECT_THAT(json({"widget", kind, "--format", "json"}).dump(), HasSubstr(link)) << kind;
    EXPECT_THAT(run({"widget", kind, "--format", "pdf"}).output, StartsWith("%PDF-")) << kind;
  }
  // What a file is to be stands in its name, and a folder's name tells nothing.
  std::filesystem::create_directory(folder_.path("a.pdf"));
  const std::pair<const char*, const char*> files[] = {{"today.PNG", "\x89PNG"},
                                                       {"a.pdf/today", "<svg "}};
  for (const auto& [file, start] : files) {
    EXPECT_EQ(run({"widget", "chord", "-o", folder_.path(file)}).errors, "");
    EXPECT_THAT(desktop::readFile(folder_.path(file), 1 << 20).value_or(""), StartsWith(start));
  }
  // The width stands 16 bytes behind the start of a PNG, two of its bytes being enough here.
  const ProgramResult png = run({"widget", "chord", "--format", "png", "--scale", "3"});
  EXPECT_THAT(png.output, StartsWith("\x89PNG"));
  EXPECT_EQ(png.output.substr(18, 2), "\x01\xFE") << png.errors;  // 3 * 170
  const Value right = json({"widget", "recent", "--format", "json"});
  EXPECT_EQ(right["height"], 715);
  run({"settings", "set", "left_handed", "true"});
  EXPECT_NE(json({"widget", "recent", "--format", "json"}), right);
  EXPECT_EQ(json({"widget", "chord", "--family", "medium", "--format", "json"})["width"], 364);
}

// Another process changes a setting under a running host, which is then told to stop.
TEST_F(Command, HostsWidgetsUntilItIsStopped) {
  constexpr const char* script = R"(
    cd "$1" || exit
    "$0" host out --scale 1 & host=$!
    until [[ -e out/index.html ]]; do sleep 0.05; done
    cp out/chord-small.svg before
    "$0" settings set left_handed true && "$0" settings set todayChordCategory jazz
    while cmp --quiet before out/chord-small.svg; do sleep 0.05; done
    kill $host; wait $host; echo "status $?"; ls -A out out/fonts)";
  const ProgramResult result = tonelake::testing::runProgram(
      {{"/bin/bash", "-c", script, ZYNDLE_PROGRAM, folder_.path()},
       {"TZ=UTC", "PATH=/usr/bin:/bin", "XDG_DATA_HOME=" + folder_.path()},
       "",
       ""});
  EXPECT_EQ(result.errors, "");
  EXPECT_THAT(result.output, StartsWith("status 0\nout:\nchord-accessoryCircular.png\n"));
  EXPECT_THAT(result.output, EndsWith("SpaceGrotesk-OFL.txt\nSpaceGrotesk-SemiBold.ttf\n"));
  EXPECT_EQ(countLines(result.output), 1U + 1 + 10 * 2 + 2 + 2 + 5) << result.output;
}

TEST_F(Command, SaysTheStatusInOneShortLine) {
  const Value scene = json({"widget", "chord", "--family", "accessoryInline", "--format", "json"});
  EXPECT_EQ(run({"status"}).output, std::string(scene["items"][0]["text"]) + "\n");
}

TEST_F(Command, WritesTheDrawingBesideTheText) {
  const std::string file = folder_.path("f.svg");
  const ProgramResult both = run({"chord", "F", "--svg", file});
  EXPECT_EQ(both.output, run({"chord", "F"}).output);
  const ProgramResult drawing = run({"chord", "F", "--svg", "-"});
  EXPECT_EQ(desktop::readFile(file, 1 << 20), drawing.output);
  EXPECT_THAT(drawing.output, AllOf(StartsWith("<svg"), HasSubstr("F major"), HasSubstr("barre")));

  // One that does not fit leaves the earlier one as it was; the next has its mode.
  std::filesystem::permissions(file, std::filesystem::perms(0640));
  const ProgramResult full = tonelake::testing::runProgram(
      {{"/bin/bash", "-c", R"(ulimit -f 1; "$0" chord G --right-handed --svg "$1")", ZYNDLE_PROGRAM,
        file},
       {"TZ=UTC", "XDG_DATA_HOME=" + folder_.path()},
       "",
       ""});
  EXPECT_THAT(full.errors, HasSubstr(file + "\": File too large"));
  EXPECT_EQ(desktop::readFile(file, 1 << 20), drawing.output);
  run({"chord", "G", "--svg", file});
  EXPECT_NE(desktop::readFile(file, 1 << 20), drawing.output);
  EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0640));
}

}  // namespace
}  // namespace zyndle

// Runs `zyndle jam` and `zyndle patterns` as a user would.

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Desktop/files.h"
#include "Tonelake/foundation/text.h"
#include "tests/zyndle/command_runner.h"

namespace zyndle {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class JamCommand : public testing::Test, protected CommandRunner {
 protected:
  // As another MIDI library reads it.
  static std::string readMidi(const std::string& file) {
    const auto result =
        tonelake::testing::runProgram({{SYSTEM_PYTHON, READ_MIDI, file}, {}, "", ""});
    EXPECT_EQ(result.errors, "");
    return result.output;
  }
};

TEST_F(JamCommand, WritesMidiFiles) {
  const std::string file = folder_.path("song.mid");
  const auto told = run({"jam", "I-V-vi–IV", "--key", "G", "--style", "four downstrokes",
                         "--complexity", "0", "--tempo", "100", "-o", file});
  EXPECT_EQ(told.status, 0) << told.errors;
  EXPECT_THAT(told.output, AllOf(HasSubstr("8 bars of 4/4 at 100: 19 seconds"),
                                 HasSubstr("Straight Rock"), HasSubstr("D xx0232, Em 022000")));
  EXPECT_EQ(readMidi(file),
            "format 1, 480 ticks, 19.200 seconds\n"
            "I-V-vi–IV: metre 4/4, tempo 600000; 0 notes [] on []; ends at 15360\n"
            "Guitar: program 25; 168 notes [40, 43, 47, 48, 50, 52, 55, 57, 59, 60, 62, 64, 66, "
            "67] on [1, 2, 3, 4, 5, 6]; ends at 15360\n"
            "Bass: program 33; 16 notes [28, 31, 36, 38] on [7]; ends at 15360\n"
            "Drums: program 0; 96 notes [36, 38, 42] on [10]; ends at 15360\n");
  // A waltz for bass alone, to standard output.
  const auto bytes = run({"jam", "Am | E7", "--style", "Rolling Six", "--drums", "none", "--bass",
                          "walking waltz", "--no-guitar", "--bars", "3", "-o", "-"});
  EXPECT_EQ(readMidi(folder_.write("waltz.mid", bytes.output)),
            "format 1, 480 ticks, 5.870 seconds\n"
            "Am | E7: metre 3/4, tempo 652173; 0 notes [] on []; ends at 4320\n"
            "Bass: program 33; 9 notes [28, 32, 33, 35, 36, 40] on [7]; ends at 4320\n");
  // Numerals behind any of the signs that may part them.
  for (const char* typed : {"I-V", "| I V", ", I V", "– I – V"}) {
    EXPECT_EQ(run({"jam", typed, "-o", "-"}).status, 0) << typed;
  }
}

TEST_F(JamCommand, DrawsPatternsAndReadsThemBack) {
  EXPECT_THAT(run({"patterns"}).output,
              AllOf(HasSubstr("  Bossa Nova                4/4, 2 bars\n"), HasSubstr("Grooves")));
  EXPECT_THAT(run({"patterns", "campfire", "strum"}).output,
              AllOf(HasSubstr("            |1 & 2 & 3 & 4 &\n"
                              "downstroke  |O - o - - - o -\n"
                              "upstroke    |- - - o - o - o\n"),
                    HasSubstr("Anthem (3)")));
  // A pattern of one kind replaces that kind only; all of them are what is built in.
  const auto written = [this](const std::vector<std::string>& name) {
    std::vector<std::string> arguments{"patterns", "--json"};
    arguments.insert(arguments.end(), name.begin(), name.end());
    return folder_.write(tonelake::join(name, "") + ".json", run(arguments).output);
  };
  const std::string all = run({"patterns"}).output;
  EXPECT_EQ(run({"patterns", "--library", written({})}).output, all);
  const std::string library = written({"Rolling", "Six"});
  EXPECT_THAT(
      run({"patterns", "--library", library}).output,
      AllOf(StartsWith("Ways to pick and strum\n  Rolling Six               3/4, 1 bar\n\n"),
            EndsWith(all.substr(all.find("Bass lines\n")))));
  EXPECT_THAT(run({"patterns", "--library", written({"Bossa Bass"})}).output,
              AllOf(StartsWith(all.substr(0, all.find("Bass lines\n"))),
                    HasSubstr("Bass lines\n  Bossa Bass                4/4, 1 bar\n\nGrooves\n"),
                    EndsWith(all.substr(all.find("Grooves\n")))));
  EXPECT_THAT(run({"patterns", "--library", written({"Bossa Nova Sticks"})}).output,
              EndsWith("Grooves\n  Bossa Nova Sticks         4/4, 2 bars\n"));
  for (const auto& [option, name] :
       {std::pair("--bass", "Bossa Bass"), std::pair("--drums", "Bossa Nova Sticks")}) {
    const auto played = run({"jam", "C", "-o", folder_.path("x.mid"), option, name, "--library",
                             folder_.path(std::string(name) + ".json")});
    EXPECT_THAT(played.output, HasSubstr(name)) << played.errors;
  }
  const std::string unclean = tonelake::replaceAll(*desktop::readFile(library, 1 << 20),
                                                   "Rolling Six", R"(転がる\u001b[2J)");
  EXPECT_THAT(run({"patterns", "--library", folder_.write("unclean.json", unclean)}).output,
              HasSubstr("  転がる\uFFFD[2J                3/4, 1 bar\n"));
}

TEST_F(JamCommand, TellsHowTheSynthesizerFailed) {
  const std::string soundfont = folder_.write("some.sf2", "");
  const std::pair<std::string, const char*> rows[] = {
      {"exit 0", "fluidsynth made no sound"},
      {"echo one; echo two; exit 3", "fluidsynth failed: two"},
      {"echo error: no loudspeakers", "fluidsynth failed: error: no loudspeakers"},
      // Unlike zyndle, what it starts may be ended by a reader that goes away.
      {"echo gone; kill -PIPE $$", "fluidsynth failed: gone"},
  };
  for (const auto& [script, problem] : rows) {
    std::filesystem::permissions(folder_.write("fluidsynth", "#!/bin/sh\n" + script),
                                 std::filesystem::perms::owner_all);
    const auto result = run({"jam", "C", "-o", folder_.path("x.wav"), "--soundfont", soundfont},
                            "UTC", "", {"PATH=" + folder_.path()});
    EXPECT_EQ(result.status, 1) << script;
    EXPECT_THAT(result.errors, HasSubstr(problem));
  }
}

TEST_F(JamCommand, RefusesInOneLine) {
  const std::string start = R"({"sequences":[{"id":"0f8fad5b-d9cb-469f-a165-70867728950e",)"
                            R"("name":"n","description":"d","sequence":)";
  const std::string end = R"(,"timeSignature":"4/4","associatedBassPatterns":[],)"
                          R"("associatedDrumPatterns":[]}]})";
  const std::string silent = folder_.write("silent.json", start + "[[],[]]" + end);
  const auto jam = [](std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"jam", "C"});
    return arguments;
  };
  const auto fromFile = [&](const std::string& name, const std::string& contents) {
    return jam({"-o", folder_.path("x.mid"), "--library", folder_.write(name, contents)});
  };
  struct Row {
    std::vector<std::string> arguments;
    const char* problem;
    int status = 2;
  };
  const Row rows[] = {
      {{"jam"}, "CHORDS is missing"},
      {jam({}), "say where the music goes"},
      {jam({"-o", "song.ogg"}), "\"song.ogg\" ends neither in .mid nor in .wav"},
      {jam({"-o", folder_.path("no/song.mid")}), "no/song.mid", 1},
      {{"jam", "C H", "-o", "-"}, "no chord is named \"H\""},
      {{"jam", "I-V7", "-o", "-"}, "\"V7\" is not a plain triad"},
      {{"jam", "I-V", "--key", "G7", "-o", "-"}, "--key \"G7\" is not a key"},
      {{"jam", "C G", "--key", "G", "-o", "-"}, "--key goes with Roman numerals"},
      {jam({"-o", "-", "--style", "campfire"}), "the nearest are Campfire Strum"},
      {jam({"-o", "-", "--drums", "Jazz Waltz"}), "\"Jazz Waltz\" is in 3/4, the style in 4/4"},
      {jam({"-o", "-", "--tempo", "0"}), "--tempo \"0\" is not a whole number from 20 to 400"},
      {jam({"-o", "-", "--bars", "257"}), "--bars \"257\""},
      {jam({"-o", folder_.path("x.wav")}), "apt-get install fluidsynth fluid-soundfont-gm", 1},
      {jam({"--play"}), "apt-get install fluidsynth fluid-soundfont-gm", 1},
      {{"patterns", "waltz polka"}, "no pattern is named \"waltz polka\""},
      {{"patterns", "--library", folder_.path("none.json")}, "cannot read"},
      {fromFile("text.json", "[1, 2"), "not JSON"},
      {fromFile("deep.json", start + std::string(100000, '[')), "nested deeper than 32 levels"},
      {fromFile("huge.json", std::string(2000000, ' ') + "{}"), "larger than 1 MiB"},
      {fromFile("type.json", start + R"([[{"noteDuration":"long"}]])" + end),
       "sequences[0].sequence[0][0].noteDuration: expected a number"},
      {fromFile("list.json", "[]"), "expected an object"},
      {fromFile("parts.json", R"({"basses":[]})"), "expected sequences, bassPatterns or drumPatt"},
      {fromFile("bass.json", R"({"sequences":[],"bassPatterns":{}})"), "bassPatterns: expected a"},
      {jam({"-o", "-", "--library", silent}), "there is no --style \"Campfire Strum\""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(tonelake::join(row.arguments, " "));
    const auto result = run(row.arguments);
    EXPECT_EQ(result.status, row.status);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, AllOf(StartsWith("zyndle: "), HasSubstr(row.problem)));
    EXPECT_EQ(countLines(result.errors), 1U);
  }
  EXPECT_EQ(run(jam({"-o", folder_.path("x.mid"), "--library", silent, "--style", "n"})).status, 0);
  EXPECT_THAT(run({"patterns", "n", "--library", silent}).output, HasSubstr("takes no time"));
}

}  // namespace
}  // namespace zyndle

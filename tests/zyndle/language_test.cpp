// Runs the built program as users of several languages would.

#include <filesystem>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Desktop/languages.h"
#include "Tonelake/foundation/text.h"
#include "tests/zyndle/command_runner.h"
#include "zyndle/text_columns.h"
#include "zyndle/text_layout.h"

namespace zyndle {
namespace {

using testing::HasSubstr;
using Words = std::vector<std::string>;

class Language : public testing::Test, protected CommandRunner {
 protected:
  // The help of a command and of all that it lists below it.
  std::vector<Words> helpPages(const Words& command = {}) const {
    std::vector<Words> pages{command};
    pages[0].emplace_back("--help");
    const std::string help = run(pages[0]).output;
    const std::size_t heading = help.find("\nSubcommands:\n");
    if (heading == std::string::npos) return pages;
    for (const auto line : tonelake::split(std::string_view(help).substr(heading + 1), '\n')) {
      if (line.empty()) break;
      if (!line.starts_with("  ") || line[2] == ' ') continue;
      Words below = command;
      below.emplace_back(tonelake::split(line.substr(2), ' ').front());
      const auto more = helpPages(below);
      pages.insert(pages.end(), more.begin(), more.end());
    }
    return pages;
  }
};

TEST_F(Language, IsTheOneThatTheUserChose) {
  constexpr const char* english = "major third (E)";
  constexpr const char* german = "großer Terz (E)";
  constexpr const char* spanish = "la tercera mayor (E)";
  struct Row {
    Words environment;
    Words arguments;
    const char* output;
  };
  const Row rows[] = {
      {{}, {"chord", "C"}, english},
      {{"LANGUAGE=de"}, {"chord", "C"}, german},
      {{"LANGUAGE=xx:es:de"}, {"chord", "C"}, spanish},
      {{"LANGUAGE=en:de"}, {"chord", "C"}, english},
      {{"LC_ALL=de_AT.UTF-8", "LANG=es_ES.UTF-8"}, {"chord", "C"}, german},
      {{"LC_MESSAGES=C", "LANG=de_DE.UTF-8"}, {"chord", "C"}, english},
      {{"LANGUAGE=de"}, {"--lang", "en", "chord", "C"}, english},
      {{"LANGUAGE=de"}, {"chord", "C", "--lang=es_MX"}, spanish},
      {{}, {"--lang", "de", "chord", "--help"}, "Optionen:"},
      {{}, {"--lang", "es", "--help"}, "zyndle [OPCIONES] ORDEN"},
      {{"LANGUAGE=de"}, {"chord", "C", "--ascii"}, "  Toene      C, E, G\n"},
      {{"LANGUAGE=es"}, {"chord", "F#", "--ascii"}, "sonido claro y armonioso que se siente"},
      {{"LANGUAGE=es"}, {"chord", "C", "--ascii"}, "Clasica"},
      {{}, {"--lang", "de", "pack", "metal"}, "Riff drohen soll"},
      {{}, {"--lang", "de", "widget", "launcher"}, "Stimmgerät"},
  };
  for (const Row& row : rows) {
    const auto result = run(row.arguments, "UTC", "", row.environment);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr(row.output)) << tonelake::join(row.arguments, " ");
  }
}

TEST_F(Language, OfProblemsIsTheSame) {
  const std::pair<Words, const char*> rows[] = {
      {{"--lang"}, "--lang needs one value"},
      {{"chord", "C", "--lang", "klingon"}, "--lang \"klingon\" is not one of en, de"},
      {{"--lang", "de", "chord", "C", "--limit", "0"}, "ist keine ganze Zahl ab 1"},
      {{"--lang", "de", "chord", "Hm7"}, "kein Akkord heißt \"Hm7\""},
  };
  for (const auto& [arguments, problem] : rows) {
    const auto result = run(arguments);
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, HasSubstr(problem));
    EXPECT_EQ(countLines(result.errors), 1U);
  }
}

TEST_F(Language, WithoutItsTextsIsEnglishOrAProblem) {
  // Two folders down, so that every place where it looks for texts lies in a folder of ours.
  std::filesystem::create_directories(folder_.path("tree/bin"));
  const std::string lonely = folder_.path("tree/bin/zyndle");
  std::filesystem::copy_file(ZYNDLE_PROGRAM, lonely);
  const auto preferred =
      tonelake::testing::runProgram({{lonely, "packs"}, {"LANGUAGE=de"}, "", ""});
  EXPECT_THAT(preferred.output, HasSubstr("First Chords"));
  const auto wanted =
      tonelake::testing::runProgram({{lonely, "--lang", "de", "packs"}, {}, "", ""});
  EXPECT_EQ(wanted.status, 1);
  EXPECT_THAT(wanted.errors, HasSubstr("the texts of de are missing: there is no "));
}

TEST_F(Language, KeepsToThePage) {
  std::vector<Words> pages = helpPages();
  EXPECT_THAT(pages,
              testing::IsSupersetOf({Words{"rpc", "--help"}, {"settings", "set", "--help"}}));
  pages.insert(pages.end(), {{"chord", "Cmaj7"}, {"pack", "country"}, {"packs"}});
  for (const std::string& language : desktop::knownLanguages()) {
    const Words environment{"LANGUAGE=" + language};
    for (const Words& page : pages) {
      const auto result = run(page, "UTC", "", environment);
      EXPECT_EQ(result.status, 0) << result.errors;
      for (const auto line : tonelake::split(result.output, '\n')) {
        EXPECT_LE(countColumns(line), pageWidth) << language << ": " << line;
      }
    }
  }
}

TEST_F(Language, BreaksLinesWhereTheWritingMay) {
  EXPECT_EQ(countColumns("Töne 和音"), 9U);
  std::string text;
  for (int i = 0; i < 30; ++i) text += "和音、";
  const std::string lines = paragraph(text);
  for (const auto line : tonelake::split(lines, '\n')) {
    EXPECT_LE(countColumns(line), pageWidth);
    EXPECT_FALSE(line.starts_with("、"));
  }
}

}  // namespace
}  // namespace zyndle

#include "Tonelake/foundation/json.h"

#include <gtest/gtest.h>

#include "Tonelake/foundation/text.h"

namespace tonelake {
namespace {

// What reading `text` says, or "" when it is read.
std::string problemOf(const std::string& text) {
  try {
    json::parse(text);
    return "";
  } catch (const json::DecodingError& error) {
    return error.what();
  }
}

std::string nested(std::size_t depth) {
  return std::string(depth, '[') + std::string(depth, ']');
}

TEST(Json, RefusesWhatItCannotReadSafely) {
  std::string manyKeys = "{";
  for (int i = 0; i <= 4096; ++i) manyKeys += "\"" + std::to_string(i) + "\":0,";
  manyKeys.back() = '}';
  const std::pair<std::string, const char*> rows[] = {{"[1,2", "not JSON"},
                                                      {"", "not JSON"},
                                                      {"{} {}", "not JSON"},
                                                      {"[1e999]", "not JSON"},
                                                      {"[NaN]", "not JSON"},
                                                      {std::string("{}\0[", 4), "not JSON"},
                                                      {"[\"\xC3\x28\"]", "not JSON"},
                                                      {nested(33), "nested deeper"},
                                                      {nested(1000000), "nested deeper"},
                                                      {manyKeys, "more than 4096 keys"}};
  for (const auto& [text, problem] : rows) {
    EXPECT_NE(problemOf(text).find(problem), std::string::npos)
        << text.substr(0, 40) << ": " << problemOf(text);
  }
  EXPECT_EQ(problemOf(nested(32)), "");
  EXPECT_EQ(json::write(json::parse(R"({"b":[1,{"a":null}],"a":"♯"})")),
            R"({"b":[1,{"a":null}],"a":"♯"})");
}

TEST(Json, IsStrictAboutWholeNumbers) {
  struct Row {
    const char* text;
    WholeNumber lowest;
    WholeNumber highest;
    const char* problem;  // "" when the number is taken
  };
  const Row rows[] = {{"7", 0, 10, ""},
                      {"-9223372036854775808", INT64_MIN, INT64_MAX, ""},
                      {"9223372036854775807", INT64_MIN, INT64_MAX, ""},
                      {"9223372036854775808", INT64_MIN, INT64_MAX,
                       "expected a whole number from -9223372036854775808 to 9223372036854775807"},
                      {"1.0", 0, 10, "expected a whole number"},
                      {"1e0", 0, 10, "expected a whole number"},
                      {"true", 0, 10, "expected a whole number"},
                      {"\"1\"", 0, 10, "expected a whole number"},
                      {"11", 0, 10, "expected a whole number from 0 to 10"},
                      {"-1", 0, 10, "expected a whole number from 0 to 10"}};
  for (const Row& row : rows) {
    const json::Value value = json::parse(row.text);
    std::string problem;
    try {
      json::Node(value).wholeNumber(row.lowest, row.highest);
    } catch (const json::DecodingError& error) {
      problem = error.what();
    }
    EXPECT_EQ(problem, row.problem) << row.text;
  }
}

TEST(Json, NamesThePlaceOfAFault) {
  const json::Value value = json::parse(R"({"chords":[{"root":"C"},{"root":7}]})");
  const auto problem = [&](auto read) -> std::string {
    try {
      read(json::Node(value));
    } catch (const json::DecodingError& error) {
      return error.what();
    }
    return "";
  };
  using json::Node;
  EXPECT_EQ(problem([](const Node& n) { n.member("chords").element(1).member("root").text(); }),
            "chords[1].root: expected a text");
  EXPECT_EQ(problem([](const Node& n) { n.member("chords").element(0).member("type"); }),
            "chords[0].type: missing");
  EXPECT_EQ(problem([](const Node& n) { n.member("chords").member("root"); }),
            "chords: expected an object");
  EXPECT_EQ(problem([](const Node& n) { n.size(); }), "expected a list");
}

TEST(Text, CountsCharactersAndKnowsGoodUtf8) {
  EXPECT_EQ(countCharacters("C♯𝄪 major"), 9U);
  for (const char* good : {"", "a", "♯", "𝄪", "\xEF\xBF\xBD", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(isValidUtf8(good)) << good;
  }
  for (const char* bad : {"\x80", "\xC3", "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xE2\x99",
                          "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "a\xFF"}) {
    EXPECT_FALSE(isValidUtf8(bad)) << bad;
  }
}

TEST(Text, SplitsJoinsAndReplaces) {
  using Pieces = std::vector<std::string_view>;
  EXPECT_EQ(split("a,,b", ','), (Pieces{"a", "", "b"}));
  EXPECT_EQ(split("", ','), (Pieces{""}));
  EXPECT_EQ(join({"E", "A"}, ", "), "E, A");
  EXPECT_EQ(replaceAll("♭♭7", "♭", "b"), "bb7");
  EXPECT_EQ(replaceAll("aaa", "aa", "b"), "ba");
}

}  // namespace
}  // namespace tonelake

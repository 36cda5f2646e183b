#include "Tonelake/foundation/json.h"

#include <gtest/gtest.h>

namespace tonelake {
namespace {

// What refuses a reading, or "" when nothing does.
template <typename Read>
std::string problemOf(Read read) {
  try {
    read();
    return "";
  } catch (const json::DecodingError& error) {
    return error.what();
  }
}

std::string problemOfParsing(const std::string& text) {
  return problemOf([&] { json::parse(text); });
}

std::string nested(std::size_t depth) {
  return std::string(depth, '[') + std::string(depth, ']');
}

TEST(Json, RefusesWhatItCannotReadSafely) {
  std::string manyKeys = "{";
  for (int i = 0; i <= 4096; ++i) manyKeys += "\"" + std::to_string(i) + "\":0,";
  manyKeys.back() = '}';
  const std::pair<std::string, const char*> rows[] = {{"", "not JSON"},
                                                      {"{} {}", "not JSON"},
                                                      {"[1e999]", "not JSON"},
                                                      {std::string("{}\0[", 4), "not JSON"},
                                                      {"[\"\xC3\x28\"]", "not JSON"},
                                                      {nested(33), "nested deeper"},
                                                      {nested(1000000), "nested deeper"},
                                                      {manyKeys, "more than 4096 keys"}};
  for (const auto& [text, problem] : rows) {
    EXPECT_NE(problemOfParsing(text).find(problem), std::string::npos)
        << text.substr(0, 40) << ": " << problemOfParsing(text);
  }
  EXPECT_EQ(problemOfParsing(nested(32)), "");
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
                      {"9223372036854775808", INT64_MIN, INT64_MAX,
                       "expected a whole number from -9223372036854775808 to 9223372036854775807"},
                      {"1e0", 0, 10, "expected a whole number"},
                      {"true", 0, 10, "expected a whole number"},
                      {"11", 0, 10, "expected a whole number from 0 to 10"},
                      {"-1", 0, 10, "expected a whole number from 0 to 10"}};
  for (const Row& row : rows) {
    const json::Value value = json::parse(row.text);
    EXPECT_EQ(problemOf([&] { json::Node(value).wholeNumber(row.lowest, row.highest); }),
              row.problem)
        << row.text;
  }
}

TEST(Json, NamesThePlaceOfAFault) {
  const json::Value value = json::parse(R"({"chords":[{"root":"C"},{"root":7}]})");
  const json::Node node(value);
  EXPECT_EQ(problemOf([&] { node.member("chords").element(1).member("root").text(); }),
            "chords[1].root: expected a text");
  EXPECT_EQ(problemOf([&] { node.member("chords").element(0).member("type"); }),
            "chords[0].type: missing");
  EXPECT_EQ(problemOf([&] { node.member("chords").member("root"); }), "chords: expected an object");
  EXPECT_EQ(problemOf([&] { node.member("chords").element(2); }), "chords[2]: missing");
  EXPECT_EQ(problemOf([&] { node.element(0); }), "expected a list");
}

}  // namespace
}  // namespace tonelake

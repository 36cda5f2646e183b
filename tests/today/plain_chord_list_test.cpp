#include "Tonelake/today/plain_chord_list.h"

#include <gtest/gtest.h>

#include "Tonelake/chords/chord_json.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/resource_bundle.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

// What is read fast is read as the JSON decoder reads it; the decoder is left what is not plain.
TEST(PlainChordList, AgreesWithTheJsonDecoder) {
  const auto resources = makeEmbeddedResourceBundle();
  std::vector<std::string> plain{
      "[\n{\"rootNote\":\"F♯\",\"chordType\":\"a ♭\",\"variant\":12}\n]\n"};
  for (const char* name : {"beginner_chords", "advanced_chords", "jazz_chords"}) {
    plain.push_back(*resources->load(name, "json"));
  }
  for (const std::string& text : plain) {
    const json::Value document = json::parse(text);
    EXPECT_EQ(readPlainChordList(text), json::decodeList(json::Node(document), decodeChord))
        << text;
  }
  const std::pair<const char*, const char*> changes[] = {
      {"F♯", "F"},     {"F♯", "H"},    {"F♯", "F\\u266f"},
      {"a ♭", "\xFF"}, {"a ♭", "a\n"}, {"12", "-1"},
      {"12", "01"},    {"12", "1.5"},  {"12", "99999999999999999999"},
      {"}", "},"},     {"]", "]]"},    {"]", ""}};
  for (const auto& [from, to] : changes) {
    const std::string text = replaceAll(plain.front(), from, to);
    EXPECT_EQ(readPlainChordList(text).has_value(), to == std::string("F")) << text;
  }
}

}  // namespace
}  // namespace tonelake

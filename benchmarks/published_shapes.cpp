#include "benchmarks/published_shapes.h"

#include <fstream>
#include <stdexcept>

#include "Tonelake/fingering/finger_rules.h"
#include "Tonelake/foundation/json.h"

namespace benchmarks {
namespace {

namespace json = tonelake::json;

std::array<std::int8_t, tonelake::Tuning::stringCount> readStrings(const json::Node& node,
                                                                   int lowest, int highest) {
  std::array<std::int8_t, tonelake::Tuning::stringCount> strings{};
  if (node.size() != strings.size()) node.fail("expected a number for each of six strings");
  for (std::size_t i = 0; i < strings.size(); ++i) {
    strings[i] = static_cast<std::int8_t>(node.element(i).wholeNumber(lowest, highest));
  }
  return strings;
}

PublishedShape readShape(const std::string& line) {
  constexpr int highestFret = 36;
  const json::Value value = json::parse(line);
  const json::Node record(value);
  return {record.member("root").text(), record.member("chordType").text(),
          readStrings(record.member("position"), tonelake::mutedString, highestFret),
          readStrings(record.member("fingering"), 0, tonelake::littleFinger)};
}

}  // namespace

std::vector<PublishedShape> readPublishedShapes(const std::string& path) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error(path + ": cannot be read");
  std::vector<PublishedShape> shapes;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    try {
      if (!line.empty()) shapes.push_back(readShape(line));
    } catch (const json::DecodingError& error) {
      throw std::runtime_error(path + ":" + std::to_string(number) + ": " + error.what());
    }
  }
  if (shapes.empty()) throw std::runtime_error(path + ": holds no shape");
  return shapes;
}

}  // namespace benchmarks

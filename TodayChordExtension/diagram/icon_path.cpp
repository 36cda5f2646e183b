#include "TodayChordExtension/diagram/icon_path.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <utility>

#include "TodayChordExtension/diagram/scene_shapes.h"

namespace todaychord {
namespace {

constexpr std::size_t mostNumbers = 6;
using Numbers = std::array<double, mostNumbers>;

struct Letter {
  char letter;
  std::size_t count;  // of its numbers
  void (*add)(Path& path, const Numbers& n);
};

void append(Path& path, const Path& shape) {
  path.insert(path.end(), shape.begin(), shape.end());
}

// clang-format off
constexpr Letter letters[] = {
    {'M', 2, [](Path& path, const Numbers& n) { path.emplace_back(MoveTo{{n[0], n[1]}}); }},
    {'L', 2, [](Path& path, const Numbers& n) { path.emplace_back(LineTo{{n[0], n[1]}}); }},
    {'C', 6, [](Path& path, const Numbers& n) { path.emplace_back(CurveTo{{n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]}}); }},
    {'Z', 0, [](Path& path, const Numbers&)   { path.emplace_back(ClosePath{}); }},
    {'O', 3, [](Path& path, const Numbers& n) { append(path, circle({n[0], n[1]}, n[2])); }},
    {'R', 5, [](Path& path, const Numbers& n) { append(path, roundedRectangle({n[0], n[1], n[2], n[3]}, CornerRadii::all(n[4]))); }},
};
// clang-format on

class PathReader {
 public:
  explicit PathReader(std::string_view text) : rest_(text) {}

  std::optional<Path> read() {
    for (skipBlanks(); !rest_.empty(); skipBlanks()) {
      if (!readLetter() || !readStep()) return std::nullopt;
    }
    return std::move(path_);
  }

 private:
  // Where numbers follow, the letter is the last one again.
  bool readLetter() {
    const char next = rest_.front();
    if (letter_ != nullptr && letter_->count > 0 && (next < 'A' || next > 'Z')) return true;
    rest_.remove_prefix(1);
    letter_ = std::find_if(std::begin(letters), std::end(letters),
                           [&](const Letter& letter) { return letter.letter == next; });
    return letter_ != std::end(letters);
  }

  bool readStep() {
    Numbers numbers{};
    for (std::size_t i = 0; i < letter_->count; ++i) {
      if (!readNumber(numbers[i])) return false;
    }
    letter_->add(path_, numbers);
    return true;
  }

  bool readNumber(double& number) {
    skipBlanks();
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
    if (error != std::errc()) return false;
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return true;
  }

  void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size())); }

  std::string_view rest_;
  Path path_;
  const Letter* letter_ = nullptr;
};

}  // namespace

std::optional<Path> readIconPath(std::string_view text) {
  return PathReader(text).read();
}

}  // namespace todaychord

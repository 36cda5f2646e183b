#include "Tonelake/accompaniment/built_in_patterns.h"

#include <algorithm>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "Tonelake/accompaniment/pattern_repetition.h"

namespace tonelake {
namespace {

// What every kind of pattern in the library has to keep.
class LibraryRules {
 public:
  template <typename Pattern, typename Step>
  void check(const Pattern& pattern, const std::vector<Step>& list) {
    SCOPED_TRACE(pattern.name);
    EXPECT_TRUE(names_.insert(pattern.name).second);
    EXPECT_TRUE(ids_.insert(pattern.id.text()).second);
    EXPECT_GT(pattern.description.size(), 60U);
    WholeNumber length = 0;
    std::set<int> velocities;
    for (const Step& step : list) {
      EXPECT_GT(lengthOf(step), 0);
      length += lengthOf(step);
      collect(velocities, step);
    }
    EXPECT_GT(length, 0);
    EXPECT_EQ(length % ticksOfBar(pattern.timeSignature), 0);
    velocities.erase(0);
    EXPECT_GE(velocities.size(), 2U) << "it does not breathe";
    EXPECT_LE(*velocities.rbegin(), 127);
  }

  template <typename Link>
  void checkLinks(const std::vector<Link>& links, const auto& library, auto Link::*pattern,
                  TimeSignature timeSignature) {
    EXPECT_FALSE(links.empty());
    for (const Link& link : links) {
      EXPECT_TRUE(ids_.insert(link.id.text()).second);
      EXPECT_EQ((link.*pattern).timeSignature, timeSignature);
      EXPECT_NE(std::find(library.begin(), library.end(), link.*pattern), library.end());
      EXPECT_TRUE(link.complexity >= 1 && link.complexity <= 3);
      linked_.insert((link.*pattern).name);
    }
  }

  bool isLinked(const auto& pattern) const { return linked_.contains(pattern.name); }

 private:
  static void collect(std::set<int>& velocities, const ArpeggioStep& step) {
    for (const ArpeggioNote& note : step) {
      velocities.insert(note.noteVelocity);
      EXPECT_EQ(note.noteDuration, step.front().noteDuration);
    }
  }
  static void collect(std::set<int>& velocities, const BassNote& note) {
    velocities.insert(static_cast<int>(note.noteVelocity));
  }
  static void collect(std::set<int>& velocities, const DrumNote& note) {
    for (const DrumMIDINote& voice : note.drumMIDINote) velocities.insert(voice.noteVelocity);
  }

  std::set<std::string> names_;
  std::set<std::string> ids_;
  std::set<std::string> linked_;
};

TEST(BuiltInPatterns, KeepToTheRules) {
  const PatternLibrary& library = builtInPatterns();
  EXPECT_GE(library.arpeggios.sequences.size(), 16U);
  EXPECT_GE(library.basses.bassPatterns.size(), 12U);
  EXPECT_GE(library.drums.drumPatterns.size(), 14U);
  LibraryRules rules;
  for (const ArpeggioSequence& sequence : library.arpeggios.sequences) {
    rules.check(sequence, sequence.sequence);
    SCOPED_TRACE(sequence.name);
    rules.checkLinks(sequence.associatedBassPatterns, library.basses.bassPatterns,
                     &BassPatternWithComplexity::bassPattern, sequence.timeSignature);
    rules.checkLinks(sequence.associatedDrumPatterns, library.drums.drumPatterns,
                     &DrumPatternWithComplexity::drumPattern, sequence.timeSignature);
  }
  for (const BassPattern& bass : library.basses.bassPatterns) {
    rules.check(bass, bass.bassNotes);
    EXPECT_TRUE(rules.isLinked(bass)) << bass.name;
  }
  for (const DrumPattern& drums : library.drums.drumPatterns) {
    rules.check(drums, drums.drumNotes);
    EXPECT_TRUE(rules.isLinked(drums)) << drums.name;
  }
}

}  // namespace
}  // namespace tonelake

// Prints a chord's notes and its first shape: "chord F#m7b5".
#include <cstdio>

#include <Tonelake/chords/chord_dictionary.h>
#include <Tonelake/chords/chord_spelling.h>
#include <Tonelake/fingering/chord_positions.h>

using namespace tonelake;

int main(int argc, char** argv) {
  const auto chord = argc == 2 ? Chords::lookUpChord(argv[1]) : std::nullopt;
  if (!chord) {
    std::fprintf(stderr, "usage: chord NAME, for example F#m7b5\n");
    return 2;
  }
  for (const auto& note : Chords::getNotesOfChord(*chord)) std::printf("%s ", note.c_str());
  const auto shapes = Chords::getChordPositions(*chord, 1, Tuning::standard);
  for (const int fret : shapes.front().position) std::printf("%d ", fret);
  std::printf("\n");
}

// Says how to hold F major and how its diagram would be drawn: by a renderer of your own.
#include <cstdio>

#include <TodayChordExtension/diagram/diagram_scene.h>
#include <TodayChordExtension/diagram/fingering_instructions.h>
#include <Tonelake/chords/chord_dictionary.h>

int main() {
  todaychord::ChordView view;
  view.chord = *tonelake::Chords::lookUpChord("F");
  view.position = {1, 3, 3, 2, 1, 1};
  view.fingering = {1, 3, 4, 2, 1, 1};
  for (const auto& sentence : todaychord::fingeringInstructions(view.position, view.fingering)) {
    std::printf("%s\n", sentence.c_str());
  }
  const auto scene = todaychord::drawDiagram(view, 135);
  std::printf("%.0f x %.0f points, %zu items\n", scene.width, scene.height, scene.items.size());
}

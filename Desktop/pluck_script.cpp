#include "Desktop/pluck_script.h"

#include "Desktop/embedded_scripts.h"
#include "Desktop/number_text.h"
#include "TodayChordExtension/diagram/chord_view.h"
#include "TodayChordExtension/diagram/diagram_metrics.h"
#include "TodayChordExtension/diagram/pluck_spring.h"

namespace desktop {
namespace {

namespace metrics = todaychord::metrics;

std::string stiffnessOfStrings() {
  std::string list;
  for (int number = 1; number <= metrics::stringCount; ++number) {
    list += (number == 1 ? "" : ", ") + formatNumber(todaychord::pluckSpring(number).stiffness);
  }
  return '[' + list + ']';
}

}  // namespace

std::string pluckScript() {
  const todaychord::PluckSpring spring = todaychord::pluckSpring(1);
  const todaychord::ChordView view;
  return "const pluck = {mass: " + formatNumber(spring.mass) +
         ", damping: " + formatNumber(spring.damping) + ", stiffness: " + stiffnessOfStrings() +
         ", displacement: " + formatNumber(todaychord::leastPluck) +
         ", pitch: " + formatNumber(metrics::stringPitch) + ", colour: '" +
         hexadecimal(view.stringHighlightGradientPlain.back().color) + "'};\n" +
         std::string(embeddedScripts().front().contents);
}

}  // namespace desktop

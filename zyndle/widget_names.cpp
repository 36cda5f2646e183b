#include "zyndle/widget_names.h"

#include <algorithm>

namespace zyndle {

using todaychord::WidgetFamily;

std::vector<WidgetFamily> drawnFamilies(const todaychord::WidgetDescription& widget) {
  std::vector<WidgetFamily> families(widget.families.begin(), widget.families.end());
  if (widget.kind == todaychord::chordWidgetKind) {
    families.insert(families.end(), {WidgetFamily::large, WidgetFamily::extraLarge});
    std::sort(families.begin(), families.end());
  }
  return families;
}

}  // namespace zyndle

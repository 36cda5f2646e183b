#pragma once

#include <iterator>

#include "TodayChordExtension/diagram/scene.h"

namespace todaychord {

/// Puts `more` behind `items`, to be painted over them.
inline void append(SceneItems& items, SceneItems more) {
  items.insert(items.end(), std::make_move_iterator(more.begin()),
               std::make_move_iterator(more.end()));
}

}  // namespace todaychord

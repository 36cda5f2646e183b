#pragma once

namespace todaychord {

/// What the user has set about how widgets look.
struct ViewSettings {
  bool isLeftHanded = false;  ///< diagrams are mirrored left to right
};

}  // namespace todaychord

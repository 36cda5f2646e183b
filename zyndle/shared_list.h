#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "TodayChordExtension/widgets/shared_settings_editing.h"
#include "Tonelake/chords/chord.h"

namespace zyndle {

/// One of the lists that the app keeps as data for its widgets, and the command that looks after
/// it. Each operation is a CommandError when the settings cannot be opened or the data is damaged:
/// what a widget passes over in silence, a person is told.
struct SharedList {
  std::string_view key;      ///< of the setting
  std::string_view command;  ///< "recent"

  using Edit = std::function<todaychord::SharedDataEdit(const std::optional<std::string>& data)>;
  void edit(const Edit& edit) const;

  /// Hands over the data, nothing where there is none; `read` may throw json::DecodingError.
  void read(const std::function<void(const std::optional<std::string>& data)>& read) const;

  void clear() const;
};

/// The chord's title; what is known of a chord that has none: "G♭ no type, variant 3".
std::string describeChord(const tonelake::Chord& chord);

}  // namespace zyndle

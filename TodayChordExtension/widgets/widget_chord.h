#pragma once

#include <optional>
#include <string>

#include "TodayChordExtension/diagram/chord_view.h"
#include "TodayChordExtension/diagram/scene.h"
#include "TodayChordExtension/widgets/widget_view_settings.h"
#include "Tonelake/foundation/api.h"

// Any thread may call: texts and shapes come from the ports of the process.
namespace todaychord {

// What widgets show and say of a chord, which may be missing or of an unknown type.

/// Longest type name that a line of a widget shows in full, in characters.
inline constexpr tonelake::WholeNumber titleLength = 12;
/// Longest type name that a screen reader is given in full, in characters.
inline constexpr tonelake::WholeNumber spokenTitleLength = 18;

/// The chord's title; "" without a chord and for one that cannot be shown.
TONELAKE_API std::string widgetTitle(const std::optional<Chord>& chord,
                                     tonelake::WholeNumber maxChars);

/// The chord's title where there is hardly room for one: "Cmaj7".
TONELAKE_API std::string inlineTitle(const std::optional<Chord>& chord);

/// "C · E · G"; "" without a chord and for one that cannot be shown.
TONELAKE_API std::string widgetTones(const std::optional<Chord>& chord);

// The two lines that name the chord of the day: its title and tones, or what stands in for them, so
// that a card without a chord does not look torn.
/// The title, or "No chord" in the user's language.
TONELAKE_API std::string chordOfTheDayTitle(const std::optional<Chord>& chord,
                                            tonelake::WholeNumber maxChars);
/// The tones, or "Find one in Zyndle" in the user's language.
TONELAKE_API std::string chordOfTheDayTones(const std::optional<Chord>& chord);

/// "Chord of the Day, C major. Learn More"; without a title "Chord of the Day. Learn More".
TONELAKE_API std::string chordOfTheDayLabel(const std::optional<Chord>& chord);

/// The chord's first shape in standard tuning; nothing where there is none.
TONELAKE_API std::optional<ChordView> widgetDiagram(const std::optional<Chord>& chord,
                                                    const ViewSettings& settings);

/// The diagram at `scale`, as the group "diagram": the board's middle at `middleX`, its highest
/// mark at `top`.
TONELAKE_API SceneItem drawDiagramAt(const ChordView& view, double middleX, double top,
                                     double scale);

}  // namespace todaychord

#include "zyndle/shared_list.h"

#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/chords/chord_spelling.h"
#include "Tonelake/foundation/json.h"
#include "zyndle/command_error.h"
#include "zyndle/shared_settings_file.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

void failIfDamaged(const SharedList& list, const std::string& problem) {
  if (problem.empty()) return;
  fail(translated("{0} cannot be used and stays as it is ({1}); {2} empties it", list.key, problem,
                  "zyndle " + std::string(list.command) + " clear"));
}

}  // namespace

void SharedList::edit(const Edit& edit) const {
  std::string problem;
  failIf(openSharedSettings()->editData(
      key, [&](const std::optional<std::string>& data) -> std::optional<std::string> {
        todaychord::SharedDataEdit result = edit(data);
        problem = result.problem;
        if (!problem.empty()) return std::nullopt;
        return result.data;
      }));
  failIfDamaged(*this, problem);
}

void SharedList::read(
    const std::function<void(const std::optional<std::string>& data)>& read) const {
  const auto answer = openSharedSettings()->find(key);
  failIf(answer.problem);
  // Data under another type than its own is none, here as for the widgets.
  const bool isData = answer.value && answer.value->type == desktop::SettingType::data;
  try {
    read(isData ? std::optional(answer.value->value) : std::nullopt);
  } catch (const tonelake::json::DecodingError& error) {
    failIfDamaged(*this, error.what());
  }
}

void SharedList::clear() const {
  failIf(openSharedSettings()->erase(key));
}

std::string describeChord(const tonelake::Chord& chord) {
  if (tonelake::Chords::isShowable(chord)) return tonelake::Chords::getTitleForChord(chord);
  return std::string(chord.rootNote.rawValue()) + " " + chord.chordType + ", variant " +
         std::to_string(chord.variant);
}

}  // namespace zyndle

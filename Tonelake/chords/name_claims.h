#pragma once

#include <string>

#include "Tonelake/chords/claimed_names.h"

namespace tonelake {

class ChordDataManager;

/// Lets `chord` have `name`, unless a chord that came earlier has a claim as good.
void claimName(ClaimedNames& names, const std::string& name, const ClaimedChord& chord);

/// Every name of every type and variant on `root`, as it stands and with "#" and "b". All of them
/// begin with the root, so that a name is found without those of the other roots.
ClaimedNames namesOnRoot(const ChordDataManager& manager, Note root);

}  // namespace tonelake

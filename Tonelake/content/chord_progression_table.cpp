#include "Tonelake/content/chord_progression_table.h"

namespace tonelake {

using Style = MusicStyles;

// A progression a row: numerals, styles, then what it does to the listener. A marker such as
// "(--vi--)" names a chord of the same progression, and the sentence has to read well with the
// chord's name in its place: "the relative minor (A minor)". The texts are also the keys of their
// translations.
// clang-format off

std::span<const ChordProgressionRow> majorProgressionRows() {
  static const std::vector<ChordProgressionRow> rows{
    {"I-V-vi-IV", {Style::pop, Style::rock},
     "Known as the “four-chord progression,” this loop has carried countless choruses. It steps "
     "out brightly from home (--I--) to the expectant dominant (--V--), turns inward at the "
     "relative minor (--vi--) and is lifted again by the subdominant (--IV--). Since it slips back "
     "to the start without a firm close, it can go round for a whole song."},

    {"I-vi-IV-V", {Style::pop, Style::rock},
     "This is a variation of the “50s progression,” the sweet and unhurried round of doo-wop "
     "ballads. The fall to the relative minor (--vi--) adds longing, the subdominant (--IV--) "
     "warms the mood, and the dominant (--V--) asks so clearly for home (--I--) that each round "
     "seems to begin by itself."},

    {"I-V-ii-IV", {Style::pop, Style::rock},
     "A close cousin of the Axis progression, with the supertonic (--ii--) where the relative "
     "minor would stand. Coming right after the dominant (--V--), that chord sidesteps the "
     "homecoming that your ear expects. Since it shares two notes with the subdominant (--IV--), "
     "the second half floats more than it pushes, and the loop stays gentle and undecided."},

    {"I-vi-V-IV", {Style::pop, Style::ballad},
     "A major-key loop where the dominant (--V--) does not lead straight home. It gives way to the "
     "subdominant (--IV--) instead, which takes the edge off the tension and lets the music settle "
     "softly back home (--I--). With the wistful relative minor (--vi--) so near the beginning, "
     "the whole has the bittersweet calm of a ballad."},

    {"I-V-IV-V", {Style::rock, Style::pop},
     "Begins at the home chord (--I--) and then hovers around the dominant (--V--). The dip to the "
     "milder subdominant (--IV--) eases the tension for a moment, only to climb straight back into "
     "it. Because the last chord is an open question, you want to hear the next round at once."},

    {"I-IV-V-IV", {Style::rock, Style::pop, Style::traditional},
     "A repeating progression built around the three most important chords in a key. From home "
     "(--I--) the energy rises through the subdominant (--IV--) to its peak at the dominant "
     "(--V--) and comes back down the same way. That even swing suits riffs and choruses that a "
     "whole room sings along to."},

    {"I-IV-I-V", {Style::folk, Style::traditional},
     "Alternates between the home chord (--I--) and its two closest relatives. The first outing, "
     "to the subdominant (--IV--), is relaxed; the second, to the dominant (--V--), leaves a "
     "question that only the next homecoming answers. With firm ground never more than a chord "
     "away, a simple tune can tell its story without distraction."},

    {"I-V-IV-I", {Style::blues, Style::rock},
     "A complete musical journey. It leaves home (--I--) for the strongest tension in the key "
     "(--V--), lets it ebb away through the subdominant (--IV--) instead of resolving it directly, "
     "and comes to rest where it began. The same relaxed way down closes many a twelve-bar blues, "
     "and it gives rock songs their easy swagger."},

    {"I-iii-IV-V", {Style::pop, Style::folk},
     "Starts stable (--I--) and turns a shade more thoughtful at the mediant (--iii--), which "
     "keeps two of the three notes of home. From there the roots climb by step through the "
     "subdominant (--IV--) to the dominant (--V--), so that hope and tension grow together until "
     "the next round releases them."},

    {"I-iii-vi-IV", {Style::pop, Style::rock},
     "Moves gradually from bright (--I--) to pensive, since the mediant (--iii--) and the relative "
     "minor (--vi--) each darken the color a little more. The subdominant (--IV--) lets the light "
     "back in and leads home without any hurry. Every chord keeps at least one note of the chord "
     "before it, so the mood shifts without a jolt."},

    {"I-ii-V-I", {Style::jazz, Style::classical},
     "A classic resolution pattern. The supertonic (--ii--) prepares the dominant (--V--), whose "
     "leading tone pulls straight back home (--I--), while the roots fall by fifths toward their "
     "goal. Few endings sound more settled, which is why jazz standards and classical cadences "
     "rely on it alike."},

    {"I-vi-ii-V", {Style::jazz, Style::romantic},
     "Leaves home (--I--) and takes the scenic way back. From the relative minor (--vi--) the "
     "roots fall in fifths through the supertonic (--ii--) to the dominant (--V--), each chord "
     "leaning on the next. The pull gathers until it swings you into another round, with the glow "
     "of an old love song."},

    {"I-VI-ii-V", {Style::jazz, Style::classical},
     "After starting at home (--I--), the progression springs a bright surprise: its sixth chord "
     "is major (--VI--) where the key would have it minor. The third of that chord is the leading "
     "tone of the supertonic (--ii--), so the music is pushed there, not merely led, before it "
     "goes on to the dominant (--V--). The turnaround sounds all the more playful and urgent for "
     "it."},

    {"I-♭VII-IV-I", {Style::rock, Style::modal},
     "Uses a borrowed chord (--♭VII--) from the Mixolydian mode, which has no leading tone and so "
     "none of the strict pull of a dominant. It drops a fourth to the subdominant (--IV--), which "
     "drops a fourth to home (--I--). The same loose fall twice in a row gives classic rock its "
     "broad, confident stride."},

    {"I-♭VII-IV-V", {Style::rock, Style::pop},
     "Combines the relaxed rock feel of (--♭VII--) with the drive of a true dominant (--V--). The "
     "lowered seventh degree loosens the key and the subdominant (--IV--) steadies it. When the "
     "leading tone returns at the end, the pull toward home (--I--) is all the stronger for having "
     "been away."},

    {"I-IV-♭VII-I", {Style::rock, Style::modal},
     "Moves outward from home (--I--) by fourths, first to the subdominant (--IV--) and then one "
     "more to the flat seven (--♭VII--), a chord outside the major scale. It returns by a plain "
     "whole step up instead of a cadence, which sounds sturdy, open and a little defiant."},

    {"I-IV-♭VII-IV", {Style::rock, Style::modal},
     "Centers around (--IV--) as a repeating anchor, heard on both sides of the borrowed flat "
     "seven (--♭VII--). Home (--I--) feels less like a goal than like one stop on a round trip, "
     "and with no leading tone anywhere the groove stays laid-back."},

    {"I-II-iii-V", {Style::pop, Style::modal},
     "The unexpected major (--II--) creates a bright lift, for its third is the raised fourth of "
     "the Lydian mode. Instead of going on to the dominant at once, it slips up a step to the "
     "mediant (--iii--), where the brightness turns thoughtful. Then the dominant (--V--) does "
     "arrive and points the way home (--I--)."},
  };
  return rows;
}

std::span<const ChordProgressionRow> minorProgressionRows() {
  static const std::vector<ChordProgressionRow> rows{
    {"i-VI-III-VII", {Style::rock, Style::pop},
     "One of the most common minor pop loops. After the dark home chord (--i--) come three major "
     "ones (--VI--, --III-- and --VII--), so that the sadness keeps catching the light. No leading "
     "tone forces the music home, and it can circle between melancholy and hope for as long as it "
     "likes."},

    {"i-VI-III-V", {Style::cinematic, Style::emotional},
     "A dramatic cinematic progression. The somber home chord (--i--) opens out into two broad "
     "major chords (--VI-- and --III--), and just as the light seems to win, the major dominant "
     "(--V--) sharpens the tension and pulls everything back into the dark."},

    {"i-iv-v-i", {Style::classical, Style::folk},
     "The minor version of the basic three-chord progression. Here all three are minor: the "
     "subdominant (--iv--) deepens the shadow of home (--i--), and the dominant (--v--), lacking a "
     "leading tone, returns there gently instead of with a strong pull. The effect is plain and "
     "grave, like an old ballad."},

    {"i-iv-V-i", {Style::classical, Style::dramatic},
     "Similar to the basic minor progression, but with a major dominant (--V--). Its third is the "
     "leading tone of the harmonic minor scale, a half step below the home note. After the "
     "brooding subdominant (--iv--) the return to the home chord (--i--) therefore sounds urgent "
     "and final."},

    {"i-v-VI-v", {Style::folk, Style::ballad},
     "Alternates between dark tension (--v--) and calmer places: the settled gloom of home (--i--) "
     "and the brief glow of the sixth chord (--VI--), whose root lies only a half step above the "
     "dominant's. Since a minor dominant never insists on resolving, the loop sways instead of arriving, like "
     "a verse that keeps something to itself."},

    {"i-VI-v-iv", {Style::rock, Style::ballad},
     "Moves from sadness (--i--) to a moment of warmth (--VI--) and then sinks by step through the "
     "minor dominant (--v--) to the minor subdominant (--iv--). It feels like slowly letting go, "
     "and the soft way back to the beginning leaves room to tell the story once more."},

    {"i-v-iv-VI", {Style::emotional, Style::cinematic},
     "A looping minor pattern that unexpectedly lifts at the end of each round. From home (--i--) "
     "through the dominant (--v--) to the subdominant (--iv--) every chord is minor, and the mood "
     "grows heavier. Then a single note moves, the major sixth chord (--VI--) opens like a window, "
     "and another small step closes it again."},

    {"i-iv-VI-III", {Style::melancholic, Style::folk},
     "Gradually brightens from dark (--i--) to light. The subdominant (--iv--) is still minor, but "
     "two of its notes live on in the major sixth chord (--VI--), and with the relative major "
     "(--III--) the sun is out. The easy fall back to the beginning gives each round a touch of "
     "nostalgia."},

    {"i-III-VII-i", {Style::modal, Style::medieval},
     "Uses the flat-seven (--VII--) in place of a dominant, so that the way home rises by a whole "
     "step and no leading tone softens the old modal color. Between two plain statements of home "
     "(--i--), that chord and the relative major (--III--) ring out like a dance tune on pipes, "
     "austere and yet proud."},

    {"i-III-VII-IV", {Style::rock, Style::emotional},
     "Mixes minor mood with strong major chords, three in a row and each a fifth above the last "
     "(--III--, --VII-- and --IV--). The third of them is the surprise, since it takes a note from "
     "the Dorian mode that the natural minor scale does not have. It lends the sorrow of home "
     "(--i--) a hopeful, stubborn strength."},

    {"i-III-VI-VII", {Style::rock, Style::modal},
     "A modal minor loop built mostly from major chords, with home (--i--) the only minor one. "
     "Once the relative major (--III--) has cleared the air, the last two chords (--VI-- and "
     "--VII--) climb by whole steps back to the start, a heroic sweep that needs no dominant."},

    {"i-VII-VI-V", {Style::cinematic, Style::dramatic},
     "The famous Andalusian cadence. The roots step down from home (--i--) through two major "
     "chords (--VII-- and --VI--), and a last dark half step leads to the major dominant (--V--), "
     "where the tension is left hanging. Flamenco takes that chord for a resting place; elsewhere "
     "it drives the music back to the top."},

    {"i-VII-VI-VII", {Style::rock, Style::modal},
     "A looping descending pattern that turns round before it reaches the dominant. From home "
     "(--i--) the roots go down by whole steps (to --VII-- and --VI--) and up again the same way. "
     "The rocking motion never closes and never tires, which gives it the momentum of an anthem."},

    {"i-v-iv-i", {Style::folk, Style::dramatic},
     "A simple dark repeating pattern returning home each cycle. The dominant (--v--) and the "
     "subdominant (--iv--) are as minor as home (--i--) itself, so no brighter chord ever breaks "
     "in. The close from the subdominant is like an amen without comfort, fit for laments and "
     "grave tales."},
  };
  return rows;
}

// clang-format on

}  // namespace tonelake

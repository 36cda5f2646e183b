#include "Tonelake/content/chord_text_tables.h"

namespace tonelake {
namespace {

// The chord types that jazz guitarists have more to say about. The slots are explained in
// chord_texts.h.
// clang-format off
constexpr ChordTextRow descriptions[] = {
    {"major 7th",
     "The (--1--) major 7th chord, built with the root ((--1--)), major third ((--2--)), perfect "
     "fifth ((--3--)), and major seventh ((--4--)), is a staple in jazz guitar for its lush, "
     "sophisticated sound. It is frequently used as a tonic chord in jazz standards, providing a "
     "dreamy, laid-back atmosphere perfect for ballads and bossa novas. Jazz guitarists often use"
     " voice leading with major 7th chords to create smooth harmonic transitions."},

    {"minor 7th",
     "The (--1--) minor 7th chord, with root ((--1--)), minor third ((--2--)), perfect fifth "
     "((--3--)), and minor seventh ((--4--)), is the ii of the ii-V-I and so one of the chords a "
     "jazz guitarist plays most. For comping, a shell of (--1--), (--4--), and (--2--) is enough."
     " When (--4--) then sinks by a semitone, it becomes the third of the dominant that follows."},

    {"major 9",
     "Jazz guitarists play the (--1--) major 9 chord where the chart asks for no more than a "
     "major 7th. Root ((--1--)), major third ((--2--)), major seventh ((--4--)), and major ninth "
     "((--5--)) fit on four neighboring strings once the perfect fifth ((--3--)) is left out. "
     "With a bassist at hand the root can go instead: (--2--), (--3--), (--4--), and (--5--) are "
     "a minor 7th grip on (--2--)."},

    {"minor 9",
     "The (--1--) minor 9 chord gives the ii of a ii-V-I more silk: to root ((--1--)), minor "
     "third ((--2--)), and minor seventh ((--4--)) comes a major ninth ((--5--)), mostly at the "
     "cost of the perfect fifth ((--3--)). Without its root it is a major 7th grip on (--2--), "
     "which lets a guitarist keep one shape while the bass moves. The ninth likes to stay in "
     "place and become the thirteenth of the next dominant."},

    {"minor major 7th",
     "Jazz takes the (--1--) minor major 7th chord, root ((--1--)), minor third ((--2--)), "
     "perfect fifth ((--3--)), and major seventh ((--4--)), as a tonic of minor keys and solos "
     "over it with the melodic minor scale. It is also the second step of a well-known line: over"
     " a held minor chord one voice sinks from the root to (--4--), on to the minor seventh and "
     "the sixth. On guitar that line lies on one string, a fret at a time."},

    {"minor major 6",
     "The (--1--) minor major 6 chord of root ((--1--)), minor third ((--2--)), perfect fifth "
     "((--3--)), and major sixth ((--4--)) is the tonic of minor swing tunes, where a minor 7th "
     "would sound like a ii on its way elsewhere. Rhythm guitarists strum it in four to the bar "
     "on the lower strings. The same grip serves as the dominant chord a fourth above (--1--), "
     "rootless and with a ninth."},

    {"minor major 9",
     "A minor tune that should end in style ends on the (--1--) minor major 9 chord, a minor "
     "triad of root ((--1--)), minor third ((--2--)), and perfect fifth ((--3--)) with major "
     "seventh ((--4--)) and major ninth ((--5--)). Over the bass a guitarist grips only (--2--), "
     "(--3--), (--4--), and (--5--), which is a major 7th chord with a raised fifth. Lines over "
     "it come from the melodic minor scale on (--1--)."},

    {"minor major 11",
     "In the (--1--) minor major 11 chord the upper tones do the talking: perfect fifth "
     "((--3--)), major seventh ((--4--)), major ninth ((--5--)), and perfect eleventh ((--6--)) "
     "are a dominant 7th chord on (--3--). A guitarist grips just that and lets the bassist "
     "supply the root ((--1--)) and the ear the minor third ((--2--)). It is a modern tonic for "
     "melodic minor tunes and likes to be held long."},

    {"dominant 7th add 11",
     "In the (--1--) dominant 7th add 11 chord the perfect eleventh ((--5--)) stays beside the "
     "major third ((--2--)) instead of replacing it. Jazz guitarists keep the two more than "
     "an octave apart, (--2--) low and (--5--) on top, with the minor seventh ((--4--)) between "
     "and root ((--1--)) and perfect fifth ((--3--)) left to others. It comes up in bluesy vamps and when "
     "a sus chord is about to let its fourth fall."},

    {"major 7th add 11",
     "Over a major chord the eleventh is the note that students are told to avoid; the (--1--) "
     "major 7th add 11 chord wants it. A perfect eleventh ((--5--)) on top of root ((--1--)), "
     "major third ((--2--)), perfect fifth ((--3--)), and major seventh ((--4--)) leans on "
     "the chord like a sigh and then moves down to its third. Modern players also let it stand, "
     "spread over open strings."},

    {"minor 7th add 11",
     "Stacked in fourths, the (--1--) minor 7th add 11 chord is the sound of modal jazz: root "
     "((--1--)), perfect eleventh ((--5--)), minor seventh ((--4--)), minor third ((--2--)), and "
     "perfect fifth ((--3--)) on five neighboring strings, three fourths and a major third. The "
     "shape slides up and down a step while the mode stays the same. Under a melody it says less "
     "than a minor 9 and leaves more room."},

    {"dominant 7th add 13",
     "The (--1--) dominant 7th add 13 chord is the everyday dressed-up dominant: root ((--1--)) "
     "in the bass, minor seventh ((--4--)), major third ((--2--)), and major thirteenth ((--5--))"
     " stacked above, and no perfect fifth ((--3--)). Swing guitarists put it on the V and on "
     "every chord of a blues. When the tonic follows, (--5--) stays as its third or falls to its "
     "ninth."},

    {"major 7th add 13",
     "With the (--1--) major 7th add 13 chord a guitarist gives a tonic both its major seventh "
     "((--4--)) and its sixth. The usual grip is root ((--1--)), (--4--), major third ((--2--)), "
     "and major thirteenth ((--5--)) on strings six, four, three, and two; the perfect fifth "
     "((--3--)) has no finger left and is not missed. It suits ballads whose melody rests on the "
     "sixth."},

    {"minor 7th add 13",
     "The (--1--) minor 7th add 13 chord spells out the Dorian mode: root ((--1--)), minor third "
     "((--2--)), perfect fifth ((--3--)), minor seventh ((--4--)), and the major thirteenth "
     "((--5--)) that tells Dorian from Aeolian. In a ii-V the thirteenth is already the third of "
     "the dominant, so many players save it for tunes that stay on one minor chord. There it "
     "alternates with the plain minor 7th."},

    {"dominant 7th flat 5",
     "The (--1--) dominant 7th flat 5 chord, root ((--1--)), major third ((--2--)), diminished "
     "fifth ((--3--)), and minor seventh ((--4--)), is its own tritone substitute: six frets up "
     "the same four tones return. It comes from the whole-tone scale and fits wherever a dominant"
     " resolves by a fifth or by a semitone downwards. Bebop guitarists know it as the V of V in "
     "many a standard."},

    {"dominant 7th flat 9th",
     "Above its root ((--1--)) the (--1--) dominant 7th flat 9th chord is a diminished 7th chord "
     "of major third ((--2--)), perfect fifth ((--3--)), minor seventh ((--4--)), and minor ninth"
     " ((--5--)). So a guitarist can move one grip up or down by three frets and stay in the "
     "chord. It is the V of minor keys; lines come from the harmonic minor or the half-whole "
     "diminished scale."},

    {"dominant 7th sharp 9th",
     "Jazz guitarists play the (--1--) dominant 7th sharp 9th chord on four strings: root "
     "((--1--)), major third ((--2--)), minor seventh ((--4--)), and augmented ninth ((--5--)), "
     "with the perfect fifth ((--3--)) left to the bass. It is a V that wants to go to minor, and"
     " in blues tunes a tonic with attitude. On the way home (--5--) often sinks to the flat "
     "ninth and then to the fifth of the new chord."},

    {"augmented 7th flat 9th",
     "The (--1--) augmented 7th flat 9th chord is the altered dominant in one grip. Major third "
     "((--2--)), augmented fifth ((--3--)), minor seventh ((--4--)), and minor ninth ((--5--)) "
     "are a minor 7th flat 5 chord on (--4--), so with the root ((--1--)) in the bass a guitarist"
     " needs no new shape. Solo over it with the melodic minor scale a semitone above (--1--)."},

    {"minor 7th flat 5",
     "Nearly every minor ii-V-i begins with a chord such as the (--1--) minor 7th flat 5: root "
     "((--1--)), minor third ((--2--)), diminished fifth ((--3--)), and minor seventh ((--4--)). "
     "The grip is also a minor 6 chord on (--2--), and swing guitarists think of it that way. "
     "Over it they play the Locrian mode, or the same with a raised second for a softer sound."},

    {"minor 7th sharp 5",
     "Jazz guitarists meet the (--1--) minor 7th sharp 5 chord, root ((--1--)), minor third "
     "((--2--)), augmented fifth ((--3--)), and minor seventh ((--4--)), when the fifth of a "
     "minor 7th chord climbs by semitones to the sixth and back. It doubles as a major add 9 "
     "chord on the pitch of (--3--) with its third in the bass. That makes it a smooth bridge to "
     "the chords of that brighter key."},

    {"minor 7th flat 9th",
     "The (--1--) minor 7th flat 9th chord is what the iii of a major key becomes when its ninth "
     "is taken from the scale: root ((--1--)), minor third ((--2--)), perfect fifth ((--3--)), "
     "minor seventh ((--4--)), and minor ninth ((--5--)). Over a bass note (--1--) a dominant 7th"
     " grip on (--2--) gives its four upper tones. Modal players hold it as a Phrygian color, "
     "mostly without resolving it."},

    {"minor major 7th add 11",
     "The (--1--) minor major 7th add 11 chord, root ((--1--)), minor third ((--2--)), perfect "
     "fifth ((--3--)), major seventh ((--4--)), and perfect eleventh ((--5--)), lets jazz "
     "guitarists hint at the dominant while the minor tonic holds on. (--3--), (--4--), and "
     "(--5--) carry that hint; when (--5--) falls to (--2--) and (--4--) rises to the octave, the"
     " chord is at rest. It works as a delayed ending of a minor tune."},

    {"minor major 7th add 13",
     "Both tones by which melodic minor differs from natural minor are in the (--1--) minor major "
     "7th add 13 chord: the major seventh ((--4--)) and the major thirteenth ((--5--)), over root "
     "((--1--)), minor third ((--2--)), and perfect fifth ((--3--)). Guitarists drop the fifth "
     "and stack (--1--), (--4--), (--2--), and (--5--). It is a full and stately minor tonic, "
     "good for a last chord that a horn section might play."},

    {"major 7th suspended 4th",
     "In the (--1--) major 7th suspended 4th chord the perfect fourth ((--2--)), perfect fifth "
     "((--3--)), and major seventh ((--4--)) are the dominant of the key over the tonic's root "
     "((--1--)). Jazz guitarists use it to hold an ending open over a pedal point and then let "
     "the fourth fall to the third. Since the nineties it has also stood alone, as a color in "
     "modern comping."},

    {"major 7th suspended 2nd",
     "Seen from the guitar, the (--1--) major 7th suspended 2nd chord is a slash chord: the major"
     " triad of perfect fifth ((--3--)), major seventh ((--4--)), and major second ((--2--)) over"
     " the root ((--1--)). It states a major tonic and leaves the third to the soloist, who may "
     "bring either the plain or the raised fourth. Players with a modern, open sound like it at "
     "the end of a phrase."},

    {"diminished",
     "Jazz guitarists rarely leave the (--1--) diminished chord, root ((--1--)), minor third "
     "((--2--)), and diminished fifth ((--3--)), at three tones. They hear it as the top of the "
     "dominant 7th chord a major third below (--1--) and resolve it accordingly. As a small grip "
     "on three strings it is handy for quick passing chords at swing tempo."},

    {"diminished 7th",
     "The (--1--) diminished 7th chord, root ((--1--)), minor third ((--2--)), diminished fifth "
     "((--3--)), and diminished seventh ((--4--)), repeats itself every three frets, so one grip "
     "serves four chords. Jazz guitarists use it to fill the gap between two neighbors, such as I "
     "and ii, and as a dominant 7th flat 9th without its root. Its scale alternates whole and "
     "half steps."},
};
// clang-format on

}  // namespace

std::span<const ChordTextRow> jazzChordDescriptionRows() noexcept {
  return descriptions;
}

}  // namespace tonelake

#include "Tonelake/content/chord_text_tables.h"

namespace tonelake {
namespace {

// In the order of the chord-type dictionary. The slots are explained in chord_texts.h.
// clang-format off
constexpr ChordTextRow descriptions[] = {
    {"major",
     "The (--1--) major chord, built from the root ((--1--)), major third ((--2--)), and perfect "
     "fifth ((--3--)), delivers a bright, harmonious sound that feels resolved and complete. Its "
     "balanced structure makes it the foundation of Western harmony, widely used across all "
     "genres to convey joy, strength, and stability."},

    {"minor",
     "The (--1--) minor chord sets a minor third ((--2--)) and a perfect fifth ((--3--)) on the "
     "root ((--1--)); its middle tone, a semitone lower, is all that parts it from the major "
     "chord. That one step turns the mood inward and wistful. Ballads, laments, and brooding "
     "riffs lean on it, and it is the home of every song in a minor key."},

    {"5",
     "The (--1--)5 power chord holds nothing but the root ((--1--)) and the perfect fifth "
     "((--3--)), often doubled an octave higher. Without a third it is neither major nor minor, "
     "so it stays clear and heavy even under strong distortion. Rock, punk, and metal riffs slide"
     " this one shape all over the neck."},

    {"dominant 7th",
     "The (--1--) dominant 7th chord sets a minor seventh ((--4--)) on a major triad of root "
     "((--1--)), major third ((--2--)), and perfect fifth ((--3--)). The tritone between (--2--) "
     "and (--4--) makes it restless and draws it toward the chord a fifth below. The blues, which "
     "builds whole songs from three such chords, lets that tension stand as a color of its own."},

    {"major 7th",
     "The (--1--) major 7th chord adds a major seventh ((--4--)), a semitone short of the octave,"
     " to the root ((--1--)), major third ((--2--)), and perfect fifth ((--3--)). The soft rub of"
     " (--4--) against (--1--) makes it dreamy where a plain major chord would be cheerful. Bossa"
     " nova, soul ballads, and soft rock rest on it when nothing should sound too final."},

    {"minor 7th",
     "The (--1--) minor 7th chord is a minor triad of root ((--1--)), minor third ((--2--)), and "
     "perfect fifth ((--3--)) with a minor seventh ((--4--)) above. The fourth tone takes the "
     "edge off the sadness and leaves a round, mellow sound. It carries the grooves of funk and "
     "soul, and in jazz it sets out on the way to the dominant and home."},

    {"minor major 7th",
     "The (--1--) minor major 7th chord puts a major seventh ((--4--)) over a minor triad of root"
     " ((--1--)), minor third ((--2--)), and perfect fifth ((--3--)). Its upper tones, (--2--), "
     "(--3--), and (--4--), form an augmented triad, which gives the dark chord a cold, glassy "
     "glint. Spy themes and detective films end on it, and songs pass through it when a line "
     "sinks by semitones from the root."},

    {"suspended 4th",
     "In the (--1--) suspended 4th chord a perfect fourth ((--2--)) takes the place of the third "
     "between the root ((--1--)) and the perfect fifth ((--3--)). The fourth lies a semitone "
     "above the major third and longs to sink into it, so the chord seems to hold its breath. "
     "Strummers in rock and pop play it by turns with the major chord on the same root."},

    {"suspended 2nd",
     "The (--1--) suspended 2nd chord has a major second ((--2--)) instead of a third, close to "
     "the root ((--1--)) and well below the perfect fifth ((--3--)). With no third to settle the "
     "mood it floats, neither glad nor sad. Folk pickers, indie bands, and makers of ambient "
     "music let it ring where a full triad would say too much."},

    {"6",
     "The (--1--)6 chord is a major triad of root ((--1--)), major third ((--2--)), and perfect "
     "fifth ((--3--)) with a major sixth ((--4--)) on top. With (--4--) in the bass the same four"
     " tones are a minor 7th chord, which explains the touch of nostalgia in its cheer. Swing "
     "bands, early rock and roll, and steel guitarists like to end a song on it."},

    {"minor major 6",
     "The (--1--) minor major 6 chord joins the root ((--1--)), minor third ((--2--)), and "
     "perfect fifth ((--3--)) to a major sixth ((--4--)), a degree that the melodic minor scale "
     "raises on its way up. Dark third and bright sixth keep each other in balance, bittersweet "
     "and at rest. Tango and film music close a minor phrase on it; in its tones it is the minor "
     "6 chord under another name."},

    {"9",
     "The (--1--)9 chord extends a dominant 7th chord of root ((--1--)), major third ((--2--)), "
     "perfect fifth ((--3--)), and minor seventh ((--4--)) by a major ninth ((--5--)). The ninth "
     "rounds off the bite of the seventh until it sounds warm and greasy. Funk guitarists chop it"
     " in short stabs, and blues players slide into it from a fret away."},

    {"minor 9",
     "The (--1--) minor 9 chord lays a major ninth ((--5--)) over root ((--1--)), minor third "
     "((--2--)), perfect fifth ((--3--)), and minor seventh ((--4--)). The ninth is a semitone "
     "below the third, an octave up, and from that hidden rub comes a velvet shimmer. Neo-soul, "
     "deep house, and slow R&B build whole songs on one or two of these."},

    {"major 9",
     "Five tones, each a third above the last, make the (--1--) major 9 chord: root ((--1--)), "
     "major third ((--2--)), perfect fifth ((--3--)), major seventh ((--4--)), and major ninth "
     "((--5--)). Its three upper tones are a second major triad, on (--3--), and so it sounds "
     "wide and luminous. Soul ballads, bossa nova, and lo-fi beats come to rest on it."},

    {"minor major 9",
     "The (--1--) minor major 9 chord carries a major seventh ((--4--)) and a major ninth "
     "((--5--)) over root ((--1--)), minor third ((--2--)), and perfect fifth ((--3--)). Its top,"
     " (--3--), (--4--), and (--5--), is a bright major triad and its foot a dark minor one, and "
     "the two never quite blend. Thrillers fade out on it, and art rock uses it where a plain "
     "minor chord would be too simple."},

    {"11",
     "The (--1--)11 chord stacks thirds all the way to the eleventh: root ((--1--)), major third "
     "((--2--)), perfect fifth ((--3--)), minor seventh ((--4--)), major ninth ((--5--)), and "
     "perfect eleventh ((--6--)). As (--6--) grates against (--2--), guitarists often leave the "
     "third out, and then the major triad of (--4--), (--5--), and (--6--) hovers over the bass. "
     "Gospel and soul use it as a mild dominant that takes its time."},

    {"minor 11",
     "Six tones make the (--1--) minor 11 chord: root ((--1--)), minor third ((--2--)), perfect "
     "fifth ((--3--)), minor seventh ((--4--)), major ninth ((--5--)), and perfect eleventh "
     "((--6--)). The eleventh keeps a whole step away from the third, so it opens the sound and "
     "disturbs nothing. Modal jazz and neo-soul stay on it for bars on end."},

    {"major 11",
     "The (--1--) major 11 chord climbs from the root ((--1--)) through major third ((--2--)), "
     "perfect fifth ((--3--)), major seventh ((--4--)), and major ninth ((--5--)) to a perfect "
     "eleventh ((--6--)). The eleventh lies a semitone above the third, an octave up, and so the "
     "chord glows and stings at once. Fusion and progressive rock look for that grain; others "
     "drop the third to get rid of it."},

    {"minor major 11",
     "The (--1--) minor major 11 chord gathers root ((--1--)), minor third ((--2--)), perfect "
     "fifth ((--3--)), major seventh ((--4--)), major ninth ((--5--)), and perfect eleventh "
     "((--6--)). The upper four are a dominant 7th chord on (--3--), so the tension of a minor "
     "key and its home sound in one breath. Rare and heavy with fate, it suits dark film scores "
     "and progressive metal."},

    {"major add 9",
     "The (--1--) major add 9 chord puts a major ninth ((--5--)) on a plain triad of root "
     "((--1--)), major third ((--2--)), and perfect fifth ((--3--)) and leaves the seventh out. "
     "It stands as firmly as a major chord and only sparkles more. Jangling pop guitars, worship "
     "songs, and fingerstyle pieces love how it rings."},

    {"minor add 9",
     "The (--1--) minor add 9 chord adds a major ninth ((--5--)), but no seventh, to root "
     "((--1--)), minor third ((--2--)), and perfect fifth ((--3--)). Where (--5--) and (--2--) "
     "sound side by side they beat against each other, and plain sadness becomes an ache. Picked "
     "slowly, it opens many a post-rock or film piece."},

    {"6 add 9",
     "The (--1--)6 add 9 chord holds the five tones of the major pentatonic scale at once: root "
     "((--1--)), major third ((--2--)), perfect fifth ((--3--)), major sixth ((--4--)), and major"
     " ninth ((--5--)). No two of them are a semitone apart, so it is sunny and polished with no "
     "sharp edge. Swing tunes and bossa novas end on it."},

    {"minor 6",
     "The (--1--) minor 6 chord consists of root ((--1--)), minor third ((--2--)), perfect fifth "
     "((--3--)), and major sixth ((--4--)). The tritone between (--2--) and (--4--) gives the "
     "dark triad a smoky sting; with (--4--) in the bass the tones are those of a half-diminished"
     " chord. Parisian swing and old chansons take it as their home chord in minor."},

    {"minor 6 add 9",
     "The (--1--) minor 6 add 9 chord sets a major sixth ((--4--)) and a major ninth ((--5--)) "
     "above root ((--1--)), minor third ((--2--)), and perfect fifth ((--3--)). It has come to "
     "rest and still smolders, for (--2--) makes a tritone with (--4--) and rubs against (--5--)."
     " Cool jazz and Latin tunes in minor fade away on it."},

    {"dominant 7th add 11",
     "The (--1--) dominant 7th add 11 chord brings a perfect eleventh ((--5--)) into a dominant "
     "7th chord of root ((--1--)), major third ((--2--)), perfect fifth ((--3--)), and minor "
     "seventh ((--4--)), with no ninth between. Third and fourth sound together, so it is decided"
     " and suspended at once, with a gritty surface. Funk vamps and psychedelic jams thrive on "
     "that friction."},

    {"major 7th add 11",
     "The (--1--) major 7th add 11 chord keeps root ((--1--)), major third ((--2--)), perfect "
     "fifth ((--3--)), and major seventh ((--4--)) and adds a perfect eleventh ((--5--)). The "
     "eleventh clouds the third and stands a tritone from (--4--), so the dream of the major 7th "
     "turns hazy and strange. Guitarists find it when open strings ring into a chord, as in indie"
     " rock and post-rock."},

    {"minor 7th add 11",
     "The (--1--) minor 7th add 11 chord is the minor pentatonic scale sounded all at once: root "
     "((--1--)), minor third ((--2--)), perfect fifth ((--3--)), minor seventh ((--4--)), and "
     "perfect eleventh ((--5--)). Nothing in it pushes on, so it is calm and roomy. The six open "
     "strings of a guitar in standard tuning are this very chord on E, and folk, soul, and modal "
     "jazz are at home in it."},

    {"minor major 7th add 11",
     "The (--1--) minor major 7th add 11 chord has root ((--1--)), minor third ((--2--)), perfect"
     " fifth ((--3--)), and major seventh ((--4--)), and a perfect eleventh ((--5--)) above them."
     " The tritone from (--5--) to (--4--) unsettles a chord that was strange already. Horror "
     "scores and the outer edges of metal and fusion are where it haunts."},

    {"dominant 7th add 13",
     "The (--1--) dominant 7th add 13 chord joins a dominant 7th chord of root ((--1--)), major "
     "third ((--2--)), perfect fifth ((--3--)), and minor seventh ((--4--)) to a major thirteenth"
     " ((--5--)), the sixth an octave up. The thirteenth makes the seventh bright and brassy and "
     "in no hurry to move on. Blues shuffles and swing tunes lift their sevenths with it, usually"
     " without the fifth."},

    {"major 7th add 13",
     "Root ((--1--)), major third ((--2--)), perfect fifth ((--3--)), major seventh ((--4--)), "
     "and, an octave and a sixth up, a major thirteenth ((--5--)) make the (--1--) major 7th add "
     "13 chord. It has the longing of the major 7th and the friendliness of the sixth chord in "
     "one. Bossa nova and lounge tunes close their phrases with it."},

    {"minor 7th add 13",
     "The (--1--) minor 7th add 13 chord adds a major thirteenth ((--5--)) to root ((--1--)), "
     "minor third ((--2--)), perfect fifth ((--3--)), and minor seventh ((--4--)). The thirteenth"
     " is the bright sixth of the Dorian mode; a tritone away from (--2--), it puts a keen edge "
     "on a mellow chord. Funk and Latin vamps circle on it."},

    {"minor major 7th add 13",
     "The (--1--) minor major 7th add 13 chord takes a major seventh ((--4--)) and a major "
     "thirteenth ((--5--)) from the melodic minor scale and sets them over root ((--1--)), minor "
     "third ((--2--)), and perfect fifth ((--3--)). Dark below and gleaming above, it is elegant "
     "and slightly dangerous. Cabaret numbers, noir films, and big-band endings show it off."},

    {"dominant 7th flat 5",
     "The (--1--) dominant 7th flat 5 chord lowers the fifth of a dominant 7th chord: root "
     "((--1--)), major third ((--2--)), diminished fifth ((--3--)), and minor seventh ((--4--)). "
     "It holds two tritones, (--1--) with (--3--) and (--2--) with (--4--), so it sounds the same"
     " as its neighbor half an octave away and can leave in two directions. Bebop and bossa nova "
     "play on that sly double meaning."},

    {"augmented",
     "The (--1--) augmented chord stacks two major thirds: root ((--1--)), major third ((--2--)),"
     " and augmented fifth ((--3--)). It divides the octave into three equal parts, so each of "
     "its tones could be the root and none sounds like home. Songs use it as a lift between two "
     "chords while the fifth climbs by semitones, and films for magic and for dreams."},

    {"augmented 7th",
     "The (--1--) augmented 7th chord is a dominant 7th chord with a raised fifth: root "
     "((--1--)), major third ((--2--)), augmented fifth ((--3--)), and minor seventh ((--4--)). "
     "When the major chord a fifth below follows, (--3--) rises and (--4--) falls, and both meet "
     "in its third. Blues turnarounds, ragtime, and old soul ballads use it to press for home."},

    {"dominant 7th flat 9th",
     "A minor ninth ((--5--)), just a semitone above the octave, puts the sting into the (--1--) "
     "dominant 7th flat 9th chord of root ((--1--)), major third ((--2--)), perfect fifth "
     "((--3--)), and minor seventh ((--4--)). Take the root away and a diminished 7th chord "
     "remains. Flamenco, tango, and klezmer use it to fall with passion into a minor chord."},

    {"dominant 7th sharp 9th",
     "The (--1--) dominant 7th sharp 9th chord sounds a major third ((--2--)) together with an "
     "augmented ninth ((--5--)), which has the pitch of a minor third, over root ((--1--)), "
     "perfect fifth ((--3--)), and minor seventh ((--4--)). Major and minor clash in it like the "
     "blue notes of a singer. Psychedelic rock made it famous, and funk and blues rock riffs "
     "growl on it."},

    {"augmented 7th flat 9th",
     "In the (--1--) augmented 7th flat 9th chord an augmented fifth ((--3--)) and a minor ninth "
     "((--5--)) twist a dominant chord of root ((--1--)), major third ((--2--)), and minor "
     "seventh ((--4--)). Both altered tones belong to the minor key a fifth below, and towards it"
     " the whole chord strains. Bebop and late Romantic music bring it in just before a dark "
     "arrival."},

    {"minor 7th flat 5",
     "The (--1--) minor 7th flat 5 chord, also called half-diminished, sets a minor seventh "
     "((--4--)) on a diminished triad of root ((--1--)), minor third ((--2--)), and diminished "
     "fifth ((--3--)). It is softer than the diminished 7th chord, fragile and searching rather "
     "than alarmed. As the second chord of minor keys it leads to the dominant in standards and "
     "bossa novas."},

    {"minor 7th sharp 5",
     "The (--1--) minor 7th sharp 5 chord raises the fifth of a minor 7th chord: root ((--1--)), "
     "minor third ((--2--)), augmented fifth ((--3--)), and minor seventh ((--4--)). The ear "
     "takes (--3--) for a minor sixth and hears a major chord with an added ninth, standing on "
     "its third. So it hovers between dark and light, which fusion and film music like."},

    {"minor 7th flat 9th",
     "The (--1--) minor 7th flat 9th chord brings the low second step of the Phrygian mode, as a "
     "minor ninth ((--5--)), over root ((--1--)), minor third ((--2--)), perfect fifth ((--3--)),"
     " and minor seventh ((--4--)). The ninth weighs on the root from a semitone above, dark and "
     "ancient. Flamenco and metal know its mood; in jazz it colors the third chord of a major "
     "key."},

    {"6 suspended 4th",
     "The (--1--)6 suspended 4th chord takes a perfect fourth ((--2--)) for the third and adds a "
     "major sixth ((--4--)) to root ((--1--)) and perfect fifth ((--3--)). As (--2--), (--4--), "
     "and (--1--) are a major triad, it sounds half like the chord a fourth above. Gospel and "
     "folk rock songs use it to glide between the two chords of an Amen."},

    {"6 suspended 2nd",
     "The (--1--)6 suspended 2nd chord consists of root ((--1--)), major second ((--2--)), "
     "perfect fifth ((--3--)), and major sixth ((--4--)). Put in another order, (--1--), (--3--),"
     " (--2--), (--4--), its tones are a chain of fifths, like the strings of a fiddle, and they "
     "ring as clearly. Folk tunings, ambient loops, and New Age pieces drift on it."},

    {"dominant 7th suspended 4th",
     "The (--1--) dominant 7th suspended 4th chord holds a perfect fourth ((--2--)) in place of "
     "the third, with root ((--1--)), perfect fifth ((--3--)), and minor seventh ((--4--)). "
     "Without the third there is no tritone, and the pull of the dominant becomes a patient wait."
     " Soul and seventies pop linger on it before the dominant 7th chord, or do without that "
     "altogether."},

    {"dominant 7th suspended 2nd",
     "The (--1--) dominant 7th suspended 2nd chord has a major second ((--2--)) where the third "
     "would be, and root ((--1--)), perfect fifth ((--3--)), and minor seventh ((--4--)) around "
     "it. It amounts to a minor triad of (--3--), (--4--), and (--2--) over another bass, bluesy "
     "but hollow in the middle. Indie riffs and trip hop loops roam about on it."},

    {"major 7th suspended 4th",
     "The (--1--) major 7th suspended 4th chord lets a perfect fourth ((--2--)) and a major "
     "seventh ((--4--)) meet over root ((--1--)) and perfect fifth ((--3--)). The two are a "
     "tritone apart and pull against each other, the fourth down to the third and the seventh up "
     "to the octave. Fusion and film music keep the chord in that glow a moment longer than is "
     "comfortable."},

    {"major 7th suspended 2nd",
     "The (--1--) major 7th suspended 2nd chord is built from root ((--1--)), major second "
     "((--2--)), perfect fifth ((--3--)), and major seventh ((--4--)). Over the bass it carries "
     "the major triad of (--3--), (--4--), and (--2--), and with no third of its own it is as "
     "clear as glass. Ambient guitars and indie ballads float on it."},

    {"diminished",
     "The (--1--) diminished chord stacks two minor thirds: root ((--1--)), minor third "
     "((--2--)), and diminished fifth ((--3--)). The tritone between (--1--) and (--3--) leaves "
     "it no rest, and usually the chord a semitone above relieves it. Classical music and ragtime"
     " use it as a hinge between chords, metal as a threat."},

    {"diminished 7th",
     "The (--1--) diminished 7th chord piles three minor thirds on each other: root ((--1--)), "
     "minor third ((--2--)), diminished fifth ((--3--)), and diminished seventh ((--4--)). They "
     "divide the octave evenly, so every tone can be the root and every one can lead away. "
     "Villains of the silent film entered to it, and gospel players slip it in between two "
     "chords."},
};
// clang-format on

}  // namespace

std::span<const ChordTextRow> chordDescriptionRows() noexcept {
  return descriptions;
}

}  // namespace tonelake

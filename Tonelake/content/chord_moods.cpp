#include "Tonelake/content/chord_text_tables.h"

namespace tonelake {
namespace {

// In the order of the chord-type dictionary: four adjectives a chord type, in small letters.
// clang-format off
constexpr ChordTextRow characters[] = {
    {"major",                      "happy, bright, stable, uplifting"},
    {"minor",                      "sad, moody, introspective, emotional"},
    {"5",                          "powerful, raw, heavy, driving"},
    {"dominant 7th",               "bluesy, tense, unresolved, energetic"},
    {"major 7th",                  "dreamy, romantic, smooth, spacious"},
    {"minor 7th",                  "mellow, cool, soulful, relaxed"},
    {"minor major 7th",            "mysterious, eerie, suspenseful, elegant"},
    {"suspended 4th",              "expectant, open, hopeful, restless"},
    {"suspended 2nd",              "airy, floating, calm, ambiguous"},
    {"6",                          "sweet, nostalgic, cheerful, gentle"},
    {"minor major 6",              "bittersweet, worldly, sultry, poised"},
    {"9",                          "funky, greasy, warm, confident"},
    {"minor 9",                    "velvety, sensual, late-night, smooth"},
    {"major 9",                    "luminous, lush, serene, tender"},
    {"minor major 9",              "haunting, dramatic, noir, unsettled"},
    {"11",                         "soulful, churchy, generous, suspended"},
    {"minor 11",                   "deep, open, contemplative, cool"},
    {"major 11",                   "radiant, complex, piquant, ethereal"},
    {"minor major 11",             "fateful, dense, brooding, arcane"},
    {"major add 9",                "sparkling, fresh, wide-eyed, sincere"},
    {"minor add 9",                "aching, lonely, delicate, wintry"},
    {"6 add 9",                    "sunny, polished, carefree, content"},
    {"minor 6",                    "smoky, wry, vintage, yearning"},
    {"minor 6 add 9",              "smoldering, exotic, refined, nocturnal"},
    {"dominant 7th add 11",        "gritty, unruly, earthy, insistent"},
    {"major 7th add 11",           "hazy, enigmatic, glistening, remote"},
    {"minor 7th add 11",           "earthy, meditative, spacious, unhurried"},
    {"minor major 7th add 11",     "haunted, sour, surreal, ominous"},
    {"dominant 7th add 13",        "brassy, witty, swinging, bold"},
    {"major 7th add 13",           "sunlit, warm, gracious, leisurely"},
    {"minor 7th add 13",           "keen, hopeful, slinky, streetwise"},
    {"minor major 7th add 13",     "seductive, dangerous, gleaming, theatrical"},
    {"dominant 7th flat 5",        "slippery, sly, ambiguous, angular"},
    {"augmented",                  "uneasy, magical, weightless, questioning"},
    {"augmented 7th",              "eager, quirky, pressing, colorful"},
    {"dominant 7th flat 9th",      "dark, passionate, biting, dramatic"},
    {"dominant 7th sharp 9th",     "fiery, growling, psychedelic, defiant"},
    {"augmented 7th flat 9th",     "tormented, feverish, twisted, urgent"},
    {"minor 7th flat 5",           "fragile, searching, melancholic, delicate"},
    {"minor 7th sharp 5",          "hovering, wistful, veiled, cinematic"},
    {"minor 7th flat 9th",         "brooding, ancient, menacing, somber"},
    {"6 suspended 4th",            "pastoral, hymn-like, patient, broad"},
    {"6 suspended 2nd",            "clear, rustic, drifting, innocent"},
    {"dominant 7th suspended 4th", "patient, anticipating, cool, majestic"},
    {"dominant 7th suspended 2nd", "hollow, bluesy, roaming, laid-back"},
    {"major 7th suspended 4th",    "yearning, strained, glowing, unearthly"},
    {"major 7th suspended 2nd",    "crystalline, pure, weightless, distant"},
    {"diminished",                 "tense, anxious, unstable, sinister"},
    {"diminished 7th",             "theatrical, spooky, spiraling, suspenseful"},
};

// Three or four genres a chord type, with capitals as their names have them.
constexpr ChordTextRow genres[] = {
    {"major",                      "Pop, Rock, Classical, Country"},
    {"minor",                      "Pop, Rock, Blues, Classical"},
    {"5",                          "Rock, Metal, Punk, Grunge"},
    {"dominant 7th",               "Blues, Jazz, Rock, Funk"},
    {"major 7th",                  "Jazz, Bossa Nova, Soul, Soft Rock"},
    {"minor 7th",                  "Jazz, Soul, Funk, R&B"},
    {"minor major 7th",            "Film Scores, Jazz, Tango"},
    {"suspended 4th",              "Rock, Pop, Folk, Gospel"},
    {"suspended 2nd",              "Folk, Indie, Ambient, Pop"},
    {"6",                          "Swing, Rock and Roll, Country, Hawaiian"},
    {"minor major 6",              "Tango, Swing, Film Scores, Latin Jazz"},
    {"9",                          "Funk, Blues, Soul, Jazz"},
    {"minor 9",                    "Neo-Soul, R&B, House, Jazz"},
    {"major 9",                    "Soul, Bossa Nova, Lo-Fi, Jazz"},
    {"minor major 9",              "Film Scores, Jazz, Art Rock"},
    {"11",                         "Gospel, Soul, Funk, Fusion"},
    {"minor 11",                   "Modal Jazz, Neo-Soul, Fusion, Trip Hop"},
    {"major 11",                   "Fusion, Progressive Rock, Film Scores"},
    {"minor major 11",             "Film Scores, Fusion, Progressive Metal"},
    {"major add 9",                "Pop, Indie, Worship, Folk"},
    {"minor add 9",                "Post-Rock, Emo, Film Scores, Singer-Songwriter"},
    {"6 add 9",                    "Swing, Bossa Nova, Western Swing, Lounge"},
    {"minor 6",                    "Swing, Tango, Jazz, Chanson"},
    {"minor 6 add 9",              "Latin Jazz, Tango, Cool Jazz, Exotica"},
    {"dominant 7th add 11",        "Funk, Gospel, Psychedelic Rock"},
    {"major 7th add 11",           "Indie, Post-Rock, Ambient, Fusion"},
    {"minor 7th add 11",           "Folk, Soul, Modal Jazz, Acid Jazz"},
    {"minor major 7th add 11",     "Horror Scores, Avant-Garde Metal, Fusion"},
    {"dominant 7th add 13",        "Blues, Swing, Funk, Jazz"},
    {"major 7th add 13",           "Bossa Nova, Lounge, Soul"},
    {"minor 7th add 13",           "Funk, Acid Jazz, Latin, R&B"},
    {"minor major 7th add 13",     "Cabaret, Film Scores, Big Band"},
    {"dominant 7th flat 5",        "Bebop, Bossa Nova, Impressionism"},
    {"augmented",                  "Classical, Pop, Musical Theatre, Film Scores"},
    {"augmented 7th",              "Blues, Ragtime, Soul, Jazz"},
    {"dominant 7th flat 9th",      "Flamenco, Tango, Klezmer, Jazz"},
    {"dominant 7th sharp 9th",     "Psychedelic Rock, Blues Rock, Funk, Jazz"},
    {"augmented 7th flat 9th",     "Bebop, Modern Jazz, Late Romantic"},
    {"minor 7th flat 5",           "Jazz, Bossa Nova, Romantic, Latin"},
    {"minor 7th sharp 5",          "Jazz, Fusion, Film Scores"},
    {"minor 7th flat 9th",         "Flamenco, Metal, Modal Jazz"},
    {"6 suspended 4th",            "Gospel, Folk Rock, Country"},
    {"6 suspended 2nd",            "Ambient, Folk, New Age"},
    {"dominant 7th suspended 4th", "Soul, R&B, Pop, Modal Jazz"},
    {"dominant 7th suspended 2nd", "Indie, Trip Hop, Blues Rock"},
    {"major 7th suspended 4th",    "Fusion, Film Scores, Art Rock, Ambient"},
    {"major 7th suspended 2nd",    "Ambient, Indie, New Age, Fusion"},
    {"diminished",                 "Classical, Metal, Ragtime"},
    {"diminished 7th",             "Classical, Jazz, Gospel, Silent Film"},
};
// clang-format on

}  // namespace

std::span<const ChordTextRow> chordCharacterRows() noexcept {
  return characters;
}

std::span<const ChordTextRow> chordGenreRows() noexcept {
  return genres;
}

}  // namespace tonelake

#include "Tonelake/content/curated_chord_list_table.h"

namespace tonelake {
namespace {

// A list a row: theme, image, title; then the description; then the chords in display order. Title
// and description are the English texts, which are also the keys of their translations. A list may
// hold a chord that another one holds too.
// clang-format off
constexpr CuratedRow rows[] = {
    {ChordListCategory::commonChords, "C_chord", "Common Chords",
     "Most commonly used major and minor chords",
     "C major, G major, D major, A major, E major, A minor, E minor, D minor, C♯ minor, B minor"},

    {ChordListCategory::beginnerEssentials, "acoustic", "First Chords",
     "For those starting to learn guitar chords",
     "C major, G major, D major, A major, E major, A minor, E minor, D minor, E dominant 7th, "
     "G dominant 7th"},

    {ChordListCategory::barreChords, "fret", "Barre Chords Mastery",
     "For intermediate players looking to expand their versatility",
     "F major, B minor, C minor, C♯ minor, B♭ minor, F♯ major"},

    {ChordListCategory::jazzChords, "jazz", "Jazz Chords Collection",
     "For jazz enthusiasts and advanced players",
     "C major 7th, G major 7th, A minor 7th, D minor 7th, G dominant 7th, C dominant 7th, "
     "B minor 7th flat 5, F♯ minor 7th flat 5, D 9, A 9, E minor 9, A minor 9, C major 9, "
     "G major 9, E dominant 7th sharp 9th, A dominant 7th sharp 9th, G 11, D 11"},

    {ChordListCategory::fingerstyleFavorites, "acoustic", "Fingerstyle Favorites",
     "Chords that are popular in fingerstyle arrangements - for melodic playing and acoustic "
     "sessions.",
     "C major add 9, G suspended 4th, D major add 9, A minor 7th, E minor 7th, D suspended 2nd, "
     "F major 7th, A suspended 4th, E minor add 9"},

    {ChordListCategory::powerChords, "rock-music", "Power Chords and Rock Essentials",
     "Movable power chords and variations - Perfect for rock, punk, and metal players.",
     "E 5, A 5, D 5, G 5, B 5, F♯ 5, C 5, B♭ 5, A♭ 5, D♭ 5"},

    {ChordListCategory::bluesChords, "blues", "Blues Chord Vault",
     "Great for blues improvisation and rhythm playing",
     "E dominant 7th, A dominant 7th, B dominant 7th, G dominant 7th, D dominant 7th, "
     "C dominant 7th, F dominant 7th, A major 9, D major 9, G major 9"},

    {ChordListCategory::undergroundMusic, "underground-music", "Underground Music Pack",
     "A gritty, moody mix of power chords, dissonance, and unconventional voicings that capture "
     "the raw edge of underground music.",
     "E dominant 7th sharp 9th, F major 7th add 11, A suspended 2nd, E 5, A minor, "
     "E suspended 2nd, A 5, E minor, C suspended 2nd, G 5, B minor, G major add 9, B 5, D minor, "
     "D suspended 2nd, F 5"},

    {ChordListCategory::country, "country-music", "Essential Country",
     "Country music — it’s all about storytelling, twang, and heartfelt vibes. With these plain "
     "chords and bright sevenths you can strum along to a honky-tonk stomp or a back-porch ballad.",
     "G major, C major, D major, A major, E major, A dominant 7th, D dominant 7th, "
     "G dominant 7th, E minor, B minor, F major, B dominant 7th, B major, D suspended 4th"},

    {ChordListCategory::folk, "folk-music", "The Folk Songbook",
     "Folk music has a warm, organic, and natural feel, as if every song were meant to be shared "
     "around a fire. These ringing chords leave plenty of room for your voice, whether you strum "
     "or pick.",
     "D major, E minor, A major, E major, C major, A minor, G major, F major, D dominant 7th, "
     "G dominant 7th, C dominant 7th, C major add 9, D suspended 4th, E minor 7th"},

    {ChordListCategory::metal, "metal-music", "Metal Guitar Arsenal",
     "Metal — a genre where power, aggression, and dark emotion reign. Chug the power chords, let "
     "the minors brood, and reach for the diminished shapes when a riff needs menace.",
     "E minor, A minor, E 5, F 5, G 5, A 5, B 5, D minor, B minor, F minor, B diminished, "
     "G♯ diminished, D suspended 2nd, E suspended 2nd, E suspended 4th, E minor 7th, "
     "B minor 7th flat 5"},

    {ChordListCategory::rock, "rock-music", "Essential Rock Chords",
     "From classic to alt, garage to stadium, rock guitar is built on a mix of power, attitude, "
     "and emotion. Drive the verse with the big majors and sevenths, then bring in the minors "
     "when the chorus has to soar.",
     "E major, A major, D major, G major, C major, F major, B minor, B major, C♯ minor, "
     "G♯ minor, E dominant 7th, A dominant 7th, G dominant 7th, C major add 9, A major 7th, "
     "E minor 7th, D major 7th"},

    {ChordListCategory::rnb, "rnb", "The R&B Songbook",
     "Whether it’s old-school soul, 90s slow jams, or modern alt-R&B, lush chords are what "
     "carries the groove. These smooth sevenths, ninths, and suspensions are made for laid-back "
     "rhythms and late-night melodies.",
     "A minor 7th, D minor 7th, E minor 7th, G minor 7th, C minor 7th, F minor 7th, "
     "A dominant 7th, D dominant 7th, E dominant 7th, A minor 9, D minor 9, C major 9, "
     "D suspended 2nd, E suspended 4th, C major add 9, E major add 9"},
};

// A shape a row: theme, root, chord type, frets with the lowest string first.
constexpr PinnedShape pinned[] = {
    // Only the three low strings, to be muted with the palm.
    {ChordListCategory::metal, Note::E, "5", {0, 2, 2, -1, -1, -1}},
};
// clang-format on

}  // namespace

std::span<const CuratedRow> curatedRows() noexcept {
  return rows;
}

std::span<const PinnedShape> pinnedShapes() noexcept {
  return pinned;
}

}  // namespace tonelake

#include "TodayChordExtension/widgets/widget_links.h"

#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "tests/support/printing.h"

namespace todaychord {
namespace {

using tonelake::Note;

const std::string host = "zyndle://widget/";

TEST(WidgetLinks, EncodeEverythingButUnreservedCharacters) {
  const std::pair<std::optional<Chord>, std::string> chords[] = {
      {Chord{Note::C, "minor 7th", 2}, "chord?root=C&type=minor%207th&variant=2"},
      {Chord{Note::Fs, "", -1}, "chord?root=F%E2%99%AF&type=&variant=-1"},
      {Chord{Note::Cds, "a+b&c=d#e?/%ü~", INT64_MAX},
       "chord?root=C%F0%9D%84%AA&type=a%2Bb%26c%3Dd%23e%3F%2F%25%C3%BC~"
       "&variant=9223372036854775807"},
      {Chord{Note::C, "\xFF", 0}, "home"},
      {std::nullopt, "home"},
  };
  for (const auto& [chord, link] : chords) EXPECT_EQ(chordLink(chord), host + link);

  const std::pair<std::string, std::string> titles[] = {
      {"Warm-up_1.~", "collection?title=Warm-up_1.~"},
      {"Rock & Roll + ü♯", "collection?title=Rock%20%26%20Roll%20%2B%20%C3%BC%E2%99%AF"},
      {"", "collection?title="},
      {std::string("\0\x7F", 2), "collection?title=%00%7F"},
      {"\xC3", "collections"},
  };
  for (const auto& [title, link] : titles) EXPECT_EQ(collectionLink(title), host + link);

  const std::pair<std::string, std::string> names[] = {
      {"reverse-chord-finder", host + "reverse-chord-finder"},
      {"A_z.0~", host + "A_z.0~"},
      {"scan song", "/"},
      {"tuner/", "/"},
      {"tuner%20", "/"},
      {"é", "/"},
  };
  for (const auto& [name, link] : names) EXPECT_EQ(namedDestination(name), link) << name;
}

TEST(WidgetLinks, AreReadBack) {
  for (const Note root : Note::allCases()) {
    for (const std::string& type : tonelake::chordTypes()) {
      const Chord chord{root, type, static_cast<tonelake::WholeNumber>(type.size())};
      ASSERT_EQ(parseWidgetLink(chordLink(chord)), WidgetLink(chord)) << chordLink(chord);
    }
  }
  std::string bytes;
  for (char byte = 0; byte < 127; ++byte) bytes += byte;
  for (const std::string& title : {bytes, std::string("𝄪 ü"), std::string()}) {
    EXPECT_EQ(parseWidgetLink(collectionLink(title)), WidgetLink(CollectionLink{title})) << title;
  }
  for (const char* name : {"home", "search", "collections", "scan-song"}) {
    EXPECT_EQ(parseWidgetLink(namedDestination(name)), WidgetLink(NamedDestination{name}));
  }
}

TEST(WidgetLinks, OfOthersAreReadWithCare) {
  const Chord minor{Note::Ef, "minor", 1};
  const std::pair<std::string, std::optional<WidgetLink>> rows[] = {
      {"ZYNDLE://Widget/chord?root=E%e2%99%ad&type=minor&variant=1", minor},
      {host + "chord?x&variant=1&y=2&type=minor&root=E♭&root=C", minor},
      {host + "collection?title=a+b%2Bc", CollectionLink{"a+b+c"}},
      {host + "collection?title=a=b", CollectionLink{"a=b"}},
      {host + "Chord", NamedDestination{"Chord"}},
      {host + "chord", std::nullopt},
      {host + "chord?root=E%E2%99%AD&type=minor", std::nullopt},
      {host + "chord?root=Eb&type=minor&variant=1", std::nullopt},
      {host + "chord?root=C&type=minor&variant=", std::nullopt},
      {host + "chord?root=C&type=minor&variant=1.0", std::nullopt},
      {host + "chord?root=C&type=minor&variant=+1", std::nullopt},
      {host + "chord?root=C&type=minor&variant=9223372036854775808", std::nullopt},
      {host + "chord/?root=C&type=minor&variant=1", std::nullopt},
      {host + "collection?Title=a", std::nullopt},
      {host + "collection?title=%", std::nullopt},
      {host + "collection?title=%4", std::nullopt},
      {host + "collection?title=%G1", std::nullopt},
      {host + "collection?title=%4g", std::nullopt},
      {host + "collection?title=%+1", std::nullopt},
      {host + "collection?title=%C3", std::nullopt},
      {host + "tuner?", std::nullopt},
      {host + "tuner#top", std::nullopt},
      {host, std::nullopt},
      {"zyndle://widgets/tuner", std::nullopt},
      {"https://widget/tuner", std::nullopt},
      {"zyndle://widget", std::nullopt},
      {"/", std::nullopt},
      {"", std::nullopt},
  };
  for (const auto& [link, expected] : rows) EXPECT_EQ(parseWidgetLink(link), expected) << link;
}

}  // namespace
}  // namespace todaychord

// Holds every catalogue against the template of messages.

#include <fstream>
#include <map>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <re2/re2.h>

#include "Desktop/languages.h"
#include "Tonelake/foundation/text.h"

namespace tonelake {
namespace {

using Messages = std::map<std::string, std::string>;

// The messages of a file, as they are written, without the header. Lines "msgid" and "msgstr" begin
// a text, which goes on in the lines that are nothing but a quoted piece. Obsolete messages are
// comments and count as none.
Messages readMessages(const std::string& name) {
  std::ifstream file(std::string(LOCALE_FOLDER "/") + name);
  EXPECT_TRUE(file) << name;
  Messages messages;
  std::string key;
  std::string* text = nullptr;
  for (std::string line; std::getline(file, line);) {
    EXPECT_FALSE(line.starts_with("#,") && line.find("fuzzy") != std::string::npos) << name << key;
    if (line.starts_with("msgid ")) text = &(key = "");
    if (line.starts_with("msgstr ")) text = &(messages[key] = "");
    const std::size_t quote = line.find('"');
    if (line.starts_with("#") || quote == std::string::npos || text == nullptr) continue;
    *text += line.substr(quote + 1, line.size() - quote - 2);
  }
  messages.erase("");
  return messages;
}

// What a translation has to keep: slots and markers, places of values, options and commands.
// Lines may break anywhere.
std::multiset<std::string> fixedParts(const std::string& text) {
  const std::string oneLine = replaceAll(text, "\\n", " ");
  static const RE2 part(R"((--[^\s-]+--|--[a-z][a-z-]*|%s|\{\d*\}|zyndle [a-z]+))");
  std::multiset<std::string> parts;
  re2::StringPiece rest(oneLine);
  for (std::string found; RE2::FindAndConsume(&rest, part, &found);) parts.insert(found);
  return parts;
}

TEST(Translations, AreCompleteAndKeepWhatIsFixed) {
  const Messages wanted = readMessages("tonelake.pot");
  ASSERT_GT(wanted.size(), 300U);
  for (const std::string& language : desktop::knownLanguages()) {
    if (language == "en") continue;
    const Messages translated = readMessages(language + ".po");
    for (const auto& [key, text] : translated) {
      EXPECT_TRUE(wanted.contains(key)) << language << " has what nobody asks for: " << key;
      EXPECT_TRUE(isValidUtf8(text)) << language << ": " << key;
      EXPECT_EQ(fixedParts(text), fixedParts(key)) << language << ": " << text;
    }
    for (const auto& [key, none] : wanted) {
      const auto found = translated.find(key);
      EXPECT_TRUE(found != translated.end() && !found->second.empty()) << language << ": " << key;
    }
  }
}

}  // namespace
}  // namespace tonelake

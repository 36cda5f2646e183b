#include "zyndle/settings_command.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "Tonelake/foundation/text.h"
#include "zyndle/category_option.h"
#include "zyndle/command_error.h"
#include "zyndle/command_options.h"
#include "zyndle/known_settings.h"
#include "zyndle/output.h"
#include "zyndle/shared_settings_file.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using desktop::Setting;
using desktop::SettingType;

constexpr const char* description = message("Read and change the settings shared with the widgets");

constexpr const char* examples = message(R"(Settings:
  todayChordCategory     category of the chord of the day: beginner, advanced or
                         jazz; beginner unless it is set
  left_handed            mirror diagrams: true or false; false unless it is set
  recentlyViewedChords   kept by the app, as data; see zyndle recent
  chordCollections       kept by the app, as data; see zyndle collections

Examples:
  zyndle settings list
  zyndle settings set todayChordCategory jazz
  zyndle settings set left_handed true
  zyndle settings delete left_handed)");

constexpr std::size_t keyWidth = 22;
constexpr std::size_t shownLength = 48;  // bytes of a value, so that a line keeps to 80 columns

struct SettingsOptions {
  std::string key;
  std::string value;
};

const KnownSetting& readKey(const std::string& key) {
  std::string keys;
  for (const KnownSetting& setting : knownSettings) {
    if (setting.key == key) return setting;
    keys += (keys.empty() ? "" : ", ") + std::string(setting.key);
  }
  refuse(translated("there is no setting {0}; there are {1}", tonelake::quoted(key), keys));
}

// A value on one line; a long one, such as the app's data, only begins.
std::string abbreviated(const std::string& value) {
  if (value.size() <= shownLength) return printable(value);
  return translated("{0}... ({1} bytes)", printable(tonelake::frontOf(value, shownLength / 2)),
                    value.size());
}

// A value of another type than its key's counts as none everywhere, so it is told apart.
std::string describe(const KnownSetting& known, const std::vector<Setting>& settings) {
  const auto found = std::find_if(settings.begin(), settings.end(),
                                  [&](const Setting& setting) { return setting.key == known.key; });
  if (found == settings.end()) return translated("(not set)");
  return abbreviated(found->value) +
         (found->type == known.type ? "" : " " + translated("(wrong type, not used)"));
}

void listSettings() {
  const auto answer = openSharedSettings()->list();
  failIf(answer.problem);
  std::string text;
  for (const KnownSetting& known : knownSettings) {
    text += fmt::format("{:{}} {}\n", known.key, keyWidth, describe(known, answer.value));
  }
  writeStandardOutput(text);
}

void getSetting(const SettingsOptions& options) {
  const KnownSetting& known = readKey(options.key);
  const auto answer = openSharedSettings()->find(options.key);
  failIf(answer.problem);
  if (!answer.value || answer.value->type != known.type)
    fail(translated("{} is not set", options.key));
  writeStandardOutput(answer.value->value + '\n');
}

void checkValue(const KnownSetting& known, const std::string& value) {
  const std::string key(known.key);
  switch (known.type) {
    case SettingType::text:
      readCategory(key, value);
      return;
    case SettingType::boolean:
      if (value == "true" || value == "false") return;
      refuse(translated("{0} {1} is not one of {2}", key, tonelake::quoted(value), "true, false"));
    case SettingType::data:
      refuse(translated("{} is data that the app keeps; it can be read and deleted, not set", key));
  }
}

void setSetting(const SettingsOptions& options) {
  const KnownSetting& known = readKey(options.key);
  checkValue(known, options.value);
  failIf(openSharedSettings()->write({options.key, known.type, options.value}));
}

void deleteSetting(const SettingsOptions& options) {
  readKey(options.key);
  failIf(openSharedSettings()->erase(options.key));
}

void addKey(CLI::App& command, SettingsOptions& options) {
  addArgument(command, "KEY", options.key, message("The name of a setting"));
}

}  // namespace

void addSettingsCommand(CLI::App& app, Action& action) {
  const auto options = std::make_shared<SettingsOptions>();
  CLI::App& command = *app.add_subcommand("settings", translated(description));
  command.footer(translated(examples));
  command.require_subcommand(1);

  CLI::App& list = *command.add_subcommand("list", translated("List every setting with its value"));
  list.callback([&action] { action = listSettings; });

  CLI::App& get = *command.add_subcommand("get", translated("Write the value of one setting"));
  addKey(get, *options);
  get.callback([options, &action] { action = [options] { getSetting(*options); }; });

  CLI::App& set = *command.add_subcommand("set", translated("Give a setting a value"));
  addKey(set, *options);
  addArgument(set, "VALUE", options->value, message("The new value"));
  set.callback([options, &action] { action = [options] { setSetting(*options); }; });

  CLI::App& remove = *command.add_subcommand("delete", translated("Forget the value of a setting"));
  addKey(remove, *options);
  remove.callback([options, &action] { action = [options] { deleteSetting(*options); }; });
}

}  // namespace zyndle

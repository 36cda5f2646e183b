#include "zyndle/command_line.h"

#include <csignal>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Desktop/languages.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/help_formatter.h"
#include "zyndle/language_option.h"
#include "zyndle/output.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr const char* description =
    message("Guitar chords: their names, notes and shapes, and a chord for every day");

constexpr const char* examples = message(R"(Examples:
  zyndle today                     today's chord and how to play it
  zyndle chord F#m7b5              a chord by its name
  zyndle chord G --tuning DADGAD   its shapes in another tuning
  zyndle voicings C/E              every way to play it, easiest first
  zyndle connect "C G/B Am F"      shapes that are close to each other
  zyndle find "E, G, C"            the chord that some notes are
  zyndle progression I-V-vi-IV     chords that go well together
  zyndle pack jazzChords           the chords of a style
  zyndle jam I-V-vi-IV -o song.mid chords as music
  zyndle widget chord > today.svg  a widget as a picture
  zyndle gallery DIR               all widgets as a page
  zyndle settings list             what you have set
  zyndle COMMAND --help            more about a command)");

constexpr const char* version = "zyndle " ZYNDLE_VERSION;

// The innermost subcommand that was typed, the app itself when there is none.
const CLI::App& chosenCommand(const CLI::App& app) {
  const std::vector<CLI::App*> chosen = app.get_subcommands();
  return chosen.empty() ? app : chosenCommand(*chosen.back());
}

// "zyndle settings set".
std::string fullName(const CLI::App& command) {
  const CLI::App* parent = command.get_parent();
  return (parent == nullptr ? "" : fullName(*parent) + " ") + command.get_name();
}

bool isOption(const std::string& argument) {
  return !argument.empty() && argument[0] == '-';
}

std::string describeMissingCommand(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::App* known : command.get_subcommands({})) names.push_back(known->get_name());
  // TRANSLATORS: {0} is a command, {1} are the commands below it: "zyndle settings has get, set".
  const std::string known =
      "; " + translated("{0} has {1}", fullName(command), tonelake::join(names, ", "));
  const std::vector<std::string> surplus = command.remaining();
  if (surplus.empty()) return translated("a command is missing") + known;
  const char* problem = isOption(surplus.front()) ? message("there is no option {}")
                                                  : message("there is no command {}");
  return translated(problem, tonelake::quoted(surplus.front())) + known;
}

// What is wrong with the arguments of a command, in our own words. The parser's messages begin
// with the name of the option, without dashes where it is a flag.
std::string describeArguments(const CLI::App& command, const CLI::ParseError& error) {
  const std::vector<std::string> surplus = command.remaining();
  std::string what = error.what();
  const std::string subject = what.substr(0, what.find_first_of(" :"));
  if (!surplus.empty() && isOption(surplus.front())) {
    return translated("there is no option {}", tonelake::quoted(surplus.front()));
  }
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr)
    return translated("{} is missing", subject);
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    const bool isFlag = what.find("flag override") != std::string::npos;
    return isFlag ? translated("{} takes no value", "--" + subject)
                  : translated("{} needs one value", subject);
  }
  if (surplus.empty()) return what;
  return translated("{} is one argument too many", tonelake::quoted(surplus.front()));
}

std::string describe(const CLI::App& app, const CLI::ParseError& error) {
  const CLI::App& command = chosenCommand(app);
  const bool hasCommands = !command.get_subcommands({}).empty();
  if (hasCommands && command.get_subcommands().empty()) return describeMissingCommand(command);
  return describeArguments(command, error) + "; " +
         translated("see {}", fullName(command) + " --help");
}

// Reads the command line and does what it asks for.
void run(Arguments typed, AddCommands addCommands) {
  const std::vector<const char*> arguments = chooseLanguage(typed);
  CLI::App app(translated(description), "zyndle");
  // Subcommands take this over as they are added.
  app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  Action action;
  app.set_help_flag("--help,-h", translated("Tell how to use this"));
  app.set_version_flag("--version", version, translated("Write the version"));
  app.formatter(std::make_shared<HelpFormatter>());
  // Taken out of the arguments long before; here for the help.
  std::string language;
  app.add_option(
         "--lang", language,
         translated("Speak this language: {}", tonelake::join(desktop::knownLanguages(), ", ")))
      ->type_name("LANGUAGE");
  app.footer(translated(examples));
  app.require_subcommand(1);
  addCommands(app, action, arguments);
  try {
    app.parse(static_cast<int>(arguments.size()), arguments.data());
  } catch (const CLI::CallForHelp&) {
    return writeStandardOutput(app.help());
  } catch (const CLI::CallForVersion&) {
    return writeStandardOutput(std::string(version) + '\n');
  } catch (const CLI::ParseError& error) {
    refuse(describe(app, error));
  }
  action();
}

}  // namespace

int runProgram(int argc, const char* const* argv, AddCommands addCommands) {
  // A reader that goes away is an error to handle, not a reason to be killed.
  std::signal(SIGPIPE, SIG_IGN);
  try {
    run({argv, static_cast<std::size_t>(argc)}, addCommands);
  } catch (const CommandError& error) {
    reportProblem(error.what());
    return static_cast<int>(error.status());
  } catch (const std::exception& error) {
    reportProblem(error.what());
    return static_cast<int>(ExitStatus::failure);
  }
  return static_cast<int>(ExitStatus::success);
}

}  // namespace zyndle

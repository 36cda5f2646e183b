#include "zyndle/command_line.h"

#include <csignal>
#include <exception>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/output.h"

namespace zyndle {
namespace {

constexpr const char* description =
    "Guitar chords: their names, notes and shapes, and a chord for every day";

constexpr const char* examples = R"(Examples:
  zyndle today                     today's chord and how to play it
  zyndle chord F#m7b5              a chord by its name
  zyndle chord G --tuning DADGAD   its shapes in another tuning
  zyndle voicings C/E              every way to play it, easiest first
  zyndle connect "C G/B Am F"      shapes that are close to each other
  zyndle jam I-V-vi-IV -o song.mid chords as music
  zyndle widget chord > today.svg  a widget as a picture
  zyndle settings list             what you have set
  zyndle COMMAND --help            more about a command)";

constexpr const char* version = "zyndle " ZYNDLE_VERSION;

constexpr std::size_t optionColumn = 26;

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
  const std::string known = "; " + fullName(command) + " has " + tonelake::join(names, ", ");
  const std::vector<std::string> surplus = command.remaining();
  if (surplus.empty()) return "a command is missing" + known;
  const std::string kind = isOption(surplus.front()) ? "option " : "command ";
  return "there is no " + kind + tonelake::quoted(surplus.front()) + known;
}

// What is wrong with the arguments of a command, in our own words. The parser's messages begin
// with the name of the option, without dashes where it is a flag.
std::string describeArguments(const CLI::App& command, const CLI::ParseError& error) {
  const std::vector<std::string> surplus = command.remaining();
  std::string what = error.what();
  const std::string subject = what.substr(0, what.find_first_of(" :"));
  if (!surplus.empty() && isOption(surplus.front())) {
    return "there is no option " + tonelake::quoted(surplus.front());
  }
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) return subject + " is missing";
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    const bool isFlag = what.find("flag override") != std::string::npos;
    return isFlag ? "--" + subject + " takes no value" : subject + " needs one value";
  }
  if (surplus.empty()) return what;
  return tonelake::quoted(surplus.front()) + " is one argument too many";
}

std::string describe(const CLI::App& app, const CLI::ParseError& error) {
  const CLI::App& command = chosenCommand(app);
  const bool hasCommands = !command.get_subcommands({}).empty();
  if (hasCommands && command.get_subcommands().empty()) return describeMissingCommand(command);
  return describeArguments(command, error) + "; see " + fullName(command) + " --help";
}

// Reads the command line and does what it asks for.
void run(Arguments arguments, AddCommands addCommands) {
  CLI::App app(description, "zyndle");
  Action action;
  app.set_help_flag("--help,-h", "Tell how to use this");
  app.set_version_flag("--version", version, "Write the version");
  app.get_formatter()->column_width(optionColumn);
  app.get_formatter()->label("REQUIRED", "");
  app.footer(examples);
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

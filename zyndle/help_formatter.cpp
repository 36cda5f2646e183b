#include "zyndle/help_formatter.h"

#include <utility>

#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr std::size_t optionColumn = 26;

}  // namespace

HelpFormatter::HelpFormatter() {
  column_width(optionColumn);
  label("REQUIRED", "");
  label("Usage", translated("Usage"));
  label("OPTIONS", translated("OPTIONS"));
  label("SUBCOMMAND", translated("SUBCOMMAND"));
  label("Positionals", translated("Positionals"));
}

std::string HelpFormatter::make_group(std::string group, bool isPositional,
                                      std::vector<const CLI::Option*> options) const {
  if (group == "Options") group = translated("Options");
  return Formatter::make_group(std::move(group), isPositional, std::move(options));
}

std::string HelpFormatter::make_subcommands(const CLI::App* app, CLI::AppFormatMode mode) const {
  const std::string heading = "\nSubcommands:";
  std::string text = Formatter::make_subcommands(app, mode);
  if (text.starts_with(heading)) {
    text.replace(0, heading.size(), "\n" + translated("Subcommands") + ":");
  }
  return text;
}

}  // namespace zyndle

#pragma once

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace zyndle {

/// How a chord is shown; shared by every subcommand that shows one.
struct OutputOptions {
  bool leftHanded = false;
  bool rightHanded = false;  ///< with neither of the two, as the setting left_handed says
  bool ascii = false;
  bool json = false;
  std::optional<std::string> svgFile;  ///< "-" for standard output

  /// Whether standard output holds nothing but an answer for another program, so that everything
  /// else has to go elsewhere.
  bool isForPrograms() const { return json || svgFile == "-"; }
};

// `options` has to live as long as the subcommand.

/// Adds --ascii and --json to a subcommand.
void addFormatOptions(CLI::App& command, OutputOptions& options);

/// The same, --left-handed and --right-handed.
void addTextOptions(CLI::App& command, OutputOptions& options);

/// The same and --svg.
void addOutputOptions(CLI::App& command, OutputOptions& options);

/// A CommandError when two of the options contradict each other.
void checkOutputOptions(const OutputOptions& options);

/// Writes `text`, in ASCII where the options ask for it.
void writeText(const OutputOptions& options, const std::string& text);

}  // namespace zyndle

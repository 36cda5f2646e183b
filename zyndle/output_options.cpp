#include "zyndle/output_options.h"

#include "Desktop/ascii_text.h"
#include "zyndle/command_error.h"
#include "zyndle/command_options.h"
#include "zyndle/output.h"
#include "zyndle/translation.h"

namespace zyndle {

void addFormatOptions(CLI::App& command, OutputOptions& options) {
  addFlag(command, "--ascii", options.ascii, message("Write and draw with ASCII characters only"));
  addFlag(command, "--json", options.json, message("Write one JSON object, for scripts"));
}

void addTextOptions(CLI::App& command, OutputOptions& options) {
  addFlag(command, "--left-handed", options.leftHanded, message("Mirror the diagrams"));
  addFlag(command, "--right-handed", options.rightHanded,
          message("Do not, even if left_handed is set"));
  addFormatOptions(command, options);
}

void addOutputOptions(CLI::App& command, OutputOptions& options) {
  addTextOptions(command, options);
  addOption(command, "--svg", options.svgFile,
            message("Draw the first shape too; - for standard output"), "FILE");
}

void checkOutputOptions(const OutputOptions& options) {
  if (options.leftHanded && options.rightHanded) {
    refuse(translated("{0} and {1} contradict each other", "--left-handed", "--right-handed"));
  }
  if (!options.svgFile) return;
  if (options.svgFile->empty())
    refuse(translated("{} needs the name of a file, or - for standard output", "--svg"));
  if (options.json && *options.svgFile == "-") {
    refuse(
        translated("{0} and {1} cannot both be written to standard output", "--json", "--svg -"));
  }
}

void writeText(const OutputOptions& options, const std::string& text) {
  writeStandardOutput(options.ascii ? desktop::toAscii(text) : text);
}

}  // namespace zyndle

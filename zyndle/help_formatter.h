#pragma once

#include <CLI/CLI.hpp>

namespace zyndle {

/// Help pages in the language of this run, the headings included.
class HelpFormatter final : public CLI::Formatter {
 public:
  HelpFormatter();

  std::string make_group(std::string group, bool isPositional,
                         std::vector<const CLI::Option*> options) const override;
  std::string make_subcommands(const CLI::App* app, CLI::AppFormatMode mode) const override;
};

}  // namespace zyndle

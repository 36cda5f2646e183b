// Pictures of pixels and of pages, whose libraries the rest of zyndle does without, and the
// commands that write many pictures.

#include "zyndle/command_line.h"
#include "zyndle/hosting/gallery_command.h"
#include "zyndle/hosting/host_command.h"
#include "zyndle/hosting/painted_pictures.h"
#include "zyndle/widget_command.h"

namespace {

constexpr zyndle::SceneFormat formats[] = {
    {"png", zyndle::paintPng},
    {"pdf", zyndle::paintPdf},
};

void addCommands(CLI::App& app, zyndle::Action& action, zyndle::Arguments arguments) {
  zyndle::addWidgetCommand(app, action, arguments, formats);
  zyndle::addGalleryCommand(app, action);
  zyndle::addHostCommand(app, action);
}

}  // namespace

int main(int argc, char** argv) {
  return zyndle::runProgram(argc, argv, addCommands);
}

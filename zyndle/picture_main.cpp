// Pictures of pixels and of pages, whose libraries the rest of zyndle does without, and the
// commands that write many pictures.

#include <string>
#include <utility>

#include "Desktop/cairo_renderer.h"
#include "zyndle/command_error.h"
#include "zyndle/command_line.h"
#include "zyndle/hosting/gallery_command.h"
#include "zyndle/hosting/host_command.h"
#include "zyndle/widget_command.h"

namespace {

std::string bytesOf(desktop::RenderedPicture picture) {
  if (!picture.problem.empty()) zyndle::fail(picture.problem);
  return std::move(picture.bytes);
}

std::string writePng(const todaychord::Scene& scene, double scale) {
  return bytesOf(desktop::renderPng(scene, scale));
}

std::string writePdf(const todaychord::Scene& scene, double /*scale*/) {
  return bytesOf(desktop::renderPdf(scene));
}

constexpr zyndle::SceneFormat formats[] = {
    {"png", writePng},
    {"pdf", writePdf},
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

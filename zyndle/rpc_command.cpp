#include "zyndle/rpc_command.h"

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "Desktop/gregorian_calendar.h"
#include "Tonelake/platform/platform.h"
#include "zyndle/command_error.h"
#include "zyndle/host.h"
#include "zyndle/rpc/rpc.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

constexpr const char* description = message("Answer JSON-RPC 2.0 requests, one a line");

constexpr const char* examples =
    message(R"(Reads requests from standard input until it ends and writes one line for each
answer. Parameters are named; diagnostics go to standard error.

Example:
  echo '{"jsonrpc":"2.0","id":1,"method":"lookUpChord","params":{"name":"C"}}' |
    zyndle rpc)");

std::shared_ptr<const tonelake::Calendar> calendarOfZone(const std::string& zone) {
  return desktop::makeGregorianCalendar(zone);
}

void answerRequests() {
  installHost(true);
  const int status =
      runRpc(STDIN_FILENO, STDOUT_FILENO, {tonelake::processPlatform().calendar, calendarOfZone});
  // What went wrong has been told already.
  if (status != 0) fail("");
}

}  // namespace

void addRpcCommand(CLI::App& app, Action& action) {
  CLI::App& command = *app.add_subcommand("rpc", translated(description));
  command.footer(translated(examples));
  command.callback([&action] { action = answerRequests; });
}

}  // namespace zyndle

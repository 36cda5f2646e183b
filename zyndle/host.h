#pragma once

namespace zyndle {

/// Gives the library what a desktop has: the time zone's calendar, the settings on disk. Called
/// once, by a subcommand that needs the library. With `isForPrograms`, diagnostic lines go to
/// standard error, since standard output holds nothing but an answer. Nothing is opened before it
/// is used; shared settings that cannot be opened then end the process with one line naming the
/// file and status 1.
void installHost(bool isForPrograms);

}  // namespace zyndle

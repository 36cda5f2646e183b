#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Tonelake/platform/notification_center.h"

namespace zyndle {

/// Which reminders a command is about, as it was typed.
struct MonthOptions {
  std::optional<std::string> monthOffset;  ///< months from now; else this month
  std::optional<std::string> category;     ///< else the one that is set
};

/// Hands the reminders of the month to `center`. The host is installed already. A CommandError for
/// options that make no sense.
void scheduleMonth(const MonthOptions& options,
                   std::shared_ptr<tonelake::NotificationCenter> center);

/// `zyndle reminders schedule`.
void scheduleReminders(const MonthOptions& options);

/// `zyndle reminders list`.
void listReminders();

/// `zyndle reminders cancel`: those of one category, else all.
void cancelReminders(const std::optional<std::string>& category);

}  // namespace zyndle

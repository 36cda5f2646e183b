#pragma once

namespace zyndle {

/// `zyndle reminders deliver`: posts what is due. With `wait` it goes on for good: it posts each
/// reminder in its time, tries again what nobody took, and opens the chord of a reminder that is
/// clicked.
void deliverReminders(bool wait);

}  // namespace zyndle

#pragma once

#include <chrono>

#include <date/date.h>

namespace desktop {

/// The moment from which a zone's clocks keep a new distance from UTC.
struct OffsetChange {
  date::sys_seconds moment;
  std::chrono::seconds offset{0};  ///< local time minus UTC: east of Greenwich is positive
};

/// A stretch of time in which a zone's clocks keep one distance from UTC. Neighbouring stretches
/// may have the same offset: only the zone's abbreviation changes between them.
struct OffsetPeriod {
  date::sys_seconds begin;  ///< its first second
  date::sys_seconds end;    ///< the first second after it
  std::chrono::seconds offset{0};
};

/// Ends of a stretch that has no beginning or no end: beyond every moment that a calendar can
/// name, yet far enough from the limits of the type that an offset can be added.
inline constexpr date::sys_seconds distantPast{-std::chrono::seconds(1LL << 60)};
inline constexpr date::sys_seconds distantFuture{std::chrono::seconds(1LL << 60)};

}  // namespace desktop

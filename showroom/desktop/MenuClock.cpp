// The machine's calendar counts seconds from 2001.
#include "showroom/desktop/MenuClock.hpp"

#include <array>
#include <chrono>
#include <cstdint>

namespace orvane::showroom {

namespace {

std::chrono::sys_seconds calendarMoment(const desk::Clock& clock) {
  constexpr std::chrono::sys_days reference =
      std::chrono::year{2001} / std::chrono::January / std::chrono::day{1};
  const std::int64_t seconds =
      desk::Clock::calendarSecondsAtStart + clock.now() / desk::Clock::nanosecondsPerSecond;
  return std::chrono::sys_seconds(reference) + std::chrono::seconds(seconds);
}

constexpr std::array<const char*, 7> dayNames{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr std::array<const char*, 12> monthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

}  // namespace

std::string menuClockText(const desk::Clock& clock) {
  const std::chrono::sys_seconds moment = calendarMoment(clock);
  const auto midnight = std::chrono::floor<std::chrono::days>(moment);
  const std::chrono::year_month_day date(midnight);
  const std::chrono::hh_mm_ss time(moment - midnight);
  const auto minutes = time.minutes().count();
  constexpr int twoDigits = 10;
  return std::string(dayNames.at(std::chrono::weekday(midnight).c_encoding())) + " " +
         std::to_string(static_cast<unsigned>(date.day())) + " " +
         monthNames.at(static_cast<unsigned>(date.month()) - 1) + "  " +
         std::to_string(time.hours().count()) + (minutes < twoDigits ? ":0" : ":") +
         std::to_string(minutes);
}

int menuClockDay(const desk::Clock& clock) {
  const auto midnight = std::chrono::floor<std::chrono::days>(calendarMoment(clock));
  return static_cast<int>(static_cast<unsigned>(std::chrono::year_month_day(midnight).day()));
}

std::int64_t nanosecondsToNextMinute(const desk::Clock& clock) {
  // The calendar starts on a full minute.
  constexpr std::int64_t minute = 60 * desk::Clock::nanosecondsPerSecond;
  static_assert(desk::Clock::calendarSecondsAtStart % 60 == 0);
  return minute - clock.now() % minute;
}

}  // namespace orvane::showroom

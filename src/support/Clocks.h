#pragma once

#include <string>

#include "core/contract/Entorno.h"

namespace fidaleon::support {

/// The machine's clock, in its own time zone.
class SystemClock : public Clock {
 public:
  text::Date today() const override;
  std::string now() const override;
};

/// Always the same moment, until it is set to another.
class FixedClock : public Clock {
 public:
  explicit FixedClock(text::Date date, std::string time = "10:30")
      : date_(date), time_(std::move(time)) {}
  text::Date today() const override { return date_; }
  std::string now() const override { return time_; }
  void set(text::Date date) { date_ = date; }
  void setTime(std::string time) { time_ = std::move(time); }

 private:
  text::Date date_;
  std::string time_;
};

}  // namespace fidaleon::support

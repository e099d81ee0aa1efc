#include "parish/copies/Moment.h"

namespace fidaleon::app {

Moment momentOf(std::time_t time) {
  std::tm t = {};
  if (!::localtime_r(&time, &t)) return {};
  return {{t.tm_year + 1900, t.tm_mon + 1, t.tm_mday}, t.tm_hour, t.tm_min, t.tm_sec};
}

Moment thisMoment() {
  return momentOf(std::time(nullptr));
}

bool isValid(const Moment& m) {
  return text::isValid(m.day) && m.hour < 24 && m.minute < 60 && m.second < 61;
}

}  // namespace fidaleon::app

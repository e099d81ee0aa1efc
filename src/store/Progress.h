#pragma once

#include <functional>

namespace fidaleon::store {

/// Told how far a long work has come, in thousandths, from the thread that does it. False asks to
/// give it up: it then ends with Error(Cancelled), and nothing has changed.
using Progress = std::function<bool(int thousandths)>;

/// The same for a part of the work that takes it from `from` to `to`.
inline Progress partOf(const Progress& whole, int from, int to) {
  if (!whole) return {};
  return [whole, from, to](int done) { return whole(from + (to - from) * done / 1000); };
}

}  // namespace fidaleon::store

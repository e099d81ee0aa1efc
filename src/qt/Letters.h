#pragma once

namespace fidaleon::qt {

/// All windows are written in letters of so many points from now on; 0 is the size that the system
/// has them in.
void useLetters(int points);

}  // namespace fidaleon::qt

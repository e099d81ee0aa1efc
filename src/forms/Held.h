#pragma once

namespace fidaleon::forms {

/// The Tag of a control that is locked for a while only: what stands in it is the user's work and
/// belongs to the contents of the form all the same.
inline constexpr const char* HELD = "held";

}  // namespace fidaleon::forms

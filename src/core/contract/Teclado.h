#pragma once

#include "core/contract/Entorno.h"

namespace fidaleon {

/// What the Enter key does in the dialogs where entries and persons are written: true, it goes to
/// the next field, and Ctrl+Enter accepts; false, it accepts. A choice of the account that holds
/// for the dialogs opened from then on; true until somebody chooses.
bool introPasaDeCampo(const Settings& ajustes);
/// Throws std::runtime_error with a message in Spanish when it cannot be kept.
void ponerIntroPasaDeCampo(Settings& ajustes, bool pasa);

/// So far ahead of today may lie what is still to be held: two digits of a year mean it then.
inline constexpr int ANOS_POR_DELANTE = 20;

}  // namespace fidaleon

#pragma once

#include <string>
#include <string_view>

#include "core/contract/Citas.h"
#include "core/contract/Sacramento.h"

namespace fidaleon {

/// The fixed part of a statement, written for baptism, in the tables and keys of another
/// sacrament: "Libro_Bautismo", "idlibrobautismo", "IDBautismo" and their like, each in the case
/// in which it stands. Never to be run over values that people typed.
std::string enSacramento(const Sacramento& sacramento, std::string_view enBautismo);

}  // namespace fidaleon

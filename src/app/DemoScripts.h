#pragma once
// What the hands of the demonstration do in each dialog.

#include <cstdint>

#include "forms/ScriptedUser.h"

namespace fidaleon::app::demo {

inline constexpr const char* TOWN = "Buitrago del Lozoya";
inline constexpr std::int32_t PROVINCE_CODE = 28;
inline constexpr const char* PRIEST = "D. Abilio Santacana Prieto";
inline constexpr const char* FIRST_CHILD = "Íñigo";
inline constexpr const char* GODMOTHER = "Mª Ángeles Yagüe Peñalver";

void fillSetup(forms::FormDriver& dialog);
void createBook(forms::FormDriver& dialog);
void enterFirstChild(forms::FormDriver& dialog);
void enterSecondChild(forms::FormDriver& dialog);
void chooseFamily(forms::FormDriver& dialog);
void correctGodmother(forms::FormDriver& dialog);
void chooseKeeper(forms::FormDriver& dialog);

/// All tabs of a new entry filled, without accepting it.
void fillEntry(forms::FormDriver& dialog);

}  // namespace fidaleon::app::demo

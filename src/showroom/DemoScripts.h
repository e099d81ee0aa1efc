#pragma once
// What the hands of the demonstration do in each dialog.

#include <cstdint>

#include "forms/ScriptedUser.h"

namespace fidaleon::app::demo {

inline constexpr const char* TOWN = "Buitrago del Lozoya";
inline constexpr std::int32_t PROVINCE_CODE = 28;
inline constexpr const char* PRIEST = "D. Abilio Santacana Prieto";
inline constexpr const char* MINISTER = "Abilio Santacana Prieto";
inline constexpr const char* FIRST_CHILD = "Íñigo";
inline constexpr const char* GODMOTHER = "Mª Ángeles Yagüe Peñalver";

/// A child as the short scripts enter it.
struct Child {
  const char* name;
  const char* first;
  const char* second;
  bool girl;
  const char* birth;    // "dd/mm/yyyy"
  const char* baptism;  // the same; empty for a request whose day is not settled
};
inline constexpr Child LISTED_CHILD{"Bruno", "Vela", "Cano", false, "03/07/2023", "10/09/2023"};
inline constexpr Child REMOVED_CHILD{"Alma", "Rey", "Pardo", true, "12/08/2023", "17/09/2023"};
inline constexpr Child REQUESTED_CHILDREN[] = {{"Hugo", "Soto", "Mena", false, "05/01/2024", ""},
                                               {"Vera", "Gil", "Robles", true, "19/01/2024", ""},
                                               {"Teo", "Peña", "Luna", false, "02/02/2024", ""}};
inline constexpr const char* DUPLICATE_YEAR = "2023";

void fillSetup(forms::FormDriver& dialog);
void createBook(forms::FormDriver& dialog);
void enterFirstChild(forms::FormDriver& dialog);
void enterSecondChild(forms::FormDriver& dialog);
void chooseFamily(forms::FormDriver& dialog);
void correctGodmother(forms::FormDriver& dialog);
void chooseKeeper(forms::FormDriver& dialog);
/// A new entry from the list of its book.
void enterListed(forms::FormDriver& dialog, const Child& child);
void enterRequest(forms::FormDriver& dialog, const Child& child);
/// To the list of the entries, in the dialog of a book.
void showEntries(forms::FormDriver& book);
void addEntry(forms::FormDriver& book);
void removeLastEntry(forms::FormDriver& book);
void moveAllRequests(forms::FormDriver& dialog);
void chooseDuplicate(forms::FormDriver& dialog);

/// All tabs of a new entry filled, without accepting it.
void fillEntry(forms::FormDriver& dialog);

}  // namespace fidaleon::app::demo

#pragma once
// What the hands of the demonstration do in the dialogs that all registers share.

#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>

#include "core/contract/Sacramento.h"
#include "forms/ScriptedUser.h"

namespace fidaleon::app::demo {

inline constexpr const char* PARISH = "San Esteban Protomártir";
inline constexpr const char* DIOCESE = "Madrid";
inline constexpr const char* TOWN = "Buitrago del Lozoya";
inline constexpr std::int32_t PROVINCE_CODE = 28;
inline constexpr const char* PRIEST = "D. Abilio Santacana Prieto";

/// "txtLibro(1)"
std::string at(const std::string& name, int index);
/// The first line of a list in which nothing is chosen.
void chooseFirst(forms::FormDriver& dialog, const std::string& list);

/// Hands on the entry dialog of a register; its fields by their numbers there.
class EntryHands {
 public:
  EntryHands(forms::FormDriver& dialog, const Sacramento& sacrament)
      : dialog_(dialog), word_(sacrament.palabra) {}

  void tab(int tab) { dialog_.tab("mst" + word_, tab); }
  void text(int field, const std::string& what) { dialog_.type(at("txt" + word_, field), what); }
  void texts(std::initializer_list<std::pair<int, const char*>> fields);
  void date(int field, const std::string& day) { dialog_.type(at("adtp" + word_, field), day); }
  void choose(int list, const std::string& line) { dialog_.choose(at("cbo" + word_, list), line); }
  /// The province of this list and its town, that of the parish.
  void place(int province);
  void chooseFirst(int list) { demo::chooseFirst(dialog_, at("cbo" + word_, list)); }
  void accept();
  std::string read(int field) const { return dialog_.text(at("txt" + word_, field)); }

  forms::FormDriver& dialog() { return dialog_; }

 private:
  forms::FormDriver& dialog_;
  std::string word_;
};

void createBook(forms::FormDriver& dialog);
void createOldBook(forms::FormDriver& dialog, const std::string& name, const std::string& begun);
void chooseKeeper(forms::FormDriver& dialog);
/// To the list of the entries, in the dialog of a book.
void showEntries(forms::FormDriver& book);
void addEntry(forms::FormDriver& book);
void removeLastEntry(forms::FormDriver& book);
void moveAllRequests(forms::FormDriver& dialog);
void chooseDuplicate(forms::FormDriver& dialog, const std::string& year, const std::string& order);

}  // namespace fidaleon::app::demo

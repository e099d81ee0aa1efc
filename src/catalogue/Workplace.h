#pragma once

#include <cstdint>
#include <string>

#include "core/contract/Entorno.h"
#include "core/contract/Sacramento.h"
#include "core/facade/cNucleo.h"

namespace fidaleon {

struct Documento;

namespace app {

struct Choice;
struct ListReport;

/// How much of a list, or of a report on the people or tasks: what the user chooses, or all.
enum class Extent { Chosen, Entire };

/// What a command works with: the open parish, and the window around it. The window refreshes its
/// list after every command.
class Workplace {
 public:
  virtual ~Workplace() = default;

  virtual cNucleo& nucleo() = 0;
  virtual Entorno& entorno() = 0;
  virtual FDAPI::Conexion& parish() = 0;
  virtual const FDAPI::cConfig& config() const = 0;

  /// Writes the document of that entry or book and shows it; of none in particular where the
  /// document asks by itself. Nothing is shown when the operation wrote no row: whoever refused has
  /// told the user.
  virtual void showDocument(const Documento& document, std::int32_t id) = 0;
  /// Asks what to print, where that is to be chosen, writes the report and shows it. An entire
  /// report without rows is told to the user.
  virtual void showListReport(const ListReport& report, Extent extent) = 0;
  /// Asks which document, and makes that of each entry or request that is chosen: those of which
  /// there can be none are told at the end.
  virtual void makeDocumentsOfChosen(const Choice& chosen) = 0;
  virtual void focusFilter() = 0;
  /// Goes to the search over everything.
  virtual void focusSearch() = 0;
  /// Shows what else there is of whom the chosen row is about, and of the family.
  virtual void showFamily(const Choice& chosen) = 0;
  virtual void readListAnew() = 0;
  /// Lets the user choose the columns of the list.
  virtual void chooseColumns() = 0;
  /// Chooses the node of that name.
  virtual void showNode(const std::string& name) = 0;
  /// Chooses the entries of that book.
  virtual void showEntriesOf(const Sacramento& sacrament, std::int32_t book) = 0;
  /// Asks where and in which format, and saves the list as it is shown, or its chosen rows.
  virtual void saveList(Extent extent) = 0;
  /// Asks where, and saves a verified copy of the parish there.
  virtual void backUp() = 0;
  /// Lets the user return the parish to a copy saved earlier.
  virtual void returnToCopy() = 0;
  /// Lets the user bring the registers of the older program into books.
  virtual void importLegacy() = 0;
  /// The manual where it speaks of that name; where it speaks of what is chosen for an empty one.
  virtual void help(const std::string& name) = 0;
  virtual void about() = 0;
  /// Lets the user change what there is to choose of the program.
  virtual void preferences() = 0;
  /// Lets the user make a parish, and works on that one from then on.
  virtual void newParish() = 0;
  /// Lets the user choose a parish, and works on that one from then on.
  virtual void openParish() = 0;
  /// Lets the user enter the server that has a parish, and works on that one from then on.
  virtual void connectToServer() = 0;
  /// Lets the user move the open parish, with all that is in it, from a file to a server or back.
  virtual void moveParish() = 0;
  /// Works on no parish until the user has chosen one.
  virtual void closeParish() = 0;
  virtual void leave() = 0;
};

}  // namespace app
}  // namespace fidaleon

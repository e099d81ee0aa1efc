#pragma once
// What people do with the books, entries and documents of any register, checked step by step.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/facade/Documentos.h"
#include "showroom/DemoScripts.h"
#include "showroom/DemoWalk.h"

namespace fidaleon::app {

/// A register as the demonstration has to know it.
struct DemoRegister {
  const Sacramento& sacrament;
  // Lists of its entry dialog.
  int institution;
  int book;
  const char* blanks;      // what is asked about fields that were left blank
  const char* found;       // grid of its look-up
  const char* byName;      // statement that gives the key of the entry of a name
  const char* bySurnames;  // order of the duplicate
};

/// Somebody whose entry is typed.
struct DemoPerson {
  const char* name;
  std::function<void(demo::EntryHands&)> type;
  int found = 0;         // look-ups that find a baptism; it is chosen
  bool unasked = false;  // fields are filled, or nobody asks about those that are not
};

class DemoRegisterWalk {
 public:
  /// Both outlive it.
  DemoRegisterWalk(DemoWalk& walk, const DemoRegister& what) : w_(walk), r_(what) {}

  void newBook();
  void oldBook(const std::string& name, const std::string& begun);
  /// One after the other without closing the dialog, as a series is typed; the first one comes to
  /// stand at this place of the open book.
  void newEntries(const std::vector<DemoPerson>& people, int place);
  /// The same in the old book; they fill its first folio.
  void oldEntries(const std::vector<DemoPerson>& people);
  /// An entry, or a request as long as it stands in no book.
  void correct(const DemoPerson& person);
  void annul(const DemoPerson& person);

  /// Adds entries from the list of the book, takes the last one out again and gives everything up.
  void workInVain(const std::vector<DemoPerson>& people);
  /// The same, accepted: all but the last one stand in the book, from `place` on.
  void workOnBook(const std::vector<DemoPerson>& people, int place);

  void requests(const std::vector<DemoPerson>& people);
  /// They come to stand from `place` on.
  void moveRequests(const std::vector<DemoPerson>& people, int place);

  using Hands = std::function<void(forms::FormDriver&)>;
  /// Of one entry; `keeper` when it asks who signs. `further` forms are answered behind that.
  void document(const std::string& command, const DemoPerson& person, bool keeper,
                const std::vector<std::pair<const char*, Hands>>& further = {});
  void printBook(const std::string& command, std::size_t rows);
  /// By surnames; `first` is the name of the one who leads them.
  void duplicate(const std::string& year, std::size_t rows, const std::string& first);

  /// 0 when nobody has that name.
  std::int32_t idOf(const DemoPerson& person);
  /// "folio/número"
  std::string position(std::int32_t id);
  std::string count(const std::string& condition = "true");

 private:
  std::string node(const char* what) const { return std::string(what) + r_.sacrament.palabra; }
  std::string form() const { return node("frmPartida"); }
  /// Types an entry and accepts it; the answer is to the question for a further one.
  void accept(forms::FormDriver& dialog, const DemoPerson& person, const char* further,
              forms::Answer answer);
  void typeOne(const DemoPerson& person, const char* further);
  void typeSeries(const std::vector<DemoPerson>& people);
  void openBook(const std::vector<DemoPerson>& people, const Hands& end);
  void checkPlaces(const std::vector<DemoPerson>& people, int place, int perFolio = 1);
  std::string everything();
  std::string fileOf(const std::string& command) const;
  const Documento& documentOf(const std::string& command);

  cNucleo& nucleo() { return w_.desk().nucleo(); }
  store::Connection& parish() { return w_.desk().parish(); }
  const FDAPI::cConfig& config() { return w_.desk().config(); }

  DemoWalk& w_;
  const DemoRegister& r_;
};

void walkBaptism(DemoWalk& walk);
/// Finds what walkBaptism has entered.
void walkConfirmation(DemoWalk& walk);
void walkDeath(DemoWalk& walk);
/// Finds what walkBaptism has copied into the old book.
void walkMarriage(DemoWalk& walk);

}  // namespace fidaleon::app

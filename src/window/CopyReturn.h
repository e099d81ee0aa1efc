#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/UserInterface.h"
#include "parish/ParishFiles.h"
#include "parish/Presence.h"
#include "parish/copies/SafetyCopies.h"
#include "store/Restore.h"

class QWidget;

namespace fidaleon::app {

/// Returns a parish to what it held when a copy was made. Refused while anybody else works on it.
/// What it holds now is saved as a copy first; where it can be opened no more, its file is kept
/// under another name.
class CopyReturn {
 public:
  /// `parish` is null when it cannot be opened.
  CopyReturn(forms::UserInterface& ui, const ParishFiles& files, store::Connection* parish,
             const SafetyCopies& copies, const Presence& presence, QWidget* over)
      : ui_(ui),
        files_(files),
        parish_(parish),
        copies_(copies),
        presence_(presence),
        over_(over) {}

  /// Lets the user choose the copy. True when the parish holds something else than before; whatever
  /// else came of it, the user has been told.
  bool run();
  bool to(const SafetyCopy& copy);
  /// The parish is open and yet damaged: nothing has been done, it is to be closed first.
  bool metDamage() const { return metDamage_; }

 private:
  bool isAlone() const;
  std::unique_ptr<store::Restore> prepared(const SafetyCopy& copy) const;
  bool confirmed(const SafetyCopy& copy) const;
  bool replace(const SafetyCopy& copy, store::Restore& restore);
  std::vector<locks::Holder> attempt(store::Restore& restore, bool keepPresent,
                                     std::string& whyNotKept);
  bool keptPresent(std::string& whyNotKept, const store::Progress& progress);
  void refuse(const std::vector<locks::Holder>& there) const;
  void tell(const std::string& text, forms::MsgIcon icon) const;

  forms::UserInterface& ui_;
  const ParishFiles& files_;
  store::Connection* parish_;
  const SafetyCopies& copies_;
  const Presence& presence_;
  QWidget* over_;
  bool metDamage_ = false;
  std::filesystem::path aside_;  // what the damaged file is called now
};

}  // namespace fidaleon::app

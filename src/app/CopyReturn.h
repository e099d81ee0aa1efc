#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Desk.h"
#include "app/SafetyCopies.h"
#include "store/Restore.h"

class QWidget;

namespace fidaleon::app {

/// Returns the open parish to what it held when a copy was made. Refused while anybody else works
/// on it. What it holds now is saved as a copy first.
class CopyReturn {
 public:
  CopyReturn(Desk& desk, const SafetyCopies& copies, QWidget* over)
      : desk_(desk), copies_(copies), over_(over) {}

  /// Lets the user choose the copy. True when the parish holds something else than before; whatever
  /// else came of it, the user has been told.
  bool run();
  bool to(const SafetyCopy& copy);

 private:
  bool isAlone() const;
  std::optional<store::Restore> prepared(const SafetyCopy& copy) const;
  bool confirmed(const SafetyCopy& copy) const;
  bool replace(const SafetyCopy& copy, store::Restore& restore) const;
  std::vector<locks::Holder> attempt(store::Restore& restore, bool keepPresent,
                                     std::string& whyNotKept) const;
  void refuse(const std::vector<locks::Holder>& there) const;
  void tell(const std::string& text, forms::MsgIcon icon) const;

  Desk& desk_;
  const SafetyCopies& copies_;
  QWidget* over_;
};

}  // namespace fidaleon::app

#pragma once

#include <QKeyEvent>
#include <QObject>
#include <functional>
#include <vector>

#include "forms/Control.h"

class QListWidget;

namespace fidaleon::qt {

/// What a field offers, as a list at its edge. The focus stays in the field, which hands its keys
/// on; a click takes an offer too.
class OfferList : public QObject {
 public:
  /// `field` is the widget that it belongs to.
  explicit OfferList(QWidget& field);
  ~OfferList() override;

  /// `first`: the first offer is chosen already. Nothing to offer hides it.
  void show(std::vector<forms::Offer> offers, bool first);
  /// In their place, where there is nothing to offer; it cannot be chosen.
  void say(const QString& why);
  void hide();
  bool isShown() const;
  /// Moves the choice; false for any other key.
  bool moves(const QKeyEvent& event);
  /// Null when none is chosen.
  const forms::Offer* chosen() const;

  std::function<void(const forms::Offer&)> onClick;

 private:
  void make();
  void place();

  QWidget& field_;
  QListWidget* list_ = nullptr;
  std::vector<forms::Offer> offers_;
};

}  // namespace fidaleon::qt

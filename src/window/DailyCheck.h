#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <chrono>
#include <functional>
#include <memory>

#include "parish/Desk.h"
#include "store/SoundnessCheck.h"

namespace fidaleon::app {

/// Looks once a day whether the parish can be read, while nobody is at the keyboard, and tells when
/// it is damaged. A parish on another machine is looked through only while nobody else has it open,
/// since reading keeps others from writing there.
class DailyCheck : public QObject {
 public:
  DailyCheck(Desk& desk, std::function<void()> damaged, QObject* parent = nullptr);

  /// Looks if it is time to, after so long without a key or a click; runs by itself now and then.
  void begin(std::chrono::milliseconds idle);
  /// Somebody wants the parish: the check gives it back, and comes again another time.
  void giveUp() { check_.reset(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isDue() const;
  bool hindersNobody() const;
  void found(store::SoundnessCheck::Finding finding);

  Desk& desk_;
  std::function<void()> damaged_;
  QElapsedTimer idle_;
  bool told_ = false;  // once in a run is enough
  std::unique_ptr<store::SoundnessCheck> check_;
};

}  // namespace fidaleon::app

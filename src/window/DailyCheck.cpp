#include "window/DailyCheck.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include "parish/WindowSettings.h"
#include "store/Open.h"

namespace fidaleon::app {
namespace {

using namespace std::chrono_literals;

constexpr const char* CHECKED = "comprobada";
constexpr auto IDLE = 2min;
constexpr auto EVERY = 30s;

/// "20261123 /datos/parroquia": one parish, one day.
std::string today(Desk& desk) {
  return text::toStored(desk.entorno().clock.today()) + " " + desk.files().directory.string();
}

}  // namespace

DailyCheck::DailyCheck(Desk& desk, std::function<void()> damaged, QObject* parent)
    : QObject(parent), desk_(desk), damaged_(std::move(damaged)) {
  idle_.start();
  qApp->installEventFilter(this);
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this,
          [this] { begin(std::chrono::milliseconds(idle_.elapsed())); });
  timer->start(EVERY);
}

bool DailyCheck::eventFilter(QObject* watched, QEvent* event) {
  const auto type = event->type();
  if (type == QEvent::KeyPress || type == QEvent::MouseButtonPress || type == QEvent::Wheel)
    idle_.restart();
  return QObject::eventFilter(watched, event);
}

void DailyCheck::begin(std::chrono::milliseconds idle) {
  if (check_ || idle < IDLE || QApplication::activeModalWidget() || !isDue() || !hindersNobody())
    return;
  check_ = std::make_unique<store::SoundnessCheck>(
      desk_.files().parish(), [this](store::SoundnessCheck::Finding finding) {
        QMetaObject::invokeMethod(
            this, [this, finding] { found(finding); }, Qt::QueuedConnection);
      });
}

bool DailyCheck::isDue() const {
  return !told_ && readWindowSetting(desk_, CHECKED) != today(desk_);
}

bool DailyCheck::hindersNobody() const {
  try {
    return store::readersHinderNobody(desk_.files().parish()) || desk_.presence().others().empty();
  } catch (const locks::Unusable&) {
    return false;
  }
}

void DailyCheck::found(store::SoundnessCheck::Finding finding) {
  using Finding = store::SoundnessCheck::Finding;
  check_.reset();
  if (finding == Finding::Sound) writeWindowSetting(desk_, CHECKED, today(desk_));
  if (finding != Finding::Damaged) return;
  told_ = true;
  damaged_();
}

}  // namespace fidaleon::app

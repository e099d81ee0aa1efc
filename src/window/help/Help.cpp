#include "window/help/Help.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QWindow>

#include "window/help/HelpTopics.h"
#include "window/help/HelpWindow.h"

namespace fidaleon::app {
namespace {

bool isHelpKey(const QEvent& event) {
  const auto& key = static_cast<const QKeyEvent&>(event);
  return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
}

/// The first of a widget's names that has a place.
std::string nameOf(const QWidget& widget) {
  const QString type = widget.metaObject()->className();
  for (const QString& name :
       {widget.property(Help::ABOUT).toString(), widget.objectName(), type.section("::", -1)})
    if (helpPlace(name.toStdString())) return name.toStdString();
  return {};
}

}  // namespace

Help::Help(std::filesystem::path manual) : directory_(std::move(manual)) {
  qApp->installEventFilter(this);
}

Help::~Help() = default;

std::string Help::nameAt(const QWidget* widget) {
  if (const auto* menu = qobject_cast<const QMenu*>(widget))
    if (const QAction* marked = menu->activeAction())
      if (const std::string id = marked->objectName().toStdString(); helpPlace(id)) return id;
  for (const QWidget* w = widget ? widget->window() : nullptr; w;
       w = w->parentWidget() ? w->parentWidget()->window() : nullptr)
    if (const std::string name = nameOf(*w); !name.empty()) return name;
  return {};
}

void Help::open(const std::string& name) {
  while (QWidget* menu = QApplication::activePopupWidget()) menu->close();
  if (!window_) {
    manual_ = std::make_unique<Manual>(directory_);
    window_ = std::make_unique<HelpWindow>(*manual_);
  }
  window_->QWidget::show();
  stayWithinReach();
  window_->show(helpPlace(name).value_or(Place{Manual::CONTENTS, {}}));
  window_->raise();
  window_->activateWindow();
}

// A modal dialog keeps every window from being used but those that belong to it.
void Help::stayWithinReach() {
  QWindow* own = window_ ? window_->windowHandle() : nullptr;
  if (!own) return;
  const QWidget* modal = QApplication::activeModalWidget();
  own->setTransientParent(modal ? modal->window()->windowHandle() : nullptr);
}

bool Help::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      if (!isHelpKey(*event)) break;
      event->accept();  // comes as a key then
      return true;
    case QEvent::KeyPress:
      if (!watched->isWidgetType() || !isHelpKey(*event)) break;
      if (auto* at = static_cast<QWidget*>(watched); !window_ || at->window() != window_.get())
        open(nameAt(at));
      return true;
    case QEvent::Show:
    case QEvent::Hide:
      if (window_ && watched->isWidgetType() && static_cast<QWidget*>(watched)->isModal())
        QMetaObject::invokeMethod(
            this, [this] { stayWithinReach(); }, Qt::QueuedConnection);
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace fidaleon::app

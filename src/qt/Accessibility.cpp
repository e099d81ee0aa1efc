#include "qt/Accessibility.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QMetaEnum>
#include <QToolButton>

namespace fidaleon::qt {
namespace {

bool holdsLines(QAccessible::Role role) {
  return role == QAccessible::List || role == QAccessible::Table || role == QAccessible::Tree ||
         role == QAccessible::Document;
}

std::string describe(QAccessibleInterface& control) {
  const auto roles = QMetaEnum::fromType<QAccessible::Role>();
  QString line = roles.valueToKey(control.role());
  if (const QObject* object = control.object())
    line += QString(" %1 «%2»").arg(object->metaObject()->className(), object->objectName());
  return line.toStdString();
}

void walk(QAccessibleInterface* control, std::vector<std::string>& found) {
  if (!control || !control->isValid()) return;
  const QAccessible::State state = control->state();
  if (state.invisible) return;
  if (state.focusable && control->text(QAccessible::Name).trimmed().isEmpty())
    found.push_back(describe(*control));
  if (holdsLines(control->role())) return;
  for (int i = 0; i < control->childCount(); ++i) walk(control->child(i), found);
}

}  // namespace

std::vector<std::string> namelessControls(QWidget& window) {
  std::vector<std::string> found;
  QAccessibleInterface* root = QAccessible::queryAccessibleInterface(&window);
  // The window itself is called by its title.
  for (int i = 0; root && i < root->childCount(); ++i) walk(root->child(i), found);
  return found;
}

void nameClearButton(QLineEdit& field, const QString& name) {
  for (auto* button : field.findChildren<QToolButton*>()) {
    button->setAccessibleName(name);
    button->setToolTip(name);
  }
}

}  // namespace fidaleon::qt

#include "qt/views/PlainViews.h"

#include <QAbstractButton>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "qt/Appearance.h"
#include "qt/Text.h"

namespace fidaleon::qt {

LabelView::LabelView(forms::Label& label, QWidget* parent)
    : ControlView(label), model_(label), label_(new QLabel(parent)) {
  label_->setTextFormat(Qt::PlainText);
  parent->window()->installEventFilter(this);
}

QWidget* LabelView::widget() const {
  return label_;
}

void LabelView::setBuddy(const forms::Control& control, QWidget* field) {
  // A button bears its letter itself.
  named_ = qobject_cast<QAbstractButton*>(field) ? nullptr : &control;
  label_->setBuddy(field);
}

void LabelView::showCaption() {
  label_->setText(named_ ? markedCaption(model_.caption(), model_.form().mnemonic(*named_))
                         : plainCaption(model_.caption()));
  QFont font;
  font.setBold(model_.emphasised());
  QPalette palette;
  if (model_.emphasised())
    palette.setColor(QPalette::WindowText, warningColour(label_->parentWidget()->palette()));
  label_->setFont(font);
  label_->setPalette(palette);
}

bool LabelView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::PaletteChange && watched == label_->window()) showCaption();
  return false;
}

FrameView::FrameView(forms::Frame& frame, QWidget* parent)
    : ControlView(frame), model_(frame), box_(new QGroupBox(parent)) {}

QWidget* FrameView::widget() const {
  return box_;
}

void FrameView::showCaption() {
  box_->setTitle(markedCaption(model_.caption(), model_.form().mnemonic(model_)));
}

ProgressView::ProgressView(forms::Progress& progress, QWidget* parent)
    : ControlView(progress),
      model_(progress),
      both_(new QWidget(parent)),
      message_(new QLabel(both_)),
      bar_(new QProgressBar(both_)) {
  message_->setTextFormat(Qt::PlainText);
  auto* column = new QVBoxLayout(both_);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(message_);
  column->addWidget(bar_);
}

QWidget* ProgressView::widget() const {
  return both_;
}

void ProgressView::refresh(forms::Change what) {
  ControlView::refresh(what);
  if (what != forms::Change::Progress) return;
  message_->setText(toQt(model_.message()));
  // A bar of no length would be drawn as one that never ends.
  bar_->setRange(0, static_cast<int>(std::max<std::int64_t>(1, model_.count())));
  bar_->setValue(static_cast<int>(model_.value()));
  both_->repaint();
}

}  // namespace fidaleon::qt

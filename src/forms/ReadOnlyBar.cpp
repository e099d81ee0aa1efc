#include "forms/ReadOnlyBar.h"

namespace fidaleon::forms {

Form::ReadOnlyBar::ReadOnlyBar(Form& form, ReadOnly why_)
    : notice(std::move(why_)),
      why(form, "lblSoloLectura", notice.why),
      retry(form, "cmdReintentar", "&Volver a intentar") {
  retry.setVisible(notice.retry != nullptr);
  retry.setEnabled(notice.retry != nullptr);
  retry.onClick = [&form] { form.tryAgain(); };
}

bool Form::open(const std::optional<ReadOnly>& notice) {
  Load();
  if (notice && !unloaded_) setReadOnly(*notice);
  Show();
  return reopens_;
}

void Form::setReadOnly(ReadOnly notice) {
  if (readOnly_) return;
  readOnly_ = std::make_unique<ReadOnlyBar>(*this, std::move(notice));
  LayoutNode whole =
      layout_.kind == LayoutNode::Kind::Column ? std::move(layout_) : column({std::move(layout_)});
  whole.children.insert(whole.children.begin(), bar(readOnly_->why, {&readOnly_->retry}));
  setLayout(std::move(whole));
}

bool Form::servesReading(const Button& button) const {
  return button.isCancel() || (readOnly_ && &button == &readOnly_->retry);
}

void Form::tryAgain() {
  const std::optional<std::string> why = readOnly_->notice.retry();
  if (why) return readOnly_->why.setCaption(*why);
  reopens_ = true;
  Unload();
}

}  // namespace fidaleon::forms

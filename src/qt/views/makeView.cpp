#include "qt/views/makeView.h"

#include <stdexcept>

#include "qt/views/ButtonViews.h"
#include "qt/views/ComboView.h"
#include "qt/views/DateView.h"
#include "qt/views/GridView.h"
#include "qt/views/LineView.h"
#include "qt/views/ListBoxView.h"
#include "qt/views/MemoView.h"
#include "qt/views/PlainViews.h"
#include "qt/views/TabListView.h"
#include "qt/views/TabRowView.h"

namespace fidaleon::qt {

namespace {

template <class Kind, class View>
bool tryMake(std::unique_ptr<ControlView>& made, forms::Control& control, QWidget* parent) {
  auto* kind = made ? nullptr : dynamic_cast<Kind*>(&control);
  if (kind) made = std::make_unique<View>(*kind, parent);
  return made != nullptr;
}

}  // namespace

std::unique_ptr<ControlView> makeView(forms::Control& control, QWidget* parent) {
  std::unique_ptr<ControlView> made;
  auto* text = dynamic_cast<forms::TextBox*>(&control);
  if (text && text->multiline()) made = std::make_unique<MemoView>(*text, parent);
  auto* tabs = dynamic_cast<forms::TabStrip*>(&control);
  if (tabs && tabs->isList()) made = std::make_unique<TabListView>(*tabs, parent);
  tryMake<forms::DateField, DateView>(made, control, parent) ||
      tryMake<forms::TextBox, LineView>(made, control, parent) ||
      tryMake<forms::ComboBox, ComboView>(made, control, parent) ||
      tryMake<forms::ListBox, ListBoxView>(made, control, parent) ||
      tryMake<forms::CheckBox, CheckView>(made, control, parent) ||
      tryMake<forms::OptionButton, OptionView>(made, control, parent) ||
      tryMake<forms::Button, ButtonView>(made, control, parent) ||
      tryMake<forms::Grid, GridView>(made, control, parent) ||
      tryMake<forms::TabStrip, TabRowView>(made, control, parent) ||
      tryMake<forms::Frame, FrameView>(made, control, parent) ||
      tryMake<forms::Label, LabelView>(made, control, parent) ||
      tryMake<forms::Progress, ProgressView>(made, control, parent);
  if (!made) throw std::logic_error("no view for the control " + control.name());
  return made;
}

}  // namespace fidaleon::qt

#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "forms/Key.h"

namespace fidaleon::forms {

class Form;
class Frame;
class Label;
class TabStrip;

/// What has changed in a control, told to whoever renders the form.
enum class Change {
  Enabled,
  Visible,
  Text,
  Caption,
  Items,
  Selection,
  Locked,
  Grid,
  Tab,
  Progress,
  ToolTip,
  Doubt
};

/// What a field offers while one types.
struct Offer {
  std::string text;
  std::int64_t data = 0;
};

/// A named part of a form. Lives as a member of its form and is registered by its constructor;
/// the form must outlive it. Events are plain functions that the form sets; an unset one does
/// nothing.
class Control {
 public:
  Control(Form& form, std::string name);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  /// As the rules write it: "txtNombreLibro", "txtLibro(1)".
  const std::string& name() const { return name_; }
  Form& form() const { return form_; }

  /// As set, and as a form that can only be read leaves it; a disabled frame around it also keeps
  /// the user out, see usable().
  virtual bool enabled() const { return enabled_; }
  void setEnabled(bool on);
  /// Also shows or hides the label in front of the control.
  bool visible() const { return visible_; }
  void setVisible(bool on);

  /// Enabled and visible together with all frames around it (its tab need not be in front).
  bool usable() const;
  /// Usable and on the tab in front: what a user can see and reach.
  bool reachable() const;
  virtual bool canTakeFocus() const { return false; }

  /// The label in front of the control; null when it has none. Owned by the form.
  Label* label() const { return label_; }
  void setLabel(Label& label) { label_ = &label; }

  void setToolTip(std::string text);
  const std::string& toolTip() const { return toolTip_; }
  /// Wished width in characters; 0 leaves it to the layout.
  int widthChars() const { return widthChars_; }
  void setWidthChars(int n) { widthChars_ = n; }

  /// Enter goes past it, as it does past buttons; Tab and mouse reach it.
  bool passedByEnter() const { return passedByEnter_; }
  void setPassedByEnter(bool on) { passedByEnter_ = on; }

  std::string Tag;

  /// The best few for what has been typed, the likeliest first. Asked at every key.
  std::function<std::vector<Offer>(const std::string& typed)> offers;
  /// The user has chosen one of them.
  virtual void take(const Offer& offer);

  std::function<void()> onGotFocus;
  /// `next` is where the focus goes; null when it is not known.
  std::function<void(Control* next)> onLostFocus;
  std::function<void(KeyPress&)> onKeyPress;

  // For the form and its layout.
  virtual void enteredByFocus();
  virtual void leftByFocus(Control* next);
  void placeIn(Frame* frame, TabStrip* strip, int page);
  Frame* frame() const { return frame_; }
  TabStrip* strip() const { return strip_; }
  int page() const { return page_; }

 protected:
  void changed(Change what);

 private:
  Form& form_;
  std::string name_;
  bool enabled_ = true;
  bool visible_ = true;
  bool passedByEnter_ = false;
  int widthChars_ = 0;
  std::string toolTip_;
  Label* label_ = nullptr;
  Frame* frame_ = nullptr;
  TabStrip* strip_ = nullptr;
  int page_ = -1;
};

}  // namespace fidaleon::forms

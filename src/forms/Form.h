#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Contents.h"
#include "forms/Controls.h"
#include "forms/Layout.h"
#include "forms/UserInterface.h"

namespace fidaleon::forms {

/// Told of everything that changes while a form is shown. One at a time; not owned by the form.
class FormObserver {
 public:
  virtual ~FormObserver() = default;
  virtual void controlChanged(Control& control, Change what) = 0;
  virtual void focusChanged(Control* active) = 0;
  virtual void captionChanged() = 0;
  virtual void unloaded() = 0;
};

/// Why a form can only be read, and how to get further.
struct ReadOnly {
  std::string why;  // for the user: who has it, since when
  /// Tries to get what was missing: nothing when it is there now, otherwise why not. Unset when
  /// there is nothing to be tried.
  std::function<std::optional<std::string>()> retry;
};

/// A dialog without a toolkit: named controls, a layout, the focus, and one handler per event.
/// The same object runs in a window and under a scripted user. The model owns the focus: leaving
/// a field runs its handler, which may send the focus elsewhere.
class Form {
 public:
  Form(UserInterface& ui, std::string name);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption);
  UserInterface& ui() const { return ui_; }

  /// Runs Form_Load once; later calls do nothing.
  void Load();
  /// Loads if need be and stays until the form is unloaded. A form that unloads itself while
  /// loading is not shown.
  void Show();
  /// Loads and shows the form, to be read only where there is a notice. True when another try has
  /// got what was missing: the form was closed to be opened anew with what is stored now.
  bool open(const std::optional<ReadOnly>& notice);
  /// Nothing in it can be changed from now on: fields and lists can be read and copied, every
  /// button is off but the one that cancels, and a bar at the top says why and tries again. Once,
  /// when the layout is there and before the form is shown.
  void setReadOnly(ReadOnly notice);
  bool isReadOnly() const { return readOnly_ != nullptr; }
  /// The buttons that stay on in a form that can only be read.
  bool servesReading(const Button& button) const;
  /// Closes the form without asking; Form_Unload runs once.
  void Unload();
  bool isLoaded() const { return loaded_; }
  bool isUnloaded() const { return unloaded_; }
  /// Escape and the window's own close: asks before what was typed is thrown away, then presses
  /// the cancel button if there is one.
  void requestClose();
  /// Closes the form because the program ends: what stood in it is not given up.
  void Abandon();
  bool isAbandoned() const { return abandoned_; }
  bool isDisposable() const { return disposable_; }

  /// Something would be lost if the form closed now.
  bool hasUnsaved() const;
  /// What stood in it when it was shown or last stored.
  const Contents& saved() const { return saved_; }
  /// What stands in it now is stored: only what comes after it can be lost.
  void markSaved();
  /// Work that stands in no control, as in a list that is kept until the form is accepted: lines
  /// that a user can read, and that putBackOwnWork() understands. Empty when there is none.
  virtual std::string ownWork() const { return {}; }
  /// On a loaded form. Gives what of it could not be put back.
  virtual std::string putBackOwnWork(const std::string& work) { return work; }

  Control* activeControl() const { return active_; }
  /// The user's way to another control. The current field is left first, and its handler may keep
  /// the focus or send it elsewhere; true when `next` has it in the end.
  bool moveFocus(Control& next);
  /// From code. Inside a handler it is queued and wins over where the user was going.
  void setFocus(Control& control);
  void focusFirst();
  /// The first that can be reached on the tab in front; false when there is none.
  bool focusFirstOn(const TabStrip& strip);
  /// Next or previous control in tab order that can be reached.
  void focusNext(bool backwards = false);
  /// Leaves the current field, then clicks if the focus could come and the button is usable.
  bool userClick(Button& button);
  /// Enter: presses the button that has the focus. Otherwise goes on to the next field where the
  /// form enters fields, and presses the default button where it does not.
  bool pressEnter();
  /// Ctrl+Enter: leaves the field, then presses the default button.
  bool pressDefault();

  /// Its fields are filled one after the other: Enter goes from each to the next, over the tabs,
  /// and from the last to the default button.
  bool entersFields() const { return entersFields_ && !readOnly_; }
  void setEntersFields(bool on) { entersFields_ = on; }
  /// Goes on to the next field that can be filled and is not settled.
  void goOn();
  /// A key of the user has written this in a field; one that is complete goes on by itself. Enter
  /// or Tab that follows by habit is then taken for its end, and leaves nothing out.
  void typedInto(const TextBox& box);
  /// Once, whether the key that is pressed now is that one.
  bool endsFieldBefore();
  /// Where the user begins: at the first field, or at the first that is not settled where what
  /// comes before it could not be otherwise.
  void begin();

  /// F4: the field takes what stood there in the entry before; with `page`, all fields of its tab
  /// that the user has not written do.
  virtual void takeFormer(Control& field, bool page) { (void)field, (void)page; }
  /// There are entries, and so one before.
  virtual bool takesFormer() const { return false; }
  /// What a date that was typed in a short way is read against.
  virtual text::DateSense dateSense(const DateField& field) const {
    (void)field;
    return {};
  }
  /// A little work beside what the user does, of a few milliseconds; false when there is none left.
  /// Whoever shows the form calls it between keys.
  virtual bool workBeside() { return false; }

  const std::vector<Control*>& controls() const { return controls_; }
  /// Null when there is none of that name.
  Control* find(std::string_view name) const;
  std::vector<Control*> tabOrder() const;
  const LayoutNode& layout() const { return layout_; }
  /// Mnemonic letter of a control on this form, 0 when none is left: its own "&" first, then the
  /// first free letter of its caption or label. Unique among the controls of one tab.
  char32_t mnemonic(const Control& control) const { return mnemonicOf(control, -1); }
  /// The same of a tab: the letter that its caption marks, and where tabs stand in a list the first
  /// free one.
  char32_t mnemonic(const TabStrip& strip, int tab) const { return mnemonicOf(strip, tab); }

  void setObserver(FormObserver* observer) { observer_ = observer; }

  // For controls.
  void adopt(Control& control);
  void disown(Control& control);
  void controlChanged(Control& control, Change what);
  Label& makeLabel(const std::string& name, const std::string& caption);

 protected:
  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  /// The cancel button asks by itself before the present state is thrown away.
  virtual bool asksOnCancel() const { return false; }
  /// For a form that searches, chooses or shows: nobody misses what stands in it.
  void setDisposable() { disposable_ = true; }
  /// The program has filled it for the user, who need not stop there. By default: it is not as it
  /// was when the form was shown or last stored, and the user has not been there since.
  virtual bool settled(const Control& field) const;
  /// What stands in front in a form whose fields Enter goes through is given: nobody need look.
  virtual bool beginsSettled() const { return false; }
  /// The user has been in it since then.
  bool visited(const Control& field) const { return visited_.contains(&field); }
  void setLayout(LayoutNode layout);

 private:
  class ReadOnlyBar;
  void tryAgain();
  void place(LayoutNode& node, Frame* frame, TabStrip* strip, int page);
  void settleFocus(Control* target);
  void rescueFocus(Control& lost);
  void assignMnemonics() const;
  char32_t mnemonicOf(const Control& control, int tab) const;
  bool mayBeThrownAway();
  bool isStop(const Control& control) const;
  Control* nextStop() const;
  bool bringForward(Control& control);
  Button* defaultButton() const;

  UserInterface& ui_;
  std::string name_;
  std::string caption_;
  std::vector<Control*> controls_;
  std::vector<std::unique_ptr<Label>> ownLabels_;
  LayoutNode layout_;
  std::unique_ptr<ReadOnlyBar> readOnly_;
  bool reopens_ = false;
  Control* active_ = nullptr;
  Control* pending_ = nullptr;
  bool moving_ = false;
  bool loaded_ = false;
  bool unloaded_ = false;
  bool abandoned_ = false;
  bool disposable_ = false;
  bool entersFields_ = false;
  std::set<const Control*> visited_;
  struct {
    const Control* at = nullptr;
    std::string text;
  } cameByItself_;  // to where a complete field has gone on, as long as nothing is done there
  Contents saved_;
  FormObserver* observer_ = nullptr;
  struct Mnemonic {
    const Control* control;
    int tab;  // of a strip, -1 for the control itself
    char32_t letter;
  };
  mutable std::vector<Mnemonic> mnemonics_;
  mutable bool mnemonicsKnown_ = false;
};

}  // namespace fidaleon::forms
